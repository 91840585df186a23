// SPDX-License-Identifier: Apache-2.0
// A path is walked from the root, a link at a time: whoever can change one step of it can change where it ends.
#include "job/RootOwned.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QFile>

#include <array>
#include <climits>

#include <sys/stat.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

constexpr int mostLinks = 40;

bool isRoots(const struct stat &status)
{
    return status.st_uid == 0 && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// What a link says; empty when it cannot be read.
QByteArray targetOf(const QByteArray &link)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t size = readlink(link.constData(), target.data(), target.size());
    return size > 0 ? QByteArray(target.data(), static_cast<qsizetype>(size)) : QByteArray();
}

QByteArrayList stepsOf(const QByteArray &path)
{
    QByteArrayList steps = path.split('/');
    steps.removeAll({});
    steps.removeAll(".");
    return steps;
}

} // namespace

bool onlyRootChanges(const QString &path)
{
    struct stat status {
    };
    if (!path.startsWith(u'/') || lstat("/", &status) != 0 || !isRoots(status)) {
        return false;
    }
    QByteArrayList steps = stepsOf(QFile::encodeName(path));
    QByteArray here; // always a real folder, without links: ".." is the folder above
    int links = 0;
    while (!steps.isEmpty()) {
        const QByteArray step = steps.takeFirst();
        if (step == "..") {
            here.truncate(qMax<qsizetype>(0, here.lastIndexOf('/')));
            continue;
        }
        const QByteArray next = here + '/' + step;
        if (lstat(next.constData(), &status) != 0) {
            return false;
        }
        if (!S_ISLNK(status.st_mode)) {
            if (!isRoots(status)) {
                return false;
            }
            here = next;
            continue;
        }
        const QByteArray target = targetOf(next);
        if (target.isEmpty() || ++links > mostLinks) {
            return false;
        }
        if (target.startsWith('/')) {
            here.clear();
        }
        steps = stepsOf(target) + steps;
    }
    return true;
}

} // namespace tapeprint::job
