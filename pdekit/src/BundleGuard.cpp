// SPDX-License-Identifier: Apache-2.0
// The marks of code that runs. A mark that nobody holds locked is one whose program ended within that code; one that
// has been locked for long is one whose program waits for code that hangs.
#include "pdekit/BundleLoading.h"

#include "BundleModule.h"
#include "LoadingTexts.h"

#include <QByteArrayList>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <chrono>
#include <condition_variable>
#include <ctime>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pdekit
{

namespace
{

/// After so many ends in a row a bundle is left alone until it changes.
constexpr int mostEnds = 2;
/// After so long the person is told what the program waits for. A plug-in takes a tenth of a second.
constexpr std::chrono::seconds silence(5);
/// After so long no other program waits for the same code.
constexpr std::time_t patienceSeconds = 60;

/// What a mark says: how often in a row a program ended in that code, and whether it was begun since.
struct Mark {
    int ends = 0;
    bool isRunning = false;
    QByteArray module; ///< which state of the module this tells of

    /// A file that is none of ours, or that tells of another state of the module, says nothing.
    static Mark read(int file, const QByteArray &module)
    {
        std::array<char, 256> bytes{};
        const ssize_t size = pread(file, bytes.data(), bytes.size(), 0);
        const QByteArrayList lines = QByteArray(bytes.data(), size > 0 ? static_cast<int>(size) : 0).split('\n');
        if (lines.size() < 3 || lines[2] != module) {
            return {0, false, module};
        }
        return {lines[0].toInt(), lines[1] == running, module};
    }

    bool write(int file) const
    {
        const QByteArray bytes =
            QByteArray::number(ends) + '\n' + (isRunning ? running : "left out") + '\n' + module + '\n';
        return ftruncate(file, 0) == 0 && pwrite(file, bytes.constData(), static_cast<size_t>(bytes.size()), 0) ==
                                              static_cast<ssize_t>(bytes.size());
    }

private:
    static constexpr const char *running = "running";
};

/// Tells one state of a module from every other.
QByteArray stampOf(const QString &module)
{
    struct stat status {
    };
    if (stat(QFile::encodeName(module).constData(), &status) != 0) {
        return {};
    }
    return QByteArray::number(static_cast<qulonglong>(status.st_ino)) + ' ' +
           QByteArray::number(static_cast<qlonglong>(status.st_size)) + ' ' +
           QByteArray::number(static_cast<qlonglong>(status.st_mtim.tv_sec)) + '.' +
           QByteArray::number(static_cast<qlonglong>(status.st_mtim.tv_nsec));
}

/// The folder of the marks; empty when the person has none.
QString folderOfMarks()
{
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state)) {
        const QString home = qEnvironmentVariable("HOME");
        if (!QDir::isAbsolutePath(home)) {
            return {};
        }
        state = home + QLatin1String("/.local/state");
    }
    return state + QLatin1String("/tapeprint/plug-ins");
}

/// The file of a bundle's mark. Bundles of one name stand in several folders.
QString markOf(const QString &bundlePath, BundleGuard::Step step)
{
    const QByteArray place = QCryptographicHash::hash(bundlePath.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    return u'/' + QFileInfo(bundlePath).fileName() + u'-' + QString::fromLatin1(place) +
           (step == BundleGuard::Step::Loading ? QLatin1String("-loading") : QLatin1String("-panels"));
}

/// Whether the process that holds a mark has been within the code for long. It wrote the mark when it began.
bool isWaitedFor(int file, const QByteArray &module)
{
    struct stat status {
    };
    return fstat(file, &status) == 0 && Mark::read(file, module).isRunning &&
           std::time(nullptr) - status.st_mtim.tv_sec >= patienceSeconds;
}

/// Opens a mark and locks it. \param isHung whether another process waits for the code. \return -1 when there can be no
/// mark, or when another process is just running the code.
int lockedMark(const QByteArray &path, const QByteArray &module, bool *isHung)
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const int file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (file < 0) {
            return -1;
        }
        struct stat status {
        };
        if (flock(file, LOCK_EX | LOCK_NB) != 0 || fstat(file, &status) != 0) {
            *isHung = isWaitedFor(file, module);
            close(file);
            return -1;
        }
        if (status.st_nlink > 0) {
            return file;
        }
        close(file); // between the two calls the code came back elsewhere, and this mark was taken away
    }
    return -1;
}

} // namespace

/// Says what the program waits for, in a thread of its own: the program's own does not come back. What it says is made
/// beforehand: the code may hold whatever lock there is.
class BundleGuard::Waiting
{
public:
    explicit Waiting(const QString &bundlePath)
        : mWords(std::string(program_invocation_short_name) + ": waiting for the plug-in " +
                 QFile::encodeName(bundlePath).toStdString() +
                 ", which does not come back. End the program if it never does: at the next start the plug-in is left "
                 "out.\n"),
          mThread([this] { wait(); })
    {
    }
    Waiting(const Waiting &) = delete;
    Waiting &operator=(const Waiting &) = delete;
    ~Waiting()
    {
        {
            const std::lock_guard lock(mMutex);
            mIsOver = true;
        }
        mWaking.notify_one();
        mThread.join();
    }

private:
    void wait()
    {
        std::unique_lock lock(mMutex);
        if (!mWaking.wait_for(lock, silence, [this] { return mIsOver; })) {
            // Without anybody there to read it, it is not said.
            [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, mWords.data(), mWords.size());
        }
    }

    std::string mWords;
    std::mutex mMutex;
    std::condition_variable mWaking;
    bool mIsOver = false; ///< under the lock
    std::thread mThread;
};

BundleGuard::BundleGuard(const QString &bundlePath, Step step)
{
    takeMark(bundlePath, step);
    if (!mReason.isNull()) {
        return;
    }
    try {
        mWaiting = std::make_unique<Waiting>(bundlePath);
    } catch (const std::system_error &) { // no thread is to be had: the code runs unwatched
    }
}

void BundleGuard::takeMark(const QString &bundlePath, Step step)
{
    const QString folder = folderOfMarks();
    if (folder.isEmpty() || !QDir().mkpath(folder)) {
        return;
    }
    mPath = folder + markOf(bundlePath, step);
    const QByteArray module = stampOf(modulePath(bundlePath));
    bool isHung = false;
    mFile = lockedMark(QFile::encodeName(mPath), module, &isHung);
    if (isHung) {
        mReason = LoadingTexts::tr("another program has been waiting for this plug-in for a minute or more");
    }
    if (mFile < 0) {
        return;
    }
    const Mark before = Mark::read(mFile, module);
    Mark now = before;
    if (before.isRunning) { // and yet nobody holds it
        ++now.ends;
    }
    const bool isSkipped = before.isRunning || before.ends >= mostEnds;
    now.isRunning = !isSkipped;
    if (now.write(mFile) && !isSkipped) {
        return;
    }
    if (isSkipped) {
        mReason = now.ends < mostEnds
                      ? LoadingTexts::tr("the program ended while this plug-in was starting; it is tried again the "
                                         "next time")
                      : LoadingTexts::tr("the program ended while this plug-in was starting, and again the next "
                                         "time; it is tried again when the bundle has changed");
    }
    close(mFile); // the mark tells what it told
    mFile = -1;
}

BundleGuard::~BundleGuard()
{
    if (mFile >= 0) {
        QFile::remove(mPath);
        close(mFile);
    }
}

} // namespace pdekit
