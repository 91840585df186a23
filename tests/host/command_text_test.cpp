// SPDX-License-Identifier: Apache-2.0
// Commands for a shell: what a shell and CUPS make of the words is what went into them.
#include "ProgramTest.h"
#include "TestPrinter.h"

#include "job/CommandText.h"
#include "job/CupsOptions.h"

#include <gtest/gtest.h>

namespace
{

using hosttest::options;
using hosttest::Outcome;
using tapeprint::job::CommandSource;
using tapeprint::job::CupsOptions;
using tapeprint::job::JobOptions;
using tapeprint::job::lpCommand;
using tapeprint::job::optionWord;
using tapeprint::job::PrintQueue;
using tapeprint::job::shellWord;
using tapeprint::job::tapeprintCommand;

TEST(ShellWord, IsReadBackByAShell)
{
    EXPECT_EQ(shellWord(u"PageSize=24mm"_qs), u"PageSize=24mm"_qs);
    EXPECT_EQ(shellWord(u""_qs), u"''"_qs);
    EXPECT_EQ(shellWord(u"it's"_qs), u"'it'\\''s'"_qs);
    for (const QString &text :
         {u"a b"_qs, u"$HOME `id` \"x\" \\n ! * ~"_qs, u"line\nline"_qs, u"''"_qs, u"ä;&|<>"_qs}) {
        QProcess shell;
        shell.start(u"sh"_qs, {u"-c"_qs, u"printf %s "_qs + shellWord(text)});
        ASSERT_TRUE(shell.waitForFinished());
        EXPECT_EQ(QString::fromUtf8(shell.readAllStandardOutput()), text);
    }
}

TEST(OptionWord, IsReadBackByCups)
{
    for (const QString &value : {u"24mm"_qs, u"two words"_qs, u"a\"b'c\\d"_qs, u"x,y"_qs, u" "_qs}) {
        CupsOptions parsed;
        parsed.parse(optionWord(u"name"_qs, value).toUtf8());
        ASSERT_EQ(parsed.count(), 1) << value.toStdString();
        EXPECT_EQ(QString::fromUtf8(parsed.begin()->value), value);
    }
}

TEST(Command, OfAQueue_NamesItAndTheDocumentsAndGivesLpWhatTheJobCarries)
{
    CommandSource source;
    source.job.queue = PrintQueue();
    source.job.queue->name = u"tape"_qs;
    source.job.queue->instance = u"fine cut"_qs;
    source.title = u"-x"_qs;
    source.files = {u"/tmp/-a.pdf"_qs, u"/tmp/b c.pdf"_qs};
    source.options = options({{u"copies"_qs, u"2"_qs}, {u"page-ranges"_qs, u"1-2"_qs}, {u"fit-length"_qs, u"true"_qs}});
    source.carried = options({{u"KsMargin"_qs, u"2.0"_qs}});
    EXPECT_EQ(tapeprintCommand(source),
              u"tapeprint --no-dialog -d 'tape/fine cut' -n 2 -P 1-2 -o fit-length=true -t -x "
              "-- /tmp/-a.pdf '/tmp/b c.pdf'"_qs);
    // The chosen pages are not laid out by lp, so it has to choose them.
    EXPECT_EQ(lpCommand(source),
              u"lp -d 'tape/fine cut' -o KsMargin=2.0 -P 1-2 -t -x -- /tmp/-a.pdf '/tmp/b c.pdf'"_qs);
    source.job.options = source.options = options({{u"page-ranges"_qs, u"4,1-2"_qs},
                                                   {u"page-set"_qs, u"odd"_qs},
                                                   {u"outputorder"_qs, u"reverse"_qs},
                                                   {u"job-name"_qs, u"Two labels"_qs}});
    EXPECT_EQ(lpCommand(source), u"lp -d 'tape/fine cut' -o KsMargin=2.0 -P 1-2,4 -o page-set=odd "
                                 "-o outputorder=reverse -t 'Two labels' -- /tmp/-a.pdf '/tmp/b c.pdf'"_qs);
    source.job.queue.reset();
    EXPECT_TRUE(lpCommand(source).isNull());
}

class ShownCommand : public hosttest::Program
{
};

TEST_F(ShownCommand, DoesTheSameJobWhenAShellRunsIt)
{
    CommandSource source;
    source.job.ppdPath = ppd;
    source.job.trustsPpd = true;
    source.title = u"it's \"one\" $title"_qs;
    source.files = {document};
    source.options = options({{u"copies"_qs, u"2"_qs},
                              {u"PageSize"_qs, u"W24"_qs},
                              {u"KsMargin"_qs, u"5.0"_qs},
                              {u"KsOwn"_qs, u"it's \"two\" \\words"_qs}});
    QProcess shell;
    start(shell, u"sh"_qs,
          {u"-c"_qs,
           u"tapeprint() { '"_qs + programPath() + u"' --show-options \"$@\"; }; "_qs + tapeprintCommand(source)});
    ASSERT_TRUE(shell.waitForFinished(60000));
    EXPECT_EQ(shell.readAllStandardError(), "");
    EXPECT_EQ(QString::fromUtf8(shell.readAllStandardOutput()),
              u"copies=2\nPageSize=W24\nKsMargin=5.0\nKsOwn=it's \"two\" \\words\n"_qs);
}

} // namespace
