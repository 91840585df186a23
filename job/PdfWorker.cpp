// SPDX-License-Identifier: Apache-2.0
// Documents go to the process as open files, and the document that is made comes back piece by piece: the file is
// written here, so that a full disk is seen here, and so that nothing is ever left of one that did not become whole.
#include "job/PdfWorker.h"

#include "job/ConfinedProgram.h"
#include "job/Conversion.h"
#include "job/MemoryFile.h"
#include "job/PageBox.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"
#include "job/WriteFailure.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QTransform>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <mutex>
#include <numeric>
#include <utility>

#include <unistd.h>

namespace tapeprint::job
{

namespace
{

using End = DrawerProcess::End;

QString programOf(const QString &folder)
{
    return folder + QLatin1String("/tapeprint-pages");
}

/// The process that nobody asks for the moment.
struct Waiting {
    Waiting() = default;
    ~Waiting()
    {
        if (process) {
            process->hurry(); // nobody waits for the end of a room
        }
    }
    Waiting(const Waiting &) = delete;
    Waiting &operator=(const Waiting &) = delete;

    std::mutex mutex;
    std::unique_ptr<DrawerProcess> process;
    QString program;
};

Waiting &waiting()
{
    static Waiting one;
    return one;
}

/// The process that waits, if there is one for this thread.
std::unique_ptr<DrawerProcess> takeWaiting(const QString &program, const std::atomic<bool> &stop)
{
    std::unique_ptr<DrawerProcess> process;
    {
        Waiting &one = waiting();
        const std::lock_guard lock(one.mutex);
        if (one.process && one.program == program && one.process->isForThisThread()) {
            process = std::move(one.process);
        }
    }
    return process && process->greet(pagesGreeting, stop) == End::Whole ? std::move(process) : nullptr;
}

/// What libqpdf says, as it stands within a sentence.
QString textOf(const QByteArray &reason)
{
    return reasonText(QString::fromUtf8(reason));
}

Problem damaged(const QString &name, const QString &reason)
{
    return {Problem::BadDocument,
            Texts::tr("The document %1 is damaged (%2): make it anew or name another.").arg(name, reason)};
}

/// The sentence about a document that cannot be opened.
Problem openingProblem(std::uint32_t fault, const QString &name, const QByteArray &reason)
{
    return fault == PagesAnswer::Locked
               ? Problem{Problem::BadDocument,
                         Texts::tr("The document %1 is locked with a password: save it without one and print that.")
                             .arg(name)}
               : damaged(name, textOf(reason));
}

/// A process that has read a document may be the document's. Who holds a file's handle can open it anew, for writing,
/// past the room's walls: what such a process gets are copies in memory. When there is more to be copied than this, a
/// new process does it.
constexpr qint64 mostCopiedBytes = qint64(256) << 20;
constexpr qint64 pieceBytes = 1 << 20;

qint64 bytesOf(const QStringList &files)
{
    return std::accumulate(files.begin(), files.end(), qint64(0),
                           [](qint64 bytes, const QString &file) { return bytes + QFileInfo(file).size(); });
}

bool copyTo(const MemoryFile &copy, QFile &file)
{
    bool isCopied = copy.isOpen();
    for (QByteArray piece = file.read(pieceBytes); isCopied && !piece.isEmpty(); piece = file.read(pieceBytes)) {
        isCopied = copy.append(piece);
    }
    return isCopied;
}

/// A file that is being made.
class MadeFile
{
public:
    MadeFile(const QString &path, qint64 most) : mFile(path), mMost(most) {}
    ~MadeFile()
    {
        if (mFile.isOpen() && !mIsWhole) {
            mFile.resize(0);
        }
    }
    MadeFile(const MadeFile &) = delete;
    MadeFile &operator=(const MadeFile &) = delete;

    bool write(const QByteArray &piece, Problem *error)
    {
        mBytes += piece.size();
        if (mBytes > mMost) {
            return fail(qt_error_string(EFBIG), error);
        }
        return (open() && mFile.write(piece) == piece.size()) || fail(whyNotWritten(mFile), error);
    }

    bool end(Problem *error)
    {
        mIsWhole = open() && mFile.flush() && mFile.size() == mBytes;
        return mIsWhole || fail(whyNotWritten(mFile), error);
    }

private:
    bool open() { return mFile.isOpen() || mFile.open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

    static bool fail(const QString &reason, Problem *error)
    {
        *error = noRoomForTemporaryFiles(reasonText(reason));
        return false;
    }

    QFile mFile;
    qint64 mMost;
    qint64 mBytes = 0;
    bool mIsWhole = false;
};

} // namespace

/// What is asked for beside the documents.
struct PdfWorker::Plan {
    PagesQuestion question;
    std::vector<std::uint32_t> labels = {};
    std::vector<PagesPlaced> pages = {};
    QString failure; ///< the sentence about documents of which it cannot be made, without the reason
};

/// One question and its answer. When the answer has not been taken to its end, that ends the process.
class PdfWorker::Conversation
{
public:
    Conversation(PdfWorker &worker, const std::atomic<bool> &stop) : mWorker(worker), mStop(stop) {}
    ~Conversation()
    {
        if (!mIsAnswered) {
            mWorker.mProcess.reset();
        }
    }
    Conversation(const Conversation &) = delete;
    Conversation &operator=(const Conversation &) = delete;

    /// Asks. \param error takes why there is nobody to ask, or which document cannot be read.
    bool ask(const PagesQuestion &question, const QStringList &pdfs, Problem *error)
    {
        if (!hasProcess(pdfs, error)) {
            return false;
        }
        const bool isCopied = !process().isFresh();
        return say(&question, sizeof question) &&
               std::all_of(pdfs.begin(), pdfs.end(),
                           [this, isCopied, error](const QString &pdf) { return give(pdf, isCopied, error); });
    }

    bool say(const void *bytes, std::size_t length) { return isWhole(process().say(bytes, length, mStop)); }
    bool take(void *bytes, std::size_t length) { return isWhole(process().take(bytes, length, mStop)); }

    QByteArray takeBytes(std::uint32_t length)
    {
        QByteArray bytes(static_cast<qsizetype>(length), '\0');
        return take(bytes.data(), length) ? bytes : QByteArray();
    }

    /// Takes the next word of the answer. \return nothing when it is none.
    std::optional<PagesAnswer> next()
    {
        PagesAnswer answer;
        return take(&answer, sizeof answer) && isPossible(answer) ? std::optional(answer) : std::nullopt;
    }

    /// The answer is at its end.
    void end() { mIsAnswered = true; }

private:
    DrawerProcess &process() { return *mWorker.mProcess; }
    bool isWhole(End end) const { return end == End::Whole && !mStop; }

    bool hasProcess(const QStringList &pdfs, Problem *error)
    {
        QString reason;
        std::unique_ptr<DrawerProcess> &process = mWorker.mProcess;
        if (!process) {
            process = takeWaiting(mWorker.mProgram, mStop);
        }
        if (!process || (!process->isFresh() && bytesOf(pdfs) > mostCopiedBytes)) {
            process = startProgram(mWorker.mProgram, pagesGreeting, mStop, &reason);
        }
        if (!process) {
            *error = partMissing(reason);
            return false;
        }
        process->setLongest(mWorker.mLimits.longest);
        return true;
    }

    bool give(const QString &pdf, bool isCopied, Problem *error)
    {
        QFile file(pdf);
        if (!file.open(QIODevice::ReadOnly)) {
            *error = damaged(harmless(pdf), reasonText(QStringLiteral("open %1: %2").arg(pdf, file.errorString())));
            return false;
        }
        if (!isCopied) {
            return isWhole(process().say(PagesDocument(), mStop, file.handle()));
        }
        const MemoryFile copy(file.size());
        const int handle = copyTo(copy, file) ? copy.readingHandle() : -1;
        if (handle < 0) {
            *error = noRoomForTemporaryFiles(reasonText(qt_error_string(errno)));
            return false;
        }
        const End end = process().say(PagesDocument(), mStop, handle);
        close(handle);
        return isWhole(end);
    }

    static bool isPossible(const PagesAnswer &answer)
    {
        switch (answer.kind) {
        case PagesAnswer::Measured:
            return answer.length <= static_cast<std::uint32_t>(mostDrawerPages);
        case PagesAnswer::Piece:
            return answer.length > 0 && answer.length <= mostPieceBytes;
        case PagesAnswer::Failed:
            return answer.length <= mostReasonBytes;
        default:
            return answer.kind <= PagesAnswer::Failed;
        }
    }

    PdfWorker &mWorker;
    const std::atomic<bool> &mStop;
    bool mIsAnswered = false;
};

PdfWorker::PdfWorker() : PdfWorker(moduleFolder(), {}) {}

PdfWorker::PdfWorker(const QString &folder, Limits limits) : mProgram(programOf(folder)), mLimits(limits) {}

PdfWorker::~PdfWorker()
{
    if (mProcess && mProcess->isWaiting()) {
        Waiting &one = waiting();
        const std::lock_guard lock(one.mutex);
        std::swap(one.process, mProcess);
        one.program = mProgram;
    }
}

void PdfWorker::prepare()
{
    Waiting &one = waiting();
    const std::lock_guard lock(one.mutex);
    if (!one.process) {
        one.program = programOf(moduleFolder());
        one.process = startAhead(one.program);
    }
}

std::optional<PageSizes> PdfWorker::measure(const QString &pdf, const QString &shownAs, const std::atomic<bool> &stop,
                                            Problem *error)
{
    const QString name = harmless(shownAs.isNull() ? pdf : shownAs);
    Problem problem{Problem::BadDocument, Texts::tr("%1 is broken: no page of it can be read.").arg(name)};
    std::optional<PageSizes> sizes = askSizes(pdf, name, stop, &problem);
    if (!sizes && !stop) {
        *error = problem;
    }
    return sizes;
}

std::optional<PageSizes> PdfWorker::askSizes(const QString &pdf, const QString &name, const std::atomic<bool> &stop,
                                             Problem *problem)
{
    Conversation conversation(*this, stop);
    PagesQuestion question;
    question.documents = 1;
    const std::optional<PagesAnswer> answer =
        conversation.ask(question, {pdf}, problem) ? conversation.next() : std::nullopt;
    if (answer && answer->kind == PagesAnswer::Failed) {
        const QByteArray reason = conversation.takeBytes(answer->length);
        conversation.end();
        *problem = openingProblem(answer->fault, name, reason);
    }
    if (!answer || answer->kind != PagesAnswer::Measured) {
        return std::nullopt;
    }
    std::vector<DrawerPage> pages(answer->length);
    if (!conversation.take(pages.data(), pages.size() * sizeof(DrawerPage))) {
        return std::nullopt;
    }
    conversation.end();
    if (pages.empty()) {
        *problem = {Problem::BadDocument,
                    Texts::tr("The document %1 has no page: name one with something to print.").arg(name)};
        return std::nullopt;
    }
    PageSizes sizes(pages.size());
    std::transform(pages.begin(), pages.end(), sizes.begin(),
                   [](const DrawerPage &page) { return boxOf(page).sizePt(); });
    return sizes;
}

bool PdfWorker::make(const Plan &plan, const QStringList &pdfs, const QString &path, const std::atomic<bool> &stop,
                     Problem *error)
{
    Problem problem{Problem::BadDocument, plan.failure.arg(Texts::tr("what reads it has broken off"))};
    const bool isMade = askForFile(plan, pdfs, path, stop, &problem);
    if (!isMade && !stop) {
        *error = problem;
    }
    return isMade;
}

bool PdfWorker::askForFile(const Plan &plan, const QStringList &pdfs, const QString &path,
                           const std::atomic<bool> &stop, Problem *problem)
{
    Conversation conversation(*this, stop);
    MadeFile file(path, mLimits.mostBytes);
    if (!conversation.ask(plan.question, pdfs, problem) ||
        !conversation.say(plan.labels.data(), plan.labels.size() * sizeof plan.labels[0]) ||
        !conversation.say(plan.pages.data(), plan.pages.size() * sizeof plan.pages[0])) {
        return false;
    }
    std::size_t steps = plan.pages.size() + plan.labels.size(); // more than are there are none
    for (std::optional<PagesAnswer> answer = conversation.next(); answer; answer = conversation.next()) {
        if (answer->kind == PagesAnswer::Working && steps > 0) {
            --steps;
        } else if (answer->kind == PagesAnswer::Piece) {
            const QByteArray piece = conversation.takeBytes(answer->length);
            if (piece.isEmpty() || !file.write(piece, problem)) {
                return false;
            }
        } else if (answer->kind == PagesAnswer::Whole) {
            conversation.end();
            return file.end(problem);
        } else if (answer->kind == PagesAnswer::Failed) {
            const QByteArray reason = conversation.takeBytes(answer->length);
            conversation.end();
            const bool isOpen = answer->fault > PagesAnswer::Damaged || answer->document >= pdfs.size();
            *problem = isOpen ? Problem{Problem::BadDocument, plan.failure.arg(textOf(reason))}
                              : openingProblem(answer->fault, harmless(pdfs[answer->document]), reason);
            return false;
        } else {
            return false;
        }
    }
    return false;
}

PagesPlaced placedWord(const PlacedPage &placed, const QTransform &toPdf)
{
    const QTransform &to = placed.place;
    const QRectF clip = placed.clip.isEmpty() ? QRectF() : toPdf.mapRect(placed.clip);
    return {static_cast<std::uint32_t>(placed.document),
            placed.page,
            {to.m11(), to.m12(), to.m21(), to.m22(), to.dx(), to.dy()},
            {clip.left(), clip.top(), clip.width(), clip.height()}};
}

bool PdfWorker::layOut(const LabelPlan &plan, const QStringList &pdfs, RasterShift shift, const QString &path,
                       const std::atomic<bool> &stop, Problem *error)
{
    const QSizeF size = plan.page.sizePt;
    // From points of a label, y down, to those of its page.
    const QTransform toPdf(1, 0, 0, -1, 0, size.height() + shift.downPt);
    Plan words;
    for (const Label &label : plan.labels) {
        words.labels.push_back(static_cast<std::uint32_t>(label.size()));
        for (const PlacedPage &placed : label) {
            words.pages.push_back(placedWord(placed, toPdf));
        }
    }
    words.question = {PagesQuestion::LayOut,
                      static_cast<std::uint32_t>(pdfs.size()),
                      static_cast<std::uint32_t>(words.labels.size()),
                      static_cast<std::uint32_t>(words.pages.size()),
                      size.width(),
                      size.height(),
                      shift.downPt};
    words.failure = Texts::tr("The labels cannot be laid out (%1): see that the document is whole and that there is "
                              "room for temporary files.");
    return make(words, pdfs, path, stop, error);
}

bool PdfWorker::choose(const std::vector<ChosenPage> &pages, const QStringList &pdfs, const QString &path,
                       const std::atomic<bool> &stop, Problem *error)
{
    Plan words;
    std::transform(pages.begin(), pages.end(), std::back_inserter(words.pages), [](const ChosenPage &chosen) {
        PagesPlaced page;
        page.document = static_cast<std::uint32_t>(chosen.document);
        page.page = chosen.page;
        return page;
    });
    words.question.kind = PagesQuestion::Choose;
    words.question.documents = static_cast<std::uint32_t>(pdfs.size());
    words.question.pages = static_cast<std::uint32_t>(words.pages.size());
    words.failure = Texts::tr("The chosen pages cannot be put together (%1): see that the document is whole and that "
                              "there is room for temporary files.");
    return make(words, pdfs, path, stop, error);
}

} // namespace tapeprint::job
