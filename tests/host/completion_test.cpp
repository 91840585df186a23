// SPDX-License-Identifier: Apache-2.0
// Completions: what the program answers, and bash's function called as bash calls it.
#include "ProgramTest.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace
{

using hosttest::Outcome;

class Completions : public hosttest::Program
{
protected:
    QStringList words(const QStringList &arguments) const
    {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, testsupport::done) << outcome.messages.toStdString();
        EXPECT_EQ(outcome.messages, "");
        return QString::fromUtf8(outcome.output).split(u'\n', Qt::SkipEmptyParts);
    }

    /// What bash would offer at the end of a line.
    QStringList offered(const QString &line) const
    {
        const QString script = u"cd '"_qs + folder.path() + u"'; source '"_qs +
                               QStringLiteral(TAPEPRINT_SOURCE_DIR "/packaging/completions/tapeprint.bash") +
                               u"'; COMP_LINE=\"$1\"; COMP_POINT=${#COMP_LINE}; read -ra COMP_WORDS <<<\"$1\"; "
                               "[[ $1 == *' ' ]] && COMP_WORDS+=(''); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                               "_tapeprint; printf '%s\\n' \"${COMPREPLY[@]}\""_qs;
        QProcess bash;
        start(bash, u"bash"_qs, {u"-c"_qs, script, u"bash"_qs, programPath() + u' ' + line});
        EXPECT_TRUE(bash.waitForFinished());
        EXPECT_EQ(bash.readAllStandardError(), "");
        return QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }
};

TEST_F(Completions, OfOptionsAndChoices_AreThoseOfTheDescription)
{
    EXPECT_TRUE(words({u"--complete"_qs, u"options"_qs, u"--ppd"_qs, ppd}).contains(u"CutMedia=\tCut"_qs));
    EXPECT_EQ(words({u"--complete"_qs, u"choices:KsMargin"_qs, u"--ppd"_qs, ppd}),
              (QStringList{u"2.0\t2 mm"_qs, u"5.0\t5 mm"_qs}));
    EXPECT_EQ(words({u"--complete"_qs, u"choices:page-set"_qs}), (QStringList{u"all\t"_qs, u"even\t"_qs, u"odd\t"_qs}));
    EXPECT_TRUE(words({u"--complete"_qs, u"arguments"_qs}).contains(u"--ppd\tfile"_qs));
}

TEST_F(Completions, OfTimes_AreThoseThatTheProgramTakes)
{
    const QStringList times = words({u"--complete"_qs, u"times"_qs});
    EXPECT_EQ(times.size(), 8);
    for (const QString &time : times) {
        EXPECT_EQ(run({u"-H"_qs, time.chopped(1), u"--version"_qs}).status, testsupport::done);
    }
}

TEST_F(Completions, WithoutAServer_AreNone)
{
    EXPECT_EQ(words({u"--complete"_qs, u"queues"_qs}), QStringList());
}

TEST_F(Completions, OfBash_FollowThePrinterOfTheLine)
{
    EXPECT_EQ(offered(u"--no-d"_qs), QStringList{u"--no-dialog"_qs});
    EXPECT_EQ(offered(u"--ppd test.ppd -o KsMar"_qs), QStringList{u"KsMargin="_qs});
    EXPECT_EQ(offered(u"--ppd test.ppd -o KsMargin="_qs), (QStringList{u"2.0"_qs, u"5.0"_qs}));
    EXPECT_EQ(offered(u"--ppd test.ppd -o KsMargin=5"_qs), QStringList{u"5.0"_qs});
    EXPECT_EQ(offered(u"--ppd te"_qs), QStringList{u"test.ppd"_qs});
    EXPECT_EQ(offered(u"lab"_qs), QStringList{u"label.txt"_qs});
    EXPECT_EQ(offered(u"-t lab"_qs), QStringList());
    EXPECT_EQ(offered(u"-H h"_qs), QStringList{u"hold"_qs});
    EXPECT_EQ(offered(u"-d "_qs), QStringList()); // without a server there is no queue, and a file is none
}

TEST_F(Completions, OfBash_ReadTheLineAsBashDoes)
{
    hosttest::writeFile(folder, u"my printer.ppd"_qs, hosttest::testPpd());
    for (const QString &printer : {u"--ppd=test.ppd"_qs, u"--ppd ~/test.ppd"_qs, u"--ppd 'my printer.ppd'"_qs,
                                   u"--ppd my\\ printer.ppd"_qs, u"-t 'a b' --ppd test.ppd"_qs}) {
        EXPECT_EQ(offered(printer + u" -o KsMar"_qs), QStringList{u"KsMargin="_qs}) << printer.toStdString();
    }
    EXPECT_EQ(offered(u"--ppd=te"_qs), QStringList{u"test.ppd"_qs});
    // Behind a quote no sign is escaped, and in the middle of one nothing is a file.
    EXPECT_EQ(offered(u"--ppd test.ppd -o \"KsMargin=5"_qs), QStringList{u"KsMargin=5.0"_qs});
    EXPECT_EQ(offered(u"--ppd test.ppd -o KsMargin=\"5"_qs), QStringList{u"5.0"_qs});
    EXPECT_EQ(offered(u"-t 'a lab"_qs), QStringList());
}

/// What fish would offer at the end of a line, where there is a fish.
TEST_F(Completions, OfFish_FollowThePrinterOfTheLine)
{
    if (QStandardPaths::findExecutable(u"fish"_qs).isEmpty()) {
        GTEST_SKIP() << "there is no fish";
    }
    const auto offeredByFish = [this](const QString &line) {
        QProcess fish;
        start(fish, u"fish"_qs,
              {u"-c"_qs, u"set -p PATH '"_qs + QFileInfo(programPath()).path() + u"'; source '"_qs +
                             QStringLiteral(TAPEPRINT_SOURCE_DIR "/packaging/completions/tapeprint.fish") +
                             u"'; complete -C 'tapeprint "_qs + line + u"'"_qs});
        EXPECT_TRUE(fish.waitForFinished());
        EXPECT_EQ(fish.readAllStandardError(), "");
        return QString::fromUtf8(fish.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    };
    EXPECT_EQ(offeredByFish(u"--no-d"_qs), QStringList{u"--no-dialog"_qs});
    for (const QString &printer :
         {u"--ppd test.ppd"_qs, u"--ppd=test.ppd"_qs, u"--ppd ~/test.ppd"_qs, u"--ppd=~/test.ppd"_qs}) {
        EXPECT_EQ(offeredByFish(printer + u" -o KsMargin=5"_qs), QStringList{u"KsMargin=5.0\t5 mm"_qs})
            << printer.toStdString();
    }
    EXPECT_EQ(offeredByFish(u"--ppd=te"_qs), QStringList{u"--ppd=test.ppd"_qs});
    EXPECT_EQ(offeredByFish(u"-t lab"_qs), QStringList());
}

/// What zsh offers at the end of a line that is typed, where there is a zsh.
TEST_F(Completions, OfZsh_FollowThePrinterOfTheLine)
{
    if (QStandardPaths::findExecutable(u"zsh"_qs).isEmpty()) {
        GTEST_SKIP() << "there is no zsh";
    }
    hosttest::writeFile(folder, u"my printer.ppd"_qs, hosttest::testPpd());
    variables.insert(variables.end(),
                     {{u"TERM"_qs, u"vt100"_qs},
                      {u"PATH"_qs, QFileInfo(programPath()).path() + u':' + qEnvironmentVariable("PATH")}});
    // What is typed, what is offered, and how the line goes on.
    struct Line {
        QString typed;
        QStringList offered;
        QString more;
    };
    std::vector<Line> lines{{u"--no-d"_qs, {u"--no-dialog"_qs}, u"ialog "_qs},
                            {u"--ppd=te"_qs, {u"test.ppd"_qs}, u"st.ppd "_qs},
                            {u"-H h"_qs, {u"hold"_qs}, u"old "_qs},
                            {u"lab"_qs, {u"label.txt"_qs}, u"el.txt "_qs},
                            {u"-t lab"_qs, {}, {}}};
    for (const QString &printer :
         {u"--ppd=test.ppd"_qs, u"--ppd ~/test.ppd"_qs, u"--ppd 'my printer.ppd'"_qs, u"-t 'a b' --ppd test.ppd"_qs}) {
        lines.push_back({printer + u" -o KsMar"_qs, {u"KsMargin="_qs}, u"gin="_qs});
    }
    // A quote that is open is none of the option's name.
    for (const QString &option : {u"KsMargin=5"_qs, u"\"KsMargin=5"_qs}) {
        lines.push_back(
            {u"--ppd test.ppd -o "_qs + option, {u"5.0"_qs}, option.startsWith(u'"') ? u".0\" "_qs : u".0 "_qs});
    }
    const QString result = folder.filePath(u"offered"_qs);
    QStringList arguments{u"-f"_qs, QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/host/fixtures/complete.zsh"),
                          QStringLiteral(TAPEPRINT_SOURCE_DIR "/packaging/completions"), result};
    for (const Line &line : lines) {
        arguments.append(u"tapeprint "_qs + line.typed);
    }
    QProcess zsh;
    start(zsh, u"zsh"_qs, arguments);
    EXPECT_TRUE(zsh.waitForFinished(60000));
    EXPECT_EQ(zsh.exitCode(), 0) << zsh.readAllStandardError().toStdString();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        QFile file(result + u'.' + QString::number(i + 1));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << lines[i].typed.toStdString();
        EXPECT_EQ(QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts),
                  lines[i].offered + QStringList{u"tapeprint "_qs + lines[i].typed + lines[i].more});
    }
}

/// A shell that is not on the machine reads nothing; the other two are tried where they are.
TEST_F(Completions, OfTheOtherShells_AreReadByThem)
{
    const std::vector<std::pair<QString, QString>> files{{u"zsh"_qs, u"_tapeprint"_qs},
                                                         {u"fish"_qs, u"tapeprint.fish"_qs}};
    for (const auto &[shell, file] : files) {
        if (QStandardPaths::findExecutable(shell).isEmpty()) {
            continue;
        }
        QProcess process;
        start(process, shell, {u"-n"_qs, QStringLiteral(TAPEPRINT_SOURCE_DIR "/packaging/completions/") + file});
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    }
}

} // namespace
