// SPDX-License-Identifier: Apache-2.0
// What Show Command shows, run by a shell: the server gets the job that Print sends.
#include "dialog/JobWindow.h"
#include "tests/system/SystemTest.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <numeric>

namespace
{

using namespace tapeprint;
using systemtest::FilterCall;
using systemtest::Label;
using systemtest::labelsIn;
using systemtest::Outcome;
using systemtest::tapeOptions;

/// What came of a job at its end.
struct Printed {
    QByteArray title;
    systemtest::Words options;
    QByteArray bytes;

    int labels() const
    {
        const std::vector<Label> all = labelsIn(bytes);
        return std::accumulate(all.begin(), all.end(), 0,
                               [](int sum, const Label &label) { return sum + label.copies; });
    }
};

class ShownCommandOnAQueue : public systemtest::SystemTest
{
protected:
    void SetUp() override
    {
        SystemTest::SetUp();
        if (!HasFatalFailure() && !IsSkipped()) {
            cups.useHere();
        }
    }

    void open(const job::JobOptions &options, const QString &title, const QString &file)
    {
        const job::FileStamps documents{*job::FileStamp::ofPath(file)};
        job::JobRequest request;
        request.queue = u"tape"_qs;
        request.options = options;
        request.documents = documents;
        window = std::make_unique<dialog::PrintDialog>(
            printJob, panels, dialog::PrintDialog::Setup{request, title, {file}, dialog::PrinterSource::server()},
            dialog::JobWindow::printing(title, {file}, documents));
        window->show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return printJob.destination().queue && button(u"print"_qs)->isEnabled(); },
                                    systemtest::patienceMs));
    }

    QPushButton *button(const QString &name) const { return window->findChild<QPushButton *>(name); }

    /// A command as it is shown. \param name of its field.
    QString shown(const QString &name)
    {
        QString command;
        QTimer::singleShot(0, window.get(), [this, &name, &command] {
            if (auto *field = window->findChild<QPlainTextEdit *>(name)) {
                field->selectAll();
                command = field->textCursor().selectedText();
            }
            window->findChild<QPlainTextEdit *>(u"tapeprintCommand"_qs)->window()->close();
        });
        QTest::mouseClick(button(u"showCommand"_qs), Qt::LeftButton);
        return command.remove(QChar(0x2060)); // which only keeps the lines from being broken
    }

    Outcome runByShell(const QString &command) const
    {
        auto environment = variables();
        environment.emplace_back(u"PATH"_qs, QStringLiteral(TAPEPRINT_BIN_DIR ":") + qEnvironmentVariable("PATH"));
        return systemtest::runClient({u"/bin/sh"_qs, {u"-c"_qs, command}, environment, workFolder});
    }

    /// Waits for the end of a job. Its number is that of its turn.
    Printed waitFor(int number) const
    {
        const auto ended = cups.waitForEnd(number);
        const std::vector<FilterCall> calls = cups.filterCalls(number);
        if (!ended || calls.size() != 1) {
            ADD_FAILURE() << "job " << number << " was not printed";
            return {};
        }
        return {calls[0].title(), tapeOptions(calls[0]), cups.printedBy(u"tape"_qs)};
    }

    job::Job printJob;
    dialog::Panels panels{printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<dialog::PrintDialog> window;
};

TEST_F(ShownCommandOnAQueue, OfEitherProgram_PrintsWhatPrintDoes)
{
    job::JobOptions options;
    for (const auto &[name, value] :
         std::vector<std::pair<QString, QString>>{{u"copies"_qs, u"2"_qs},
                                                  {u"page-ranges"_qs, u"2-4"_qs},
                                                  {u"KsTapeLength"_qs, u"75.5"_qs},
                                                  {u"KsMargin"_qs, u"5.0"_qs},
                                                  {u"KsTapeColor"_qs, u"KsTapeColorYellow"_qs}}) {
        options.set(name, value);
    }
    const QString title = u"Büro's \"new\" $HOME labels"_qs;
    ASSERT_NO_FATAL_FAILURE(open(options, title, documentOf(5)));
    const QString own = shown(u"tapeprintCommand"_qs);
    const QString lp = shown(u"lpCommand"_qs);

    const Outcome byOwn = runByShell(own);
    EXPECT_EQ(byOwn.status, 0) << own.toStdString() << '\n' << byOwn.messages.toStdString();
    const Printed first = waitFor(1);
    const Outcome byLp = runByShell(lp);
    EXPECT_EQ(byLp.status, 0) << lp.toStdString() << '\n' << byLp.messages.toStdString();
    const Printed second = waitFor(2);
    QTest::mouseClick(button(u"print"_qs), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, systemtest::patienceMs));
    const Printed third = waitFor(3);

    EXPECT_EQ(third.title, title.toUtf8());
    EXPECT_EQ(third.labels(), 6);
    EXPECT_EQ(first.title, third.title);
    EXPECT_EQ(first.options, third.options);
    EXPECT_EQ(first.bytes, third.bytes);
    // lp lays nothing out: its labels are as many, on the same tape, and look another way.
    EXPECT_EQ(second.title, third.title);
    EXPECT_EQ(second.options, third.options);
    EXPECT_EQ(second.labels(), third.labels());
}

} // namespace
