// SPDX-License-Identifier: Apache-2.0
// The drawing program stands where bundles do: found from the program's own place, in a build tree and installed. The
// document is handed to it open, so that the room it works in shows it no file at all.
#include "job/PageDrawer.h"

#include "job/DrawerProcess.h"
#include "job/Reason.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
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

QString usualFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/" TAPEPRINT_MODULE_PLACE);
}

QString programOf(const QString &folder)
{
    return folder + QLatin1String("/tapeprint-drawer");
}

ConfinedCommand commandFor(const QString &program)
{
    const QString path = QFileInfo(program).canonicalFilePath();
    ConfinedCommand command{path, {}, {path}};
    command.seesSettings = false;
#ifdef __SANITIZE_ADDRESS__
    command.mostMemory = QStringLiteral("unlimited"); // the sanitizer takes terabytes of addresses
#endif
    return command;
}

/// The process that was started before anybody asked.
struct Spare {
    std::mutex mutex;
    std::unique_ptr<DrawerProcess> process;
    QString program;
};

Spare &spare()
{
    static Spare one;
    return one;
}

std::unique_ptr<DrawerProcess> takeSpare(const QString &program)
{
    const std::lock_guard lock(spare().mutex);
    return spare().program == program ? std::move(spare().process) : nullptr;
}

/// A process that waits for its document. \param problem takes why there is none.
std::unique_ptr<DrawerProcess> startProcess(const QString &program, const std::atomic<bool> &stop, QString *problem)
{
    std::unique_ptr<DrawerProcess> process = takeSpare(program);
    if (process && process->greet(stop) == End::Whole) {
        return process;
    }
    const QFileInfo file(program);
    if (!file.isExecutable() || !file.isFile()) {
        *problem = reasonText(program + QLatin1String(": ") + qt_error_string(ENOENT));
        return nullptr;
    }
    const ConfinedCommand command = commandFor(program);
    for (const bool isTried : {false, true}) {
        const ConfinedLaunch launch = isTried ? confine(command) : confineUntried(command);
        process = DrawerProcess::start(launch);
        if (!process) {
            *problem = reasonText(qt_error_string(errno));
            return nullptr;
        }
        const End end = process->greet(stop);
        if (end == End::Whole) {
            *problem = QString(); // of the first try
            return process;
        }
        *problem = reasonText(process->messages());
        if (end == End::Stopped || !launch.confined || confinementProblem().isNull()) {
            break;
        }
    }
    return nullptr;
}

bool isOnPage(const DrawerPage::Rect &rect)
{
    const auto isUsable = [](double value) { return std::abs(value) <= mostUnits; }; // false for what is no number
    return isUsable(rect.x) && isUsable(rect.y) && isUsable(rect.width) && isUsable(rect.height);
}

QRectF rectOf(const DrawerPage::Rect &rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
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

    /// \return whether there is a process that can be asked about the document.
    bool open(QString *problem) { return mFile.open(QIODevice::ReadOnly) && hasProcess(neverStopped, problem); }

    /// Hands the document over. \return how that ended; what is not Whole ends the process.
    End readDocument(const std::atomic<bool> &stop)
    {
        End end = mProcess->ask({}, mFile.handle()) ? mProcess->take(&document, stop) : End::Broken;
        const bool isPossible =
            document.state <= DrawerDocument::Whole && document.pages >= 0 && document.pages <= mostDrawerPages;
        end = end == End::Whole && !isPossible ? End::Broken : end;
        if (end == End::Whole) {
            pages.resize(static_cast<std::size_t>(document.pages));
            end = mProcess->take(pages.data(), pages.size() * sizeof(DrawerPage), stop);
        }
        if (end != End::Whole) {
            mProcess.reset();
        }
        return end;
    }

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
            end = mProcess->ask(question) ? mProcess->take(&answer, stop) : End::Broken;
        }
        if (end == End::Whole && answer.isDrawn != 0) {
            end = takeRest(*mProcess, answer);
        }
        if (end == End::Broken) {
            mDeadly.insert(question.page);
        }
        if (end != End::Whole || DrawerProcess::living() > mostProcesses) {
            mProcess.reset();
        }
        return end == End::Whole && answer.isDrawn != 0 && !stop;
    }

    DrawerDocument document;
    std::vector<DrawerPage> pages;

private:
    bool hasProcess(const std::atomic<bool> &stop, QString *problem)
    {
        if (!mProcess) {
            mProcess = startProcess(mProgram, stop, problem);
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
        if (!hasProcess(stop, &problem)) {
            return End::Stopped; // no page's fault
        }
        return readDocument(stop);
    }

    QString mProgram;
    QFile mFile;
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
    const QString program = programOf(usualFolder());
    if (!spare().process && QFileInfo(program).isExecutable()) {
        spare().process = DrawerProcess::start(confineUntried(commandFor(program)));
        spare().program = program;
    }
}

std::unique_ptr<PageDrawer> PageDrawer::openWith(const QString &folder, const QString &path, QString *problem)
{
    *problem = QString();
    std::unique_ptr<PageDrawer> drawer(new PageDrawer);
    drawer->mConversation = std::make_unique<Conversation>(programOf(folder), path);
    Conversation &conversation = *drawer->mConversation;
    if (!conversation.open(problem) || conversation.readDocument(neverStopped) != End::Whole ||
        conversation.document.state == DrawerDocument::None) {
        return nullptr;
    }
    drawer->mIsLocked = conversation.document.state == DrawerDocument::Locked;
    for (const DrawerPage &page : std::exchange(conversation.pages, {})) {
        Page &known = drawer->mPages.emplace_back();
        if (isPossible(page)) {
            known.size = {page.width, page.height};
        }
        if (isPossible(page) && page.hasBox != 0) {
            known.box = PageBox{rectOf(page.page), rectOf(page.seen), page.turn, page.unitPt};
        }
    }
    return drawer;
}

std::unique_ptr<PageDrawer> PageDrawer::open(const QString &path, QString *problem)
{
    return openWith(usualFolder(), path, problem);
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
