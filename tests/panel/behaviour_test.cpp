// SPDX-License-Identifier: Apache-2.0
// Runs every worked example of docs/behaviour.md against the built panel, so that the document cannot say what the
// program does not do.
#include "PanelUnderTest.h"
#include "TextPrinting.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <functional>
#include <map>

namespace
{

/// A block of the document marked "example", with the line it begins in.
struct Example {
    int lineNumber = 0;
    QStringList lines;
};

void PrintTo(const Example &example, std::ostream *stream)
{
    *stream << "docs/behaviour.md:" << example.lineNumber;
}

std::vector<Example> examplesOfDocument()
{
    QFile file(QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/behaviour.md"));
    std::vector<Example> examples;
    if (!file.open(QIODevice::ReadOnly)) {
        return examples;
    }
    bool inside = false;
    int lineNumber = 0;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        ++lineNumber;
        if (line == QLatin1StringView("```example")) {
            inside = true;
            examples.push_back({lineNumber, {}});
        } else if (line.startsWith(QLatin1StringView("```"))) {
            inside = false;
        } else if (inside && !line.isEmpty()) {
            examples.back().lines.append(line);
        }
    }
    return examples;
}

/// Runs one example, a line after the other. The panel is made at the first line that does something.
class ExampleRun
{
public:
    void run(const QString &line)
    {
        const QString verb = line.section(QLatin1Char(' '), 0, 0);
        const QString rest = line.section(QLatin1Char(' '), 1);
        const QString first = rest.section(QLatin1Char(' '), 0, 0);
        const QString second = rest.section(QLatin1Char(' '), 1);
        const auto &table = verbs();
        const auto found = table.find(verb);
        if (found == table.end()) {
            ADD_FAILURE() << "No such line: " << line.toStdString();
            return;
        }
        mRest = rest;
        found->second(*this, first, second);
    }

private:
    using Verb = std::function<void(ExampleRun &, const QString &, const QString &)>;

    PanelUnderTest &panel()
    {
        if (mPanel == nullptr) {
            auto callback = std::make_shared<RecordingCallback>(mPpd.open());
            callback->usePaper(mPaperName, mPaperLengthMm);
            if (mTicket) {
                callback->useTicket(mTicket->first, mTicket->second);
            }
            callback->printer.deviceUri = mUri;
            mPanel = std::make_unique<PanelUnderTest>(std::move(callback));
        }
        return *mPanel;
    }

    QString localized(const QString &key) { return panel().loaded.bundle()->localizedStringForKey(key); }

    static const std::map<QString, Verb> &verbs()
    {
        static const std::map<QString, Verb> table = [] {
            std::map<QString, Verb> all = arrangingVerbs();
            all.merge(actingVerbs());
            all.merge(expectingVerbs());
            return all;
        }();
        return table;
    }

    static std::map<QString, Verb> arrangingVerbs()
    {
        return {
            {QStringLiteral("attribute"),
             [](ExampleRun &run, const QString &name, const QString &value) {
                 if (value.isEmpty()) {
                     run.mPpd.withoutAttribute(name.toUtf8());
                 } else {
                     run.mPpd.attribute(name.toUtf8(), value.toUtf8());
                 }
             }},
            {QStringLiteral("default"),
             [](ExampleRun &run, const QString &option, const QString &choice) {
                 run.mPpd.defaultChoice(option.toUtf8(), choice.toUtf8());
             }},
            {QStringLiteral("without"),
             [](ExampleRun &run, const QString &option, const QString &) { run.mPpd.withoutOption(option.toUtf8()); }},
            {QStringLiteral("paper"),
             [](ExampleRun &run, const QString &name, const QString &length) {
                 run.mPaperName = name;
                 run.mPaperLengthMm = length.toDouble();
             }},
            {QStringLiteral("ticket"),
             [](ExampleRun &run, const QString &label, const QString &ink) {
                 run.mTicket.emplace(label.toInt(nullptr, 0), ink.toInt(nullptr, 0));
             }},
            {QStringLiteral("uri"), [](ExampleRun &run, const QString &uri, const QString &) { run.mUri = uri; }},
        };
    }

    static std::map<QString, Verb> actingVerbs()
    {
        return {
            {QStringLiteral("ask"),
             [](ExampleRun &run, const QString &, const QString &) { run.panel()->supportedPPDOptionKeys(); }},
            {QStringLiteral("show"), [](ExampleRun &run, const QString &, const QString &) { run.panel().show(); }},
            {QStringLiteral("type"),
             [](ExampleRun &run, const QString &field, const QString &text) {
                 run.panel().type(field.toLatin1().constData(), text.toLatin1().constData());
             }},
            {QStringLiteral("press"),
             [](ExampleRun &run, const QString &key, const QString &) {
                 const Qt::Key code = key == QLatin1StringView("Tab") ? Qt::Key_Tab : Qt::Key_Return;
                 QTest::keyClick(run.panel().window.windowHandle(), code);
             }},
            {QStringLiteral("pick"),
             [](ExampleRun &run, const QString &control, const QString &place) {
                 if (control.endsWith(QLatin1StringView("RdBtn"))) {
                     run.panel().pickRow(control.toLatin1().constData(), place.toInt());
                 } else {
                     run.panel().pickItem(control.toLatin1().constData(), place.toInt());
                 }
             }},
            {QStringLiteral("slide"),
             [](ExampleRun &run, const QString &slider, const QString &value) {
                 pdekit::Slider *control = run.panel().slider(slider.toLatin1().constData());
                 control->setFloatValue(value.toFloat());
                 Q_EMIT control->action();
             }},
            {QStringLiteral("change-paper"),
             [](ExampleRun &run, const QString &name, const QString &length) {
                 run.panel().callback->usePaper(name, length.toDouble());
                 run.panel().dialogChanged(QStringLiteral("PageSize"), name);
             }},
            {QStringLiteral("report"),
             [](ExampleRun &run, const QString &option, const QString &choice) {
                 run.panel().callback->willChangePPDOptionKeyValue(option, choice);
                 run.panel().dialogChanged(option, choice);
             }},
            {QStringLiteral("delete-view"),
             [](ExampleRun &run, const QString &, const QString &) { delete run.panel()->panelView(); }},
            {QStringLiteral("ask-view"),
             [](ExampleRun &run, const QString &, const QString &) {
                 run.panel()->panelView()->setParent(&run.panel().window);
             }},
            {QStringLiteral("save"),
             [](ExampleRun &run, const QString &, const QString &) {
                 QCoreApplication::processEvents();
                 EXPECT_TRUE(run.panel()->saveValuesAndReturnError(nullptr));
             }},
            {QStringLiteral("print"),
             [](ExampleRun &run, const QString &, const QString &) {
                 QCoreApplication::processEvents();
                 EXPECT_TRUE(run.panel()->saveValuesAndReturnError(nullptr));
                 EXPECT_TRUE(run.panel()->shouldPrint());
             }},
        };
    }

    static std::map<QString, Verb> expectingVerbs()
    {
        return {
            {QStringLiteral("sent"),
             [](ExampleRun &run, const QString &option, const QString &choice) {
                 EXPECT_EQ(run.panel().callback->lastSent(option), choice) << option.toStdString();
             }},
            {QStringLiteral("field"),
             [](ExampleRun &run, const QString &name, const QString &text) {
                 EXPECT_EQ(run.panel().field(name.toLatin1().constData())->text(), text) << name.toStdString();
             }},
            {QStringLiteral("label"),
             [](ExampleRun &run, const QString &name, const QString &text) {
                 EXPECT_EQ(run.panel().label(name.toLatin1().constData())->text().trimmed(), text)
                     << name.toStdString();
             }},
            {QStringLiteral("item"),
             [](ExampleRun &run, const QString &name, const QString &place) {
                 EXPECT_EQ(run.panel().popUp(name.toLatin1().constData())->currentIndex(), place.toInt())
                     << name.toStdString();
             }},
            {QStringLiteral("disabled"),
             [](ExampleRun &run, const QString &name, const QString &) {
                 EXPECT_FALSE(run.panel().outlet<QWidget>(name.toLatin1().constData())->isEnabled())
                     << name.toStdString();
             }},
            {QStringLiteral("enabled"),
             [](ExampleRun &run, const QString &name, const QString &) {
                 EXPECT_TRUE(run.panel().outlet<QWidget>(name.toLatin1().constData())->isEnabled())
                     << name.toStdString();
             }},
            {QStringLiteral("unsent"),
             [](ExampleRun &run, const QString &option, const QString &) {
                 EXPECT_TRUE(run.panel().callback->sentFor(option).empty()) << option.toStdString();
             }},
            {QStringLiteral("now"),
             [](ExampleRun &run, const QString &option, const QString &value) {
                 const auto *live = dynamic_cast<const pdekit::PanelLiveValues *>(run.panel().panel.get());
                 ASSERT_NE(live, nullptr);
                 const auto values = live->currentValues();
                 EXPECT_NE(std::find(values.begin(), values.end(), std::pair(option, value)), values.end())
                     << option.toStdString();
             }},
            {QStringLiteral("alerts"), [](ExampleRun &run, const QString &count,
                                          const QString &) { EXPECT_EQ(run.panel().alerts.size(), count.toUInt()); }},
            {QStringLiteral("alert"),
             [](ExampleRun &run, const QString &key, const QString &) {
                 ASSERT_EQ(run.panel().alerts.size(), 1U);
                 EXPECT_EQ(run.panel().alerts.front().text, run.localized(key));
             }},
            {QStringLiteral("summary"),
             [](ExampleRun &run, const QString &, const QString &) {
                 const QString title = run.mRest.section(QStringLiteral(" = "), 0, 0);
                 const QString value = run.mRest.section(QStringLiteral(" = "), 1);
                 const auto summary = run.panel()->summaryInfo();
                 ASSERT_TRUE(summary.has_value());
                 const QString shown = summary->value(title).toString().replace(QChar::Nbsp, QLatin1Char(' '));
                 EXPECT_EQ(shown, value) << title.toStdString();
             }},
        };
    }

    PpdText mPpd = PpdText::withEveryOption();
    QString mPaperName = QStringLiteral("24mm");
    double mPaperLengthMm = 100.0;
    std::optional<std::pair<int, int>> mTicket;
    QString mUri = QStringLiteral("usb://Test/Tape");
    std::unique_ptr<PanelUnderTest> mPanel;
    QString mRest;
};

class WorkedExample : public testing::TestWithParam<Example>
{
};

} // namespace

TEST_P(WorkedExample, HoldsOnTheBuiltPanel)
{
    const auto isExpectation = [](const QString &line) {
        const QString verb = line.section(QLatin1Char(' '), 0, 0);
        return verb == QLatin1StringView("sent") || verb == QLatin1StringView("field") ||
               verb == QLatin1StringView("label") || verb == QLatin1StringView("item") ||
               verb == QLatin1StringView("disabled") || verb == QLatin1StringView("enabled") ||
               verb == QLatin1StringView("unsent") || verb == QLatin1StringView("now") ||
               verb.startsWith(QLatin1StringView("alert")) || verb == QLatin1StringView("summary");
    };
    const QStringList &lines = GetParam().lines;
    ASSERT_TRUE(std::any_of(lines.begin(), lines.end(), isExpectation)) << "The example shows nothing.";
    ExampleRun run;
    for (const QString &line : lines) {
        SCOPED_TRACE(line.toStdString());
        run.run(line);
    }
}

INSTANTIATE_TEST_SUITE_P(BehaviourDocument, WorkedExample, testing::ValuesIn(examplesOfDocument()),
                         [](const testing::TestParamInfo<Example> &example) {
                             return "Line" + std::to_string(example.param.lineNumber);
                         });

TEST(BehaviourDocument, HasExamples)
{
    EXPECT_GE(examplesOfDocument().size(), 25U);
}
