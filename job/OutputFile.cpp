// SPDX-License-Identifier: Apache-2.0
// A plain file is written without a name, which no end of the program can leave behind, and linked in when it is whole.
#include "job/OutputFile.h"

#include "job/Advice.h"
#include "job/DeathWatch.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

constexpr int mostLinks = 40;
constexpr int pollMs = 50;
/// As much as a pipe takes at once when it takes anything: a write never waits longer than poll does.
constexpr qsizetype pipePieceBytes = 4096;
/// What is taken over from a file that is replaced: no right to run as somebody else.
constexpr mode_t plainPermissions = 0777;

class Descriptor
{
public:
    explicit Descriptor(int number) : mNumber(number) {}
    ~Descriptor()
    {
        if (mNumber >= 0) {
            close(mNumber);
        }
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int number() const { return mNumber; }
    bool isOpen() const { return mNumber >= 0; }

private:
    int mNumber;
};

QString systemSays()
{
    return reasonText(qt_error_string(errno));
}

bool sayUnwritable(const QString &path, Problem *error, const QString &reason = systemSays())
{
    *error = {Problem::UnwritableOutput,
              advice(Texts::tr("The file %1 cannot be written (%2): name another."),
                     QStringLiteral("The file %1 cannot be written (%2): name another with --output or --pdf."))
                  .arg(outputName(path), reason)};
    return false;
}

bool writeWhole(int descriptor, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t step =
            write(descriptor, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
        if (step < 0 && errno != EINTR) {
            return false;
        }
        written += std::max<ssize_t>(step, 0);
    }
    return true;
}

/// The descriptor of this process that a path names; -1 for a path that names none.
int namedDescriptor(const QString &path)
{
    static const QRegularExpression form(QStringLiteral(R"(\A/(?:dev|proc/self)/fd/(\d{1,6})\z)"));
    if (path == u"-" || path == u"/dev/stdout") {
        return STDOUT_FILENO;
    }
    if (path == u"/dev/stderr") {
        return STDERR_FILENO;
    }
    const QRegularExpressionMatch match = form.match(path);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

/// Where a path leads to, through links, even when nothing is there yet.
QString followLinks(QString path)
{
    for (int i = 0; i < mostLinks && QFileInfo(path).isSymLink(); ++i) {
        path = QFile::symLinkTarget(path);
    }
    return placeOf(path);
}

std::optional<FileStamp> stampOf(const QString &path)
{
    const int descriptor = namedDescriptor(path);
    return descriptor >= 0 ? FileStamp::ofDescriptor(descriptor, path) : FileStamp::ofPath(path);
}

/// A pipe, a device, or standard output, which may be anything.
class StreamOutput : public OutputFile
{
public:
    StreamOutput(OutputTarget target, int descriptor) : mTarget(std::move(target)), mDescriptor(descriptor) {}

    bool write(const QByteArray &bytes, Problem *error) override
    {
        for (qsizetype written = 0; written < bytes.size();) {
            if (mTarget.stop != nullptr && *mTarget.stop) {
                *error = {Problem::Cancelled, Texts::tr("Printing was stopped.")};
                return false;
            }
            pollfd wanted{mDescriptor.number(), POLLOUT, 0};
            if (poll(&wanted, 1, pollMs) == 0) {
                continue;
            }
            const qsizetype piece = std::min(bytes.size() - written, pipePieceBytes);
            const ssize_t step =
                ::write(mDescriptor.number(), bytes.constData() + written, static_cast<std::size_t>(piece));
            if (step < 0 && errno != EINTR && errno != EAGAIN) {
                return sayUnwritable(mTarget.path, error);
            }
            written += std::max<ssize_t>(step, 0);
        }
        count(bytes.size());
        return true;
    }
    bool commit(Problem * /*error*/) override { return true; }

private:
    OutputTarget mTarget;
    Descriptor mDescriptor;
};

/// A pipe is opened when somebody reads from it; until then the stop flag is looked at.
std::unique_ptr<OutputFile> openStream(const OutputTarget &target, Problem *error)
{
    const int named = namedDescriptor(target.path);
    if (named >= 0) {
        const int copy = fcntl(named, F_DUPFD_CLOEXEC, 0);
        if (copy < 0) {
            sayUnwritable(target.path, error);
            return nullptr;
        }
        return std::make_unique<StreamOutput>(target, copy);
    }
    const QByteArray path = QFile::encodeName(target.path);
    int descriptor = -1;
    while ((descriptor = ::open(path.constData(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) < 0) {
        const bool waitsForReader = errno == ENXIO && QFileInfo(target.path).exists() &&
                                    S_ISFIFO(FileStamp::ofPath(target.path).value_or(FileStamp()).mode);
        if (!waitsForReader || (target.stop != nullptr && *target.stop)) {
            sayUnwritable(target.path, error);
            return nullptr;
        }
        poll(nullptr, 0, pollMs);
    }
    return std::make_unique<StreamOutput>(target, descriptor);
}

/// A name beside a file that no other has.
QByteArray nameBeside(const QByteArray &folder)
{
    return folder + "/.tapeprint-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16);
}

/// What a new file's permissions would be. The mask can only be read by setting it.
mode_t permissionsOfNewFiles()
{
    const mode_t mask = umask(S_IRWXG | S_IRWXO);
    umask(mask);
    return 0666 & ~mask;
}

/// A plain file, new or in the place of another.
class WholeOutput : public OutputFile
{
public:
    WholeOutput(const OutputTarget &target, const QString &place)
        : mShownAs(target.path), mMayReplace(target.mayReplace), mPlace(QFile::encodeName(place)),
          mFolder(QFile::encodeName(QFileInfo(place).absolutePath())), mDescriptor(openBeside())
    {
    }
    ~WholeOutput() override
    {
        if (!mName.isNull()) {
            unlink(mName.constData());
        }
    }
    WholeOutput(const WholeOutput &) = delete;
    WholeOutput &operator=(const WholeOutput &) = delete;

    bool isOpen() const { return mDescriptor.isOpen(); }

    bool write(const QByteArray &bytes, Problem *error) override
    {
        if (!writeWhole(mDescriptor.number(), bytes)) {
            return sayUnwritable(mShownAs, error);
        }
        count(bytes.size());
        return true;
    }

    bool commit(Problem *error) override
    {
        // A disk may notice only now that it is full.
        if (fdatasync(mDescriptor.number()) != 0) {
            return sayUnwritable(mShownAs, error);
        }
        takeOverPermissions();
        if (!(mMayReplace ? replace() : appear())) {
            return sayUnwritable(mShownAs, error);
        }
        return true;
    }

private:
    /// A file without a name; where the file system has no such thing, a name that a helper removes.
    int openBeside()
    {
        const int nameless = ::open(mFolder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (nameless >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL)) {
            return nameless;
        }
        mName = nameBeside(mFolder);
        mWatch = DeathWatch::removing(mName);
        const int named =
            ::open(mName.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (named < 0) {
            mName = {};
        }
        return named;
    }

    void takeOverPermissions() const
    {
        struct stat before {
        };
        if (stat(mPlace.constData(), &before) != 0) {
            fchmod(mDescriptor.number(), permissionsOfNewFiles());
            return;
        }
        // Only root gives files away; a group that cannot be kept gets no more than everybody.
        mode_t mode = before.st_mode & plainPermissions;
        const bool keepsOwner = fchown(mDescriptor.number(), before.st_uid, before.st_gid) == 0;
        if (!keepsOwner && fchown(mDescriptor.number(), static_cast<uid_t>(-1), before.st_gid) != 0) {
            mode = (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3U);
        }
        fchmod(mDescriptor.number(), mode);
    }

    bool linkTo(const QByteArray &name) const
    {
        if (!mName.isNull()) {
            return link(mName.constData(), name.constData()) == 0;
        }
        const QByteArray self = "/proc/self/fd/" + QByteArray::number(mDescriptor.number());
        return linkat(AT_FDCWD, self.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
    }

    /// Under its name unless something stands there.
    bool appear() const { return linkTo(mPlace); }

    /// In the place of whatever stands there.
    bool replace()
    {
        if (mName.isNull()) {
            if (appear()) {
                return true;
            }
            const QByteArray name = nameBeside(mFolder);
            if (errno != EEXIST || !linkTo(name)) {
                return false;
            }
            mName = name;
        }
        if (rename(mName.constData(), mPlace.constData()) != 0) {
            return false;
        }
        mName = {};
        return true;
    }

    QString mShownAs;
    bool mMayReplace;
    QByteArray mPlace;
    QByteArray mFolder;
    QByteArray mName; ///< of the file that is being written; null when it has none
    std::unique_ptr<DeathWatch> mWatch;
    Descriptor mDescriptor;
};

std::unique_ptr<OutputFile> openWhole(const OutputTarget &target, bool exists, Problem *error)
{
    const QString place = followLinks(target.path);
    if (exists && !target.mayReplace) {
        sayUnwritable(target.path, error, Texts::tr("a file of this name is there"));
        return nullptr;
    }
    // Replacing asks the folder alone: what the person may not write to is refused here.
    if (exists && access(QFile::encodeName(place).constData(), W_OK) != 0) {
        sayUnwritable(target.path, error);
        return nullptr;
    }
    auto output = std::make_unique<WholeOutput>(target, place);
    if (output->isOpen()) {
        return output;
    }
    if (exists) {
        *error = {Problem::UnwritableOutput,
                  advice(Texts::tr("The file %1 is replaced only as a whole, and nothing can be written beside it "
                                   "(%2): name another."),
                         QStringLiteral("The file %1 is replaced only as a whole, and nothing can be written beside it "
                                        "(%2): name another with --output."))
                      .arg(outputName(target.path), systemSays())};
    } else {
        sayUnwritable(target.path, error);
    }
    return nullptr;
}

} // namespace

bool isStandardOutput(const QString &path)
{
    return namedDescriptor(path) == STDOUT_FILENO;
}

QString outputName(const QString &path)
{
    return isStandardOutput(path) ? Texts::tr("standard output") : harmless(path);
}

bool mayWriteTo(const OutputTarget &target, Problem *error)
{
    const std::optional<FileStamp> there = stampOf(target.path);
    for (const FileStamp &file : target.onlyRead) {
        if (there && there->isSameFile(file)) {
            *error = {
                Problem::UnwritableOutput,
                advice(Texts::tr("The output (%1) is the same file as %2, which is only read: name another."),
                       QStringLiteral("The output (%1) is the same file as %2, which is only read: name another with "
                                      "--output."))
                    .arg(outputName(target.path),
                         file.path.isNull() ? Texts::tr("standard input") : harmless(file.path))};
            return false;
        }
    }
    return true;
}

std::unique_ptr<OutputFile> OutputFile::open(const OutputTarget &target, Problem *error)
{
    if (!mayWriteTo(target, error)) {
        return nullptr;
    }
    const std::optional<FileStamp> there = stampOf(target.path);
    const bool isStream = namedDescriptor(target.path) >= 0 || (there && !there->isPlainFile());
    return isStream ? openStream(target, error) : openWhole(target, there.has_value(), error);
}

} // namespace tapeprint::job
