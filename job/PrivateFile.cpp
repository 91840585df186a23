// SPDX-License-Identifier: Apache-2.0
// One folder a process, made when the first file is asked for, and a helper that removes it when nothing else can.
#include "job/PrivateFile.h"

#include "job/DeathWatch.h"
#include "job/PlainText.h"
#include "job/WriteFailure.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>

namespace tapeprint::job
{

namespace
{

QByteArray encodedTemporaryFolder()
{
    return QFile::encodeName(temporaryFolder());
}

/// What the system says, with the folder that it is about: the person may name another in TMPDIR.
QString aboutTheFolder(const QString &reason)
{
    return QStringLiteral("%1: %2").arg(harmless(temporaryFolder()), reason);
}

class PrivateFolder
{
public:
    PrivateFolder() = default;
    ~PrivateFolder()
    {
        if (!mPath.isNull()) {
            QDir(mPath).removeRecursively();
        }
    }
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;

    /// A new folder inside. \return null, and what the system says, when there is none to be had.
    QString makePlace(QString *error)
    {
        const QMutexLocker lock(&mMutex);
        if (mPath.isNull() && !make()) {
            *error = aboutTheFolder(qt_error_string(errno));
            return {};
        }
        QString place = QStringLiteral("%1/%2").arg(mPath, QString::number(++mPlaces));
        if (mkdir(QFile::encodeName(place).constData(), S_IRWXU) != 0) {
            *error = aboutTheFolder(qt_error_string(errno));
            return {};
        }
        return place;
    }

private:
    bool make()
    {
        QByteArray path = encodedTemporaryFolder() + "/tapeprint-XXXXXX";
        if (mkdtemp(path.data()) == nullptr) {
            return false;
        }
        mPath = QFile::decodeName(path);
        mWatch = DeathWatch::removing(path);
        return true;
    }

    QMutex mMutex;
    QString mPath;
    int mPlaces = 0;
    std::unique_ptr<DeathWatch> mWatch;
};

PrivateFolder &privateFolder()
{
    static PrivateFolder folder;
    return folder;
}

} // namespace

QString temporaryFolder()
{
    const QString given = QFile::decodeName(qgetenv("TMPDIR"));
    return given.isEmpty() ? QStringLiteral(P_tmpdir) : QDir::cleanPath(QDir::current().filePath(given));
}

std::unique_ptr<PrivateFile> PrivateFile::create(const QString &name, QString *error)
{
    const QString place = privateFolder().makePlace(error);
    if (place.isNull()) {
        return nullptr;
    }
    std::unique_ptr<PrivateFile> created(new PrivateFile(place + u'/' + name));
    if (!created->mFile.open(QIODevice::ReadWrite | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) {
        *error = aboutTheFolder(created->mFile.errorString());
        return nullptr;
    }
    return created;
}

std::unique_ptr<PrivateFile> PrivateFile::createUnnamed(const QString &otherwise, QString *error)
{
    const int handle = ::open(encodedTemporaryFolder().constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (handle < 0) {
        return create(otherwise, error); // which says what is wrong with the folder, if that is the reason
    }
    std::unique_ptr<PrivateFile> created(new PrivateFile(QStringLiteral("/proc/self/fd/%1").arg(handle)));
    created->mHasName = false;
    created->mFile.open(handle, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle); // of a handle it cannot fail
    return created;
}

bool PrivateFile::fill(const QByteArray &bytes, QString *error)
{
    if (mFile.write(bytes) == bytes.size() && mFile.flush()) {
        return true;
    }
    *error = aboutTheFolder(whyNotWritten(mFile));
    return false;
}

PrivateFile::~PrivateFile()
{
    mFile.close();
    if (!mHasName) {
        return;
    }
    QDir(QFileInfo(path()).path()).removeRecursively();
}

} // namespace tapeprint::job
