// SPDX-License-Identifier: Apache-2.0
// The document is handed to the program open, so that the room it works in shows it no file at all.
#include "job/PageDrawer.h"

#include "job/ConfinedProgram.h"
#include "job/DrawerWords.h"

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
    return process && process->greet(drawerGreeting, stop) == End::Whole
               ? std::move(process)
               : startProgram(program, drawerGreeting, stop, problem);
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
    bool open(QString *problem) { return mFile.open(QIODevice::ReadOnly) && hasProcess(neverStopped, problem); }

    /// Hands the document over. \return how that ended; what is not Whole ends the process.
    End readDocument(const std::atomic<bool> &stop)
    {
        End end = mProcess->say(DrawerQuestion(), stop, mFile.handle());
        end = end == End::Whole ? mProcess->take(&document, stop) : end;
        const bool isPossible =
            document.state <= DrawerDocument::Whole && document.pages >= 0 && document.pages <= mostDrawerPages;
        end = end == End::Whole && !isPossible ? End::Broken : end;
        if (end == End::Whole) {
            pages.resize(static_cast<std::size_t>(document.pages));
            end = mProcess->take(pages.data(), pages.size() * sizeof(DrawerPage), stop);
        }
        if (end != End::Whole) {
            keep(nullptr);
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

    DrawerDocument document;
    std::vector<DrawerPage> pages;

private:
    void keep(std::unique_ptr<DrawerProcess> process)
    {
        livingProcesses += static_cast<int>(process != nullptr) - static_cast<int>(mProcess != nullptr);
        mProcess = std::move(process);
    }

    bool hasProcess(const std::atomic<bool> &stop, QString *problem)
    {
        if (!mProcess) {
            keep(startProcess(mProgram, stop, problem));
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
    const QString program = programOf(moduleFolder());
    if (!spare().process) {
        spare().process = startAhead(program);
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
