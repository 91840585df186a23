// SPDX-License-Identifier: Apache-2.0
// The program as a process of its own, with no print server and no display, and a printer whose filter is the test's.
#pragma once

#include "TestPrinter.h"

#include "tests/support/ExitStatuses.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <memory>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace hosttest
{

struct Outcome {
    int status = -1;
    QByteArray output;
    QByteArray messages;
};

class Program : public testing::Test
{
protected:
    /// A copy far from the build, whose own bundles would otherwise be found beside the program. The library
    /// and what reads documents stand there as they do when installed.
    static void SetUpTestSuite()
    {
        programFolder = std::make_unique<QTemporaryDir>();
        ASSERT_TRUE(QDir().mkpath(programFolder->filePath(u"bin"_qs)));
        ASSERT_TRUE(QDir().mkpath(programFolder->filePath(u"lib/tapeprint"_qs)));
        for (const QString &part :
             {u"/lib/libpdekit.so.1"_qs, u"/lib/tapeprint/tapeprint-pages"_qs, u"/lib/tapeprint/tapeprint-drawer"_qs}) {
            ASSERT_TRUE(QFile::link(QStringLiteral(TAPEPRINT_BIN_DIR "/..") + part, programFolder->path() + part));
        }
        ASSERT_TRUE(QFile::copy(QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), programPath()));
    }
    static void TearDownTestSuite() { programFolder.reset(); }
    static QString programPath() { return programFolder->filePath(u"bin/tapeprint"_qs); }

    /// Starts a process in the folder of the test, with nothing around it.
    void start(QProcess &program, const QString &path, const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name :
             {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM", "LPDEST", "PRINTER"}) {
            environment.remove(QString::fromLatin1(name));
        }
        environment.insert(u"CUPS_SERVER"_qs, folder.filePath(u"no-server.sock"_qs));
        environment.insert(u"HOME"_qs, folder.path());
        environment.insert(u"XDG_DATA_DIRS"_qs, folder.path());
        environment.insert(u"TAPEPRINT_PLUGIN_PATH"_qs, bundles);
        for (const auto &[name, value] : variables) {
            environment.insert(name, value);
        }
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder.path());
        program.start(path, arguments);
    }

    Outcome run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        QProcess program;
        start(program, programPath(), arguments);
        program.write(input);
        program.closeWriteChannel();
        Outcome outcome;
        if (program.waitForFinished(60000) && program.exitStatus() == QProcess::NormalExit) {
            outcome = {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
        }
        return outcome;
    }

    /// Fails with a status and one line on standard error that holds a text, and says nothing else.
    void expectFailure(testsupport::ExitStatus status, const QStringList &arguments, const char *part,
                       const QByteArray &input = {}) const
    {
        const Outcome outcome = run(arguments, input);
        EXPECT_EQ(outcome.status, status) << outcome.messages.toStdString();
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.messages.count('\n'), 1) << outcome.messages.toStdString();
        EXPECT_TRUE(outcome.messages.startsWith("tapeprint: ")) << outcome.messages.toStdString();
        EXPECT_TRUE(outcome.messages.contains(part)) << outcome.messages.toStdString();
    }

    static inline std::unique_ptr<QTemporaryDir> programFolder;
    QTemporaryDir folder;
    QString bundles = hosttest::goodBundles().first();
    std::vector<std::pair<QString, QString>> variables;
    QString ppd = hosttest::writeFile(folder, u"test.ppd"_qs, hosttest::testPpd());
    /// A description whose filter is no filter of CUPS: it has to be trusted.
    QString filterPpd = hosttest::writeFile(
        folder, u"filter.ppd"_qs, hosttest::testPpd("*cupsFilter: \"text/plain 0 " + filterPath().toUtf8() + "\"\n"));
    QString document = hosttest::writeFile(folder, u"label.txt"_qs, "Hello\n");

private:
    /// A filter that writes the options argument it gets, and the document.
    QString filterPath() const
    {
        QString path = hosttest::writeFile(folder, u"filter"_qs,
                                           "#!/bin/sh\nprintf 'copies=%s title=%s options=%s\\n' \"$4\" \"$3\" "
                                           "\"$5\"\nif [ -n \"$6\" ]; then cat \"$6\"; else cat; fi\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                        QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
        return path;
    }
};

inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

} // namespace hosttest
