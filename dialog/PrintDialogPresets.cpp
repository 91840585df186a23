// SPDX-License-Identifier: Apache-2.0
// What the window does about presets: it lays a chosen one down on a job opened anew, and hands over what is to be
// saved.
#include "dialog/PaperMenu.h"
#include "dialog/PresetRow.h"
#include "dialog/PrintDialog.h"
#include "job/LastSettings.h"
#include "job/PageLayout.h"
#include "job/PresetOptions.h"
#include "job/Presets.h"

#include <QCheckBox>

namespace tapeprint::dialog
{

PresetRow *PrintDialog::makePresetRow()
{
    auto *row = new PresetRow([this] { return optionsToSave(); }, this);
    connect(row, &PresetRow::picked, this, &PrintDialog::pickPreset);
    connect(row, &PresetRow::changed, this, &PrintDialog::follow);
    connect(row, &PresetRow::problem, this, &PrintDialog::tellProblem);
    return row;
}

void PrintDialog::showPresets()
{
    const std::optional<job::PrintQueue> &queue = mJob.destination().queue;
    mPresetRow->showQueue(queue ? queue->name : QString(), queue ? queue->instance : QString(), presetNotices());
}

QStringList PrintDialog::presetNotices() const
{
    const std::optional<job::PrintQueue> &queue = mJob.destination().queue;
    return queue && !queue->instance.isEmpty() ? job::optionsThatAreGone(queue->options, mJob.ppd()) : QStringList();
}

void PrintDialog::pickPreset(const PresetRow::Settings &settings)
{
    if (mPanels.isInCall()) { // which a panel has the loop of events run in
        constexpr int aMomentMs = 50;
        QTimer::singleShot(aMomentMs, this, [this, settings] { pickPreset(settings); });
        return;
    }
    // What belongs to the document stays. As last time it is as it was asked for at first, and so are the copies.
    const bool isLastTime = settings.choice.kind == PresetRow::Choice::Kind::LastTime;
    job::JobOptions asked = job::optionsOfDocument(isLastTime ? mSetup.request.options : mJob.options());
    for (const auto &[name, value] : settings.chosen.entries()) {
        asked.set(name, value);
    }
    if (settings.saved.contains(job::OptionName::copies)) {
        asked.remove(job::OptionName::copies); // the preset says how many
    }
    const int shown = mCurrentPage;
    removeOwnPages();
    mPanels.reopen(settings.instance, settings.saved, asked);
    showWhetherTape();
    mPapers->fill();
    makePages();
    settlePanels();
    showPages(shown);
    mFittedLengthMm = 0.0;
    mKeepFitting->setChecked(job::layoutChoicesOf(mJob.options()).fitLength);
    mPresetRow->showLaidDown(settings.choice, presetNotices());
    follow();
}

void PrintDialog::followInThePresets()
{
    job::JobOptions options = job::optionsForPreset(mPanels.currentOptions(), mJob.ppd());
    if (job::layoutChoicesOf(options).fitLength) {
        options.remove(mJob.tape().lengthOption); // it follows from the document
    }
    mPresetRow->follow(options);
}

std::optional<job::JobOptions> PrintDialog::optionsToSave()
{
    job::Problem error;
    if (!mPanels.saveValues(&error)) {
        tellProblem(error.sentence);
        return std::nullopt;
    }
    return job::withoutGone(job::optionsForPreset(mJob.options(), mJob.ppd()), mJob.ppd());
}

/// Done away from the window's thread, when the job was printed. \return by the function: whether they are kept.
std::function<bool()> PrintDialog::keepingForNextTime() const
{
    if (!mJob.destination().queue) {
        return [] { return true; };
    }
    return [queue = mJob.destination().queue->name, tape = mJob.options().value(job::OptionName::pageSize),
            options = job::optionsForNextTime(mJob.options(), mJob.ppd())] {
        // The label is printed; that the next time begins elsewhere does not keep the window open. The program says so.
        job::Problem ignored;
        return job::keepLastSettings(queue, tape, options, &ignored);
    };
}

} // namespace tapeprint::dialog
