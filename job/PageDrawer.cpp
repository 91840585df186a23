// SPDX-License-Identifier: Apache-2.0
// The document is handed to the program open, so that the room it works in shows it no file at all.
#include "job/PageDrawer.h"

#include "job/ConfinedProgram.h"
#include "job/DrawerWords.h"
#include "job/FileStamp.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <mutex>
#include <set>
#include <utility>

namespace tapeprint::job
{

namespace
{

using End = DrawerProcess::End;

/// Of documents that wait to be asked about. What is beyond it is started anew for each question.
constexpr int mostProcesses = 8;
/// A coordinate beyond it is on no page.
constexpr double mostUnits = 1e9;

const std::atomic<bool> neverStopped = false;

QString programOf(const QString &folder)
{
    return folder + QLatin1String("/tapeprint-drawer");
}

std::atomic<int> livingProcesses = 0;

/// What a process says of the document that it was given.
struct Opened {
    DrawerDocument document;
    std::vector<DrawerPage> pages;
};

/// Hands a document over. \return how that ended.
End giveDocument(DrawerProcess &process, int handle, const std::atomic<bool> &stop, Opened *opened)
{
    DrawerDocument &document = opened->document;
    End end = process.say(DrawerQuestion(), stop, handle);
    end = end == End::Whole ? process.take(&document, stop) : end;
    const bool isPossible =
        document.state <= DrawerDocument::Whole && document.pages >= 0 && document.pages <= mostDrawerPages;
    end = end == End::Whole && !isPossible ? End::Broken : end;
    if (end == End::Whole) {
        opened->pages.resize(static_cast<std::size_t>(document.pages));
        end = process.take(opened->pages.data(), opened->pages.size() * sizeof(DrawerPage), stop);
    }
    return end;
}

/// The process that was started before anybody asked. It may have a document already, which was measured before it is
/// drawn.
struct Spare {
    std::mutex mutex;
    std::unique_ptr<DrawerProcess> process;
    QString program;
    std::optional<FileStamp> file;
    Opened opened;

    bool has(const QFile &document) const
    {
        const std::optional<FileStamp> asked = FileStamp::ofDescriptor(document.handle(), document.fileName());
        return file && asked && file->isSameFile(*asked) && file->isUnchanged(*asked);
    }
};

Spare &spare()
{
    static Spare one;
    return one;
}

/// \param opened takes what the process has said of the document, when that is the one that it has.
std::unique_ptr<DrawerProcess> takeSpare(const QString &program, const QFile &document, std::optional<Opened> *opened)
{
    const std::lock_guard lock(spare().mutex);
    if (spare().program != program || !spare().process || (spare().file && !spare().has(document))) {
        return nullptr;
    }
    if (spare().file) {
        *opened = std::move(spare().opened);
        spare().file.reset();
    }
    return std::move(spare().process);
}

/// A process that waits for its document, or has it. \param problem takes why there is none.
std::unique_ptr<DrawerProcess> startProcess(const QString &program, const QFile &document,
                                            std::optional<Opened> *opened, QString *problem)
{
    std::unique_ptr<DrawerProcess> process = takeSpare(program, document, opened);
    if (process && process->greet(drawerGreeting, neverStopped) == End::Whole) {
        return process;
    }
    opened->reset();
    return startProgram(program, drawerGreeting, neverStopped, problem);
}

bool isOnPage(const DrawerPage::Rect &rect)
{
    const auto isUsable = [](double value) { return std::abs(value) <= mostUnits; }; // false for what is no number
    return isUsable(rect.x) && isUsable(rect.y) && isUsable(rect.width) && isUsable(rect.height);
}

bool isWithin(const DrawerRect &rect, const QSize &size)
{
    const auto isSpan = [](int from, int length, int most) {
        return from >= 0 && length >= 0 && length <= most && from <= most - length;
    };
    return isSpan(rect.x, rect.width, size.width()) && isSpan(rect.y, rect.height, size.height());
}

bool isPossible(const DrawerPage &page)
{
    constexpr int quarter = 90;
    constexpr int threeQuarters = 270;
    const bool isTurn = page.turn >= 0 && page.turn <= threeQuarters && page.turn % quarter == 0;
    return isOnPage({0.0, 0.0, page.width, page.height}) && isOnPage(page.page) && isOnPage(page.seen) && isTurn &&
           page.unitPt > 0.0 && page.unitPt <= mostUnits;
}

} // namespace

/// A document's process, and what is remembered of those before it.
class PageDrawer::Conversation
{
public:
    Conversation(const QString &program, const QString &path) : mProgram(program), mFile(path) {}
    ~Conversation() { keep(nullptr); }
    Conversation(const Conversation &) = delete;
    Conversation &operator=(const Conversation &) = delete;

    /// \return whether there is a process that can be asked about the document.
    bool open(QString *problem) { return mFile.open(QIODevice::ReadOnly) && hasProcess(problem); }

    /// Hands the document over, unless the process has it. \return how that ended; what is not Whole ends the process.
    End readDocument(const std::atomic<bool> &stop)
    {
        const End end = mOpened ? End::Whole : giveDocument(*mProcess, mFile.handle(), stop, &mOpened.emplace());
        if (end != End::Whole) {
            keep(nullptr);
        }
        return end;
    }

    /// What the process has said of the document. It is forgotten.
    Opened takeOpened() { return std::move(mOpened).value_or(Opened()); }

    /// Asks about a part of a page. \param takeRest takes what follows the first word of the answer. \return whether
    /// the page can be drawn and nobody stopped it.
    template <typename TakeRest>
    bool ask(const DrawerQuestion &question, const std::atomic<bool> &stop, const TakeRest &takeRest)
    {
        if (mDeadly.count(question.page) != 0) {
            return false;
        }
        DrawerPart answer;
        End end = isReady(stop);
        if (end == End::Whole) {
            end = mProcess->say(question, stop);
            end = end == End::Whole ? mProcess->take(&answer, stop) : end;
        }
        if (end == End::Whole && answer.isDrawn != 0) {
            end = takeRest(*mProcess, answer);
        }
        if (end == End::Broken) {
            mDeadly.insert(question.page);
        }
        if (end != End::Whole || livingProcesses > mostProcesses) {
            keep(nullptr);
        }
        return end == End::Whole && answer.isDrawn != 0 && !stop;
    }

private:
    void keep(std::unique_ptr<DrawerProcess> process)
    {
        livingProcesses += static_cast<int>(process != nullptr) - static_cast<int>(mProcess != nullptr);
        mProcess = std::move(process);
    }

    bool hasProcess(QString *problem)
    {
        if (!mProcess) {
            mOpened.reset();
            keep(startProcess(mProgram, mFile, &mOpened, problem));
        }
        return mProcess != nullptr;
    }

    /// Sees that there is a process that knows the document.
    End isReady(const std::atomic<bool> &stop)
    {
        if (mProcess) {
            return End::Whole;
        }
        QString problem;
        if (!hasProcess(&problem)) {
            return End::Stopped; // no page's fault
        }
        return readDocument(stop);
    }

    QString mProgram;
    QFile mFile;
    std::optional<Opened> mOpened;
    std::unique_ptr<DrawerProcess> mProcess; ///< null when there is none for the moment
    std::set<int> mDeadly;                   ///< pages that a process has died of
};

namespace
{

DrawerQuestion questionOf(DrawerQuestion::Kind kind, int page, const PageDrawer::Part &part)
{
    const QRect &dots = part.dots;
    return {kind, page, {dots.x(), dots.y(), dots.width(), dots.height()}, part.dotsPerUnit, part.isSmooth ? 1U : 0U,
            0};
}

} // namespace

PageDrawer::PageDrawer() = default;

PageDrawer::~PageDrawer() = default;

void PageDrawer::prepare()
{
    const std::lock_guard lock(spare().mutex);
    const QString program = programOf(moduleFolder());
    if (!spare().process || spare().file) { // nobody has come to draw what was measured
        spare().process = startAhead(program);
        spare().program = program;
        spare().file.reset();
    }
}

std::optional<std::vector<PageBox>> PageDrawer::measureAhead(const QString &path, const std::atomic<bool> &stop)
{
    QFile file(path);
    std::unique_ptr<DrawerProcess> process;
    {
        const std::lock_guard lock(spare().mutex);
        if (spare().file || !file.open(QIODevice::ReadOnly)) {
            return std::nullopt; // it waits for who draws the document that it has
        }
        process = std::move(spare().process);
    }
    Opened opened;
    if (!process || process->greet(drawerGreeting, stop) != End::Whole ||
        giveDocument(*process, file.handle(), stop, &opened) != End::Whole) {
        return std::nullopt;
    }
    std::vector<PageBox> boxes(opened.pages.size());
    std::transform(opened.pages.begin(), opened.pages.end(), boxes.begin(), boxOf);
    const bool hasAll = !boxes.empty() && opened.document.boxes == opened.document.pages;
    const std::lock_guard lock(spare().mutex);
    spare().process = std::move(process);
    spare().file = FileStamp::ofDescriptor(file.handle(), path);
    spare().opened = std::move(opened);
    return hasAll ? std::optional(std::move(boxes)) : std::nullopt;
}

std::unique_ptr<PageDrawer> PageDrawer::openWith(const QString &folder, const QString &path, QString *problem)
{
    *problem = QString();
    std::unique_ptr<PageDrawer> drawer(new PageDrawer);
    drawer->mConversation = std::make_unique<Conversation>(programOf(folder), path);
    Conversation &conversation = *drawer->mConversation;
    if (!conversation.open(problem) || conversation.readDocument(neverStopped) != End::Whole) {
        return nullptr;
    }
    const Opened opened = conversation.takeOpened();
    if (opened.document.state == DrawerDocument::None) {
        return nullptr;
    }
    drawer->mIsLocked = opened.document.state == DrawerDocument::Locked;
    for (const DrawerPage &page : opened.pages) {
        Page &known = drawer->mPages.emplace_back();
        if (isPossible(page)) {
            known.size = {page.width, page.height};
        }
        if (isPossible(page) && page.hasBox != 0) {
            known.box = boxOf(page);
        }
    }
    return drawer;
}

std::unique_ptr<PageDrawer> PageDrawer::open(const QString &path, QString *problem)
{
    return openWith(moduleFolder(), path, problem);
}

QSizeF PageDrawer::size(int page) const
{
    return page >= 0 && page < count() ? mPages[static_cast<std::size_t>(page)].size : QSizeF();
}

std::optional<PageBox> PageDrawer::box(int page) const
{
    return page >= 0 && page < count() ? mPages[static_cast<std::size_t>(page)].box : std::nullopt;
}

QImage PageDrawer::draw(int page, const Part &part, const std::atomic<bool> &stop)
{
    QImage image;
    const auto takeRows = [&](DrawerProcess &process, const DrawerPart &answer) {
        if (QSize(answer.dots.width, answer.dots.height) != part.dots.size()) {
            return End::Broken;
        }
        image = QImage(part.dots.size(), QImage::Format_RGB32);
        return image.isNull() ? End::Stopped
                              : process.take(image.bits(), static_cast<std::size_t>(image.sizeInBytes()), stop);
    };
    return mConversation->ask(questionOf(DrawerQuestion::Draw, page, part), stop, takeRows) ? image : QImage();
}

std::optional<QRect> PageDrawer::drawnOn(int page, const Part &part, const std::atomic<bool> &stop)
{
    DrawerRect drawn;
    const auto takeNothing = [&](DrawerProcess &, const DrawerPart &answer) {
        drawn = answer.dots;
        return isWithin(drawn, part.dots.size()) ? End::Whole : End::Broken;
    };
    if (!mConversation->ask(questionOf(DrawerQuestion::Find, page, part), stop, takeNothing)) {
        return std::nullopt;
    }
    const QRect dots(drawn.x, drawn.y, drawn.width, drawn.height);
    return dots.isEmpty() ? QRect() : dots.translated(part.dots.topLeft());
}

} // namespace tapeprint::job
