// SPDX-License-Identifier: Apache-2.0
// Rows are made in portions of a few milliseconds, so that no description keeps the window from answering.
#include "dialog/OptionsPage.h"

#include "dialog/OptionRow.h"
#include "dialog/PlainText.h"

#include <QElapsedTimer>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

constexpr int portionMs = 15;
/// A form is laid out anew with each row that it gets: one of hundreds is made of several, each in a widget of its own.
/// Layouts within a layout are all laid out anew together.
constexpr int mostRowsOfAForm = 20;

/// Keywords of options that others show: the dialog's own controls, and the panels, which show the tape's length and
/// margin whether they announce them or not.
QSet<QString> shownElsewhere(const job::Job &job, const Panels &panels)
{
    QSet<QString> keys{job::OptionName::pageSize, job::OptionName::pageRegion, job.tape().lengthOption,
                       job.tape().marginOption};
    for (const PanelEntry &panel : panels.entries()) {
        keys.unite(QSet<QString>(panel.supportedKeys.begin(), panel.supportedKeys.end()));
    }
    return keys;
}

/// What takes the focus, in the order of the Tab key.
std::vector<QWidget *> focusable(QWidget *within)
{
    std::vector<QWidget *> found;
    for (QWidget *child : within->findChildren<QWidget *>()) {
        // A pop-up's list is a window of its own.
        if (child->window() == within->window() && (child->focusPolicy() & Qt::TabFocus) != 0 &&
            child->focusProxy() == nullptr) {
            found.push_back(child);
        }
    }
    return found;
}

} // namespace

OptionsPage::OptionsPage(const job::Job &job, const Panels &panels, const MeasureUnit &unit, QWidget *parent)
    : QWidget(parent), mJob(job), mUnit(unit), mGroups(job::optionGroups(job.ppd(), shownElsewhere(job, panels)))
{
    auto *sections = new QVBoxLayout(this);
    sections->addStretch();
    // What is the printer's comes after what is the job's.
    std::stable_partition(mGroups.begin(), mGroups.end(),
                          [](const job::OptionGroup &group) { return !group.isInstalled; });
    connect(&mMaking, &QTimer::timeout, this, &OptionsPage::makeSome);
    makeSome();
}

void OptionsPage::makeSome()
{
    QElapsedTimer time;
    time.start();
    while (!isWhole() && !time.hasExpired(portionMs)) {
        makeRow();
    }
    if (isWhole()) {
        mMaking.stop();
        Q_EMIT completed();
    } else {
        mMaking.start();
    }
}

void OptionsPage::finish()
{
    while (!isWhole()) {
        makeRow();
    }
    mMaking.stop();
}

void OptionsPage::makeRow()
{
    const job::OptionGroup &group = mGroups[mNextGroup];
    if (mNextOption == 0) {
        QString title = group.isInstalled ? tr("Installed in the printer") : group.text;
        auto *box = new QGroupBox(title.replace(u'&', QLatin1String("&&")), this);
        mSection = new QVBoxLayout(box);
        auto *sections = qobject_cast<QVBoxLayout *>(layout());
        sections->insertWidget(sections->count() - 1, box); // above the stretch
    }
    if (mNextOption % mostRowsOfAForm == 0) {
        auto *rows = new QWidget(mSection->parentWidget());
        mForm = new QFormLayout(rows);
        mForm->setContentsMargins({});
        mForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        mForm->setRowWrapPolicy(QFormLayout::WrapLongRows);
        mSection->addWidget(rows);
    }
    const job::OfferedOption &option = group.options[mNextOption];
    auto *row = new OptionRow(option, mUnit, mForm->parentWidget());
    connect(row, &OptionRow::picked, this, &OptionsPage::picked);
    // A screen reader calls a check box by its own text; the option's name is that of the group of them.
    row->setAccessibleName(option.text);
    auto *label = plainLabel(tr("%1:", "name of an option").arg(option.text), row->firstControl());
    label->setParent(mForm->parentWidget());
    if (!option.takesSeveral) {
        nameByFarLabel(row->firstControl(), *label);
    }
    mForm->addRow(label, row);
    // The page may be in the window already, where a new control would come last.
    QWidget *before = mRows.empty() ? nullptr : focusable(mRows.back()).back();
    for (QWidget *control : focusable(row)) {
        if (before != nullptr) {
            setTabOrder(before, control);
        }
        before = control;
    }
    mRows.push_back(row);
    row->follow(mJob);
    row->markConflict(mConflicts.value(row->key()));
    if (++mNextOption == group.options.size()) {
        mNextOption = 0;
        ++mNextGroup;
    }
}

void OptionsPage::follow()
{
    for (OptionRow *row : mRows) {
        row->follow(mJob);
    }
}

void OptionsPage::markConflicts(const QHash<QString, QString> &sentences)
{
    if (sentences == mConflicts) {
        return;
    }
    mConflicts = sentences;
    for (OptionRow *row : mRows) {
        row->markConflict(sentences.value(row->key()));
    }
}

void OptionsPage::commit()
{
    for (OptionRow *row : mRows) {
        row->commit();
    }
}

} // namespace tapeprint::dialog
