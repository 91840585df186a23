// SPDX-License-Identifier: Apache-2.0
// Presets are read when they are looked at, because other programs change them too, and written away from the window's
// thread.
#include "dialog/PresetRow.h"

#include "dialog/ButtonIcons.h"
#include "dialog/MenuButton.h"
#include "dialog/PopUp.h"
#include "dialog/PresetNameDialog.h"
#include "job/LastSettings.h"
#include "job/PresetOptions.h"

#include <QAction>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

constexpr int shownLetters = 18;

using Kind = PresetRow::Choice::Kind;

bool isSameName(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

QString textOf(const PresetRow::Choice &choice)
{
    switch (choice.kind) {
    case Kind::Queue:
        return PresetRow::tr("Printer's Defaults");
    case Kind::LastTime:
        return PresetRow::tr("As Last Time");
    case Kind::Preset:
        break;
    }
    return choice.name;
}

} // namespace

PresetRow::PresetRow(OptionsToSave optionsToSave, QWidget *parent)
    : QWidget(parent), mOptionsToSave(std::move(optionsToSave))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    mPopUp = new PopUp(this);
    mPopUp->setObjectName(QStringLiteral("preset"));
    // It wishes for no more: the column that it stands in is as wide as the one below, also where that is narrow.
    mPopUp->setMinimumWidth(QFontMetrics(mPopUp->font()).averageCharWidth() * shownLetters);
    mPopUp->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *label = new QLabel(tr("Pre&set:"), this);
    label->setBuddy(mPopUp);
    mMenuButton = new MenuButton(this);
    mMenuButton->setObjectName(QStringLiteral("presetMenu"));
    mMenuButton->setText(QStringLiteral("…"));
    mMenuButton->setShowsArrow(false);
    mMenuButton->setToolTip(tr("Save, rename or delete presets"));
    mMenuButton->setAccessibleName(mMenuButton->toolTip());
    layout->addWidget(label);
    layout->addWidget(mPopUp, 1);
    layout->addWidget(mMenuButton);
    makeMenu();
    connect(mPopUp, &QComboBox::activated, this, &PresetRow::pick);
}

void PresetRow::makeMenu()
{
    auto *menu = new QMenu(mMenuButton);
    const auto add = [this, menu](const QString &text, const QString &name, void (PresetRow::*act)()) {
        QAction *action = menu->addAction(text, this, act);
        action->setObjectName(name);
        return action;
    };
    mSaveAs = add(tr("&Save as…"), QStringLiteral("presetSaveAs"), &PresetRow::saveAs);
    mSaveOver = add(tr("Save &over"), QStringLiteral("presetSaveOver"), &PresetRow::saveOver);
    mRename = add(tr("&Rename…"), QStringLiteral("presetRename"), &PresetRow::rename);
    mDelete = add(tr("&Delete…"), QStringLiteral("presetDelete"), &PresetRow::remove);
    menu->addSeparator();
    mMakeDefault = add(tr("&Make default"), QStringLiteral("presetMakeDefault"), &PresetRow::makeDefault);
    menu->setToolTipsVisible(true);
    mMakeDefault->setToolTip(tr("Print with it when no printer is named"));
    mMenuButton->setMenu(menu);
}

void PresetRow::showQueue(const QString &queue, const QString &instance, const QStringList &notices)
{
    mQueue = queue;
    mState = {instance.isEmpty() ? Choice() : Choice{Kind::Preset, instance}, std::nullopt};
    mOpenedWith = mState;
    mIsAsOpened = true;
    mNotices = notices;
    setEnabled(!queue.isEmpty());
    setToolTip(queue.isEmpty() ? tr("Presets are kept for a print queue, and here is none.") : QString());
    reload();
}

void PresetRow::showLaidDown(const Choice &choice, const QStringList &notices)
{
    mState = {choice, std::nullopt};
    mIsAsOpened = false;
    mNotices = notices;
    fill();
}

void PresetRow::revert(const QStringList &notices)
{
    mState = mOpenedWith;
    mIsAsOpened = true;
    mNotices = notices;
    fill();
}

void PresetRow::follow(const job::JobOptions &options)
{
    mCurrent = options;
    if (!mState.unchanged) {
        mState.unchanged = options;
        if (mIsAsOpened) {
            mOpenedWith = mState;
        }
    }
    showState();
}

void PresetRow::reload()
{
    job::Problem error;
    mPresets = mQueue.isEmpty() ? std::vector<job::Preset>() : job::presetsOf(mQueue, &error);
    fill();
    if (!error.isNull()) {
        mNotices.removeAll(error.sentence);
        mNotices.append(error.sentence);
    }
}

void PresetRow::fill()
{
    mChoices = {Choice()};
    for (const job::Preset &preset : mPresets) {
        mChoices.push_back({Kind::Preset, preset.name});
    }
    if (!mQueue.isEmpty() && job::lastSettings(mQueue, {})) {
        mChoices.push_back({Kind::LastTime, {}});
    }
    // What is chosen stands there, even when another program has deleted it.
    const auto isChosen = [this](const Choice &choice) {
        return choice.kind == mState.choice.kind && isSameName(choice.name, mState.choice.name);
    };
    if (std::none_of(mChoices.begin(), mChoices.end(), isChosen)) {
        mChoices.push_back(mState.choice);
    }
    const QSignalBlocker blocker(mPopUp);
    mPopUp->clear();
    for (const Choice &choice : mChoices) {
        mPopUp->addItem(textOf(choice));
    }
    const auto chosen = std::find_if(mChoices.begin(), mChoices.end(), isChosen);
    mPopUp->setCurrentIndex(static_cast<int>(chosen - mChoices.begin()));
    showState();
}

void PresetRow::showState()
{
    const bool isChanged = mState.unchanged && !job::meanTheSame(*mState.unchanged, mCurrent);
    const QString text = textOf(mState.choice);
    const QString shown = isChanged ? tr("%1 (changed)").arg(text) : text;
    if (mPopUp->currentText() != shown) {
        mPopUp->setItemText(mPopUp->currentIndex(), shown);
    }
    const job::Preset *preset = chosenPreset();
    const bool isOwn = preset != nullptr && preset->isOwn;
    const bool isWriting = mWriting.isRunning();
    mSaveAs->setEnabled(!isWriting);
    mSaveOver->setEnabled(isOwn && !isWriting);
    mRename->setEnabled(isOwn && !isWriting);
    mDelete->setEnabled(isOwn && !isWriting);
    mMakeDefault->setEnabled(mState.choice.kind != Kind::LastTime && (preset == nullptr || !preset->isDefault) &&
                             !isWriting);
}

const job::Preset *PresetRow::chosenPreset() const
{
    const auto found = std::find_if(mPresets.begin(), mPresets.end(), [this](const job::Preset &preset) {
        return mState.choice.kind == Kind::Preset && isSameName(preset.name, mState.choice.name);
    });
    return found == mPresets.end() ? nullptr : &*found;
}

void PresetRow::pick(int index)
{
    const Choice choice = mChoices.at(static_cast<std::size_t>(index));
    job::Problem error;
    Settings settings{choice, {}, {}, {}};
    if (choice.kind == Kind::Preset) {
        mPresets = job::presetsOf(mQueue, &error);
        const auto found = std::find_if(mPresets.begin(), mPresets.end(), [&choice](const job::Preset &preset) {
            return isSameName(preset.name, choice.name);
        });
        if (found == mPresets.end()) {
            fill();
            Q_EMIT problem(error.isNull() ? tr("There is no preset %1 any more.").arg(choice.name) : error.sentence);
            return;
        }
        settings.instance = found->name;
        settings.saved = found->options;
    } else {
        settings.saved = job::savedForQueue(mQueue, &error);
    }
    if (choice.kind == Kind::LastTime) {
        const QString tape = mCurrent.value(job::OptionName::pageSize);
        settings.chosen = job::lastSettings(mQueue, tape).value_or(job::JobOptions());
    }
    Q_EMIT picked(settings);
}

QStringList PresetRow::otherNames(const QString &name) const
{
    QStringList names;
    for (const job::Preset &preset : mPresets) {
        if (!isSameName(preset.name, name)) {
            names.append(preset.name);
        }
    }
    return names;
}

void PresetRow::saveAs()
{
    reload();
    auto *dialog =
        new PresetNameDialog(tr("Save Preset"), {}, otherNames({}), PresetNameDialog::TakenNames::Replace, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { save(dialog->name()); });
    dialog->open();
}

void PresetRow::saveOver()
{
    save(mState.choice.name);
}

void PresetRow::save(const QString &name)
{
    const std::optional<job::JobOptions> options = mOptionsToSave();
    if (!options) {
        return;
    }
    change([queue = mQueue, name,
            options = *options](job::Problem *error) { return job::savePreset(queue, name, options, error); },
           [this, name] {
               showLaidDown({Kind::Preset, name}, {});
           });
}

void PresetRow::rename()
{
    const QString old = mState.choice.name;
    auto *dialog =
        new PresetNameDialog(tr("Rename Preset"), old, otherNames(old), PresetNameDialog::TakenNames::Refuse, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, old] {
        const QString name = dialog->name();
        change([queue = mQueue, old, name](job::Problem *error) { return job::renamePreset(queue, old, name, error); },
               [this, old, name] {
                   for (State *state : {&mState, &mOpenedWith}) {
                       if (state->choice == Choice{Kind::Preset, old}) {
                           state->choice.name = name;
                       }
                   }
               });
    });
    dialog->open();
}

void PresetRow::remove()
{
    const QString name = mState.choice.name;
    auto *question = new QMessageBox(QMessageBox::Question, tr("Delete Preset"), {}, QMessageBox::Cancel, window());
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setTextFormat(Qt::PlainText);
    question->setText(tr("Delete the preset %1? Other programs have it, too, and will lose it.").arg(name));
    QPushButton *yes = question->addButton(tr("Delete"), QMessageBox::DestructiveRole);
    removeButtonIcons(*question);
    connect(yes, &QPushButton::clicked, this, [this, name] {
        change([queue = mQueue, name](job::Problem *error) { return job::deletePreset(queue, name, error); },
               [this, name] {
                   // The job keeps what the preset laid down, and that is not the printer's own.
                   for (State *state : {&mState, &mOpenedWith}) {
                       if (state->choice == Choice{Kind::Preset, name}) {
                           *state = {Choice(), job::JobOptions()};
                       }
                   }
                   mNotices.clear();
               });
    });
    question->open();
}

void PresetRow::makeDefault()
{
    change([queue = mQueue,
            name = mState.choice.name](job::Problem *error) { return job::makePresetDefault(queue, name, error); },
           [] {});
}

void PresetRow::change(const Write &write, const std::function<void()> &then)
{
    mWriting.start([this, write, then](const std::atomic<bool> & /*stop*/) -> BackgroundWork::Delivery {
        job::Problem error;
        const bool isDone = write(&error);
        return [this, isDone, error, then] {
            if (isDone) {
                then();
            }
            reload();
            Q_EMIT changed();
            if (!isDone) {
                Q_EMIT problem(error.sentence);
            }
        };
    });
    showState();
}

} // namespace tapeprint::dialog
