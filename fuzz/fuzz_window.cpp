// SPDX-License-Identifier: Apache-2.0
// Any bytes as the description of a printer that no panel belongs to: the job is opened on it, and the window's own
// controls are made of it. Nothing is invented, nothing drawn steers, and what is picked is what the job carries.
#include "fuzz/Application.h"
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "dialog/LayoutPage.h"
#include "dialog/MeasureUnit.h"
#include "dialog/OptionsPage.h"
#include "dialog/Panels.h"
#include "dialog/PaperMenu.h"
#include "job/Conflicts.h"
#include "job/CustomSizes.h"
#include "job/CustomValues.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"

#include <QComboBox>
#include <QLabel>

#include <algorithm>
#include <clocale>

#include <pdekit/Numbers.h>

using namespace tapeprint;
using fuzz::require;

namespace
{

void checkText(const QString &text)
{
    require(job::harmless(text) == text);
}

void checkTexts(const QWidget &page)
{
    for (const QComboBox *popUp : page.findChildren<const QComboBox *>()) {
        for (int row = 0; row < popUp->count(); ++row) {
            checkText(popUp->itemText(row));
        }
    }
}

/// With nothing asked for, a job carries its paper alone.
void checkUntouched(const job::JobOptions &options)
{
    for (const auto &[key, value] : options.entries()) {
        require(key == job::OptionName::pageSize && !value.isEmpty());
    }
}

/// An own value with each parameter at its least, as the page's fields take it.
QString ownValue(const std::vector<job::CustomParameter> &parameters)
{
    QStringList values;
    for (const job::CustomParameter &parameter : parameters) {
        const QString number = pdekit::fixedDecimals(parameter.least, parameter.isWhole() ? 0 : 3);
        const auto length = static_cast<qsizetype>(std::clamp(parameter.least, 1.0, 100.0));
        values.append(parameter.isText() ? QString(length, u'7') : number);
        if (!job::customProblem(parameter, values.last(), false).isNull()) {
            return {};
        }
    }
    return job::customValue(parameters, values);
}

/// An own value is an option's value, and is not shown where it is secret.
void checkOwnValue(job::Job &job, const job::OfferedOption &option)
{
    const QString value = ownValue(option.customValues);
    if (value.isNull()) {
        return;
    }
    job.changeOption(option.keyword, value);
    require(job.options().value(option.keyword) == value);
    job::markedValue(job.ppd(), option.keyword);
    const bool isSecret = std::any_of(option.customValues.begin(), option.customValues.end(),
                                      [](const job::CustomParameter &parameter) { return parameter.isSecret(); });
    require(!isSecret || job::withoutSecret(job.ppd(), option.keyword, value) != value);
}

/// Picks the last choice of each option, as the page's pop-ups do, and a value of one's own where it takes one.
void checkPicks(job::Job &job, const std::vector<job::OptionGroup> &groups)
{
    int picked = 0;
    constexpr int mostPicked = 20; // each tells every panel and finds the conflicts anew
    for (const job::OptionGroup &group : groups) {
        for (const job::OfferedOption &option : group.options) {
            checkText(option.text);
            if (!option.customValues.empty() && picked < mostPicked) {
                checkOwnValue(job, option);
            }
            if (option.choices.empty() || option.takesSeveral || ++picked > mostPicked) {
                continue;
            }
            const QString choice = option.choices.back().keyword;
            job.changeOption(option.keyword, choice);
            require(job.options().value(option.keyword) == choice);
            require(job::markedChoice(job.ppd(), option.keyword) == choice);
        }
    }
}

void checkConflicts(ppd_file_t *ppd)
{
    for (const QString &sentence : job::sentencesOf(job::conflictsOf(ppd))) {
        checkText(sentence);
    }
    const job::PpdMarks before = job::takeMarks(ppd);
    job::resolutionOf(ppd, {});
    require(job::takeMarks(ppd) == before);
}

/// What the dialog shows beside panels.
void checkWindow(job::Job &job, const dialog::Panels &panels)
{
    const dialog::MeasureUnit unit(QStringLiteral("/dev/null"));
    dialog::OptionsPage page(job, panels, unit, nullptr);
    page.finish();
    checkTexts(page);
    dialog::LayoutPage layout(job, nullptr);
    QComboBox papers;
    dialog::PaperMenu menu(papers, job, unit, nullptr);
    menu.fill();
    for (int row = 0; row < papers.count(); ++row) {
        checkText(papers.itemText(row));
    }
    checkPicks(job, job::optionGroups(job.ppd(), {}));
    page.follow();
    layout.follow();
    menu.follow();
}

/// Of a description's languages libcups keeps one: the environment's, as long as the program has set none.
bool prepare()
{
    fuzz::makeApplication();
    qputenv("LC_ALL", "de_DE.UTF-8");
    std::setlocale(LC_MESSAGES, "C");
    return true;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isReady = prepare();
    static const fuzz::MemoryFile memory;
    job::Problem error;
    job::Destination destination;
    destination.ppd = job::openPpdFile(memory.hold(data, size), &error, QStringLiteral("the description"));
    if (!isReady || destination.ppd == nullptr) {
        require(!error.sentence.isEmpty());
        checkText(error.sentence);
        return 0;
    }
    job::Job job;
    job.setLanguages({QStringLiteral("de"), QStringLiteral("fr")});
    dialog::Panels panels(job, {});
    panels.open(std::move(destination), {});
    require(panels.settle(&error));
    checkUntouched(job.options());
    job.rememberAsOpened();
    checkWindow(job, panels);
    checkConflicts(job.ppd());
    job.revert();
    checkUntouched(job.options());
    return 0;
}
