// SPDX-License-Identifier: Apache-2.0
// Runs every file of a folder through a fuzz target, without a fuzzer. A breach ends the process; a folder without a
// file, and a file that cannot be read, fail it.
#include "fuzz/Invariants.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace
{

/// \return whether the file could be read.
bool replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s cannot be read.\n", qPrintable(path));
        return false;
    }
    const QByteArray bytes = file.readAll();
    // Said before, so that the last line names the input of a breach.
    std::printf("%s: %lld bytes\n", qPrintable(path), static_cast<long long>(bytes.size()));
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
    return true;
}

} // namespace

int main(int argumentCount, char *arguments[])
{
    if (argumentCount != 2) {
        std::fputs("usage: replay SEEDS\n", stderr);
        return 1;
    }
    const QDir folder(QFile::decodeName(arguments[1]));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    if (names.isEmpty()) {
        std::fprintf(stderr, "There is no input in %s.\n", arguments[1]);
        return 1;
    }
    bool allRead = true;
    for (const QString &name : names) {
        allRead = replay(folder.filePath(name)) && allRead;
    }
    return allRead ? 0 : 1;
}
