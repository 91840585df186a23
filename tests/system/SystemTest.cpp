// SPDX-License-Identifier: Apache-2.0
// The program is run as built, with the bundle and the printer descriptions that were built beside it.
#include "tests/system/SystemTest.h"

#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace systemtest
{

namespace
{

constexpr int completed = 9; // job-state

std::string nameIn(const std::string &word)
{
    return word.substr(0, word.find('='));
}

} // namespace

Words tapeOptions(const FilterCall &call)
{
    static const std::array others{"Resolution", "PageSize"};
    Words words;
    for (const QByteArray &part : call.options().split(' ')) {
        const std::string word = part.toStdString();
        if (word.rfind("Ks", 0) == 0 || std::find(others.begin(), others.end(), nameIn(word)) != others.end()) {
            words.push_back(word);
        }
    }
    std::sort(words.begin(), words.end());
    return words;
}

Words panelOptionsMm(const Words &changed)
{
    // Each is the description's default. The tape is 100.0 mm long by KsTapeLength; the first resolution leaves the
    // quality as it is; no USB printer is there, so compression stays off.
    Words words{"KsCompress=KsCompressOFF", "KsInkColor=KsInkColorBlack",       "KsMargin=2.0",
                "KsPrintTapeLength=2.0",    "KsPriority=KsPriorityQuality",     "KsTapeColor=KsTapeColorWhite",
                "KsTapeLength=100.0",       "KsTapeMaterial=KsTapeMaterialOPP", "PageSize=24mm",
                "Resolution=300x300dpi"};
    for (const std::string &word : changed) {
        std::replace_if(
            words.begin(), words.end(), [&](const std::string &old) { return nameIn(old) == nameIn(word); }, word);
    }
    return words;
}

void SystemTest::SetUp()
{
    if (const QString reason = PrivateCups::reasonToSkip(); !reason.isNull()) {
        GTEST_SKIP() << reason.toStdString();
    }
    const QString problem = cups.start();
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    const QString refusal = cups.addRecordedQueue(QStringLiteral("tape"), QStringLiteral("mm"));
    ASSERT_TRUE(refusal.isNull()) << refusal.toStdString();
}

std::vector<std::pair<QString, QString>> SystemTest::variables() const
{
    auto variables = cups.clientVariables();
    variables.insert(variables.end(), moreVariables.begin(), moreVariables.end());
    return variables;
}

Outcome SystemTest::tapeprint(const QStringList &arguments, const QByteArray &input) const
{
    return runClient({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), arguments, variables(), workFolder, input});
}

std::vector<FilterCall> SystemTest::printed(const QStringList &arguments, const QByteArray &input) const
{
    return filterCallsOf(tapeprint(
        QStringList{QStringLiteral("-d"), QStringLiteral("tape"), QStringLiteral("--no-dialog")} + arguments, input));
}

std::vector<FilterCall> SystemTest::filterCallsOf(const Outcome &outcome) const
{
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    static const QRegularExpression sentence(QStringLiteral(R"(\AJob [^ ]+-(\d+) is [a-z-]+\.\n\z)"));
    const QRegularExpressionMatch match = sentence.match(QString::fromUtf8(outcome.output));
    if (!match.hasMatch()) {
        ADD_FAILURE() << "no job is named in: " << outcome.output.toStdString();
        return {};
    }
    const int id = match.captured(1).toInt();
    const std::optional<ServerJob> job = cups.waitForEnd(id);
    if (!job || job->state != completed) {
        ADD_FAILURE() << "job " << id << " was not printed:\n" << cups.errorLog().right(4000).toStdString();
        return {};
    }
    return cups.filterCalls(id);
}

QString SystemTest::ppdThatNames(const QString &bundle) const
{
    const QByteArray ppd = contentsOf(QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd"));
    return writeFile(folder.path(QStringLiteral("naming.ppd")),
                     ppd + "*APDialogExtension: \"" + bundle.toUtf8() + "\"\n");
}

QString SystemTest::documentOf(int pages) const
{
    QString path = folder.path(QStringLiteral("pages-%1.pdf").arg(pages));
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QSizeF(24.0, 100.0), QPageSize::Millimeter));
    writer.setResolution(300);
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        painter.fillRect(20, 20, 100, 100 * page, Qt::black);
        if (page < pages) {
            writer.newPage();
        }
    }
    return path;
}

} // namespace systemtest
