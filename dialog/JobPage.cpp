// SPDX-License-Identifier: Apache-2.0
// Options go by CUPS's own names. An option at its usual value is not sent at all.
#include "dialog/JobPage.h"

#include "dialog/ElidedLabel.h"
#include "dialog/MeasureUnit.h"
#include "dialog/PlainText.h"
#include "job/PageRanges.h"
#include "job/UsualOptions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <pdekit/Numbers.h>

namespace tapeprint::dialog
{

namespace
{

namespace OptionName = job::OptionName;

constexpr int leastPriority = 1;
constexpr int usualPriority = 50;
constexpr int mostPriority = 100;
constexpr int mostTextLength = 255;
/// The item of the pop-up whose value is a time. No value of the option's is it.
const QString atATime = QStringLiteral("HH:MM");

/// A field is set only when that changes it: the place of the cursor is the person's.
void setText(QLineEdit *field, const QString &text)
{
    if (field->text() != text) {
        field->setText(text);
    }
}

} // namespace

JobPage::JobPage(const job::Job &job, const QString &documentTitle, QWidget *parent) : QWidget(parent), mJob(job)
{
    auto *form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    mTitle = new QLineEdit(this);
    mTitle->setObjectName(QStringLiteral("jobTitle"));
    mTitle->setPlaceholderText(job::jobTitle(documentTitle));
    mTitle->setMaxLength(mostTextLength);
    form->addRow(tr("Title:"), mTitle);
    if (job.ppd() != nullptr) {
        addPages(form);
    }
    if (!job.destination().isFile()) {
        addQueue(form);
    }
    follow();
    // "textEdited" and its kin are the person's acts alone.
    connect(mTitle, &QLineEdit::textEdited, this, [this](const QString &text) { pick(OptionName::jobName, text); });
}

void JobPage::addPages(QFormLayout *form)
{
    auto *pages = new QWidget(this);
    auto *pagesLayout = new QVBoxLayout(pages);
    pagesLayout->setContentsMargins({});
    mPages = new QLineEdit(pages);
    mPages->setObjectName(QStringLiteral("pageRanges"));
    mPages->setPlaceholderText(tr("All"));
    mPages->setToolTip(tr("Write pages as 1-3,7"));
    mPagesProblem = new ElidedLabel(pages);
    mPagesProblem->setObjectName(QStringLiteral("pageRangesProblem"));
    mPagesProblem->hide();
    pagesLayout->addWidget(mPages);
    pagesLayout->addWidget(mPagesProblem);
    auto *label = new QLabel(tr("Pages:"), this);
    label->setBuddy(mPages);
    nameByFarLabel(mPages, *label);
    form->addRow(label, pages);

    mPageSet = new QComboBox(this);
    mPageSet->setObjectName(QStringLiteral("pageSet"));
    mPageSet->addItem(tr("Odd and even"), QString());
    mPageSet->addItem(tr("Odd only"), QStringLiteral("odd"));
    mPageSet->addItem(tr("Even only"), QStringLiteral("even"));
    form->addRow(tr("Of these:", "of the chosen pages, the odd and even ones"), mPageSet);
    mReverse = new QCheckBox(tr("Last page first"), this);
    mReverse->setObjectName(QStringLiteral("reverse"));
    form->addRow(QString(), mReverse);
    mCollate = new QCheckBox(tr("Copies one after the other"), this);
    mCollate->setObjectName(QStringLiteral("collate"));
    mCollate->setToolTip(tr("1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3"));
    form->addRow(QString(), mCollate);

    connect(mPages, &QLineEdit::textEdited, this, &JobPage::pickPages);
    connect(mPageSet, &QComboBox::activated, this,
            [this] { pick(OptionName::pageSet, mPageSet->currentData().toString()); });
    connect(mReverse, &QCheckBox::clicked, this, [this](bool reverse) {
        pick(OptionName::outputOrder, reverse ? QStringLiteral("reverse") : QStringLiteral("normal"));
    });
    connect(mCollate, &QCheckBox::clicked, this, &JobPage::pickCollating);
}

void JobPage::addQueue(QFormLayout *form)
{
    mPriority = new QSpinBox(this);
    mPriority->setLocale(numbersLocale());
    mPriority->setObjectName(QStringLiteral("jobPriority"));
    mPriority->setRange(leastPriority, mostPriority);
    mPriority->setToolTip(tr("1 is the lowest, 100 the highest"));
    form->addRow(tr("Priority:"), mPriority);

    auto *hold = new QWidget(this);
    auto *holdLayout = new QHBoxLayout(hold);
    holdLayout->setContentsMargins({});
    mHold = new QComboBox(hold);
    mHold->setObjectName(QStringLiteral("holdUntil"));
    mHold->addItem(tr("At once"), QString());
    mHold->addItem(tr("When it is released"), QStringLiteral("indefinite"));
    mHold->addItem(tr("By day"), QStringLiteral("day-time"));
    mHold->addItem(tr("In the evening"), QStringLiteral("evening"));
    mHold->addItem(tr("At night"), QStringLiteral("night"));
    mHold->addItem(tr("In the second shift"), QStringLiteral("second-shift"));
    mHold->addItem(tr("In the third shift"), QStringLiteral("third-shift"));
    mHold->addItem(tr("At the weekend"), QStringLiteral("weekend"));
    mHold->addItem(tr("At a time"), atATime);
    mHoldTime = new QTimeEdit(QTime::currentTime(), hold);
    mHoldTime->setObjectName(QStringLiteral("holdTime"));
    mHoldTime->setAccessibleName(tr("Time of printing"));
    holdLayout->addWidget(mHold, 1);
    holdLayout->addWidget(mHoldTime);
    auto *label = new QLabel(tr("Print it:", "when the job is printed"), this);
    label->setBuddy(mHold);
    nameByFarLabel(mHold, *label);
    form->addRow(label, hold);

    mBilling = new QLineEdit(this);
    mBilling->setObjectName(QStringLiteral("jobBilling"));
    mBilling->setMaxLength(mostTextLength);
    form->addRow(tr("Billing:"), mBilling);

    connect(mPriority, &QSpinBox::valueChanged, this, [this](int priority) {
        if (priority != usualPriority || mJob.options().contains(OptionName::jobPriority)) {
            pick(OptionName::jobPriority, QString::number(priority));
        }
    });
    connect(mHold, &QComboBox::activated, this, &JobPage::pickHold);
    connect(mHoldTime, &QTimeEdit::timeChanged, this, &JobPage::pickHold);
    connect(mBilling, &QLineEdit::textEdited, this, [this](const QString &text) { pick(OptionName::billing, text); });
}

void JobPage::pick(const QString &key, const QString &value)
{
    const QString text = value.trimmed();
    if (text == mJob.options().value(key)) {
        return;
    }
    if (text.isEmpty()) {
        Q_EMIT dropped(key);
    } else {
        Q_EMIT picked(key, text);
    }
}

void JobPage::showPagesProblem()
{
    const QString problem = job::pageRangesProblem(mPages->text());
    mPagesProblem->setText(problem);
    mPagesProblem->setVisible(!problem.isNull());
    mPages->setAccessibleDescription(problem);
}

void JobPage::pickPages(const QString &typed)
{
    const QString pages = job::wellFormedPageRanges(typed);
    showPagesProblem();
    if (!pages.isNull()) {
        pick(OptionName::pageRanges, pages);
    }
}

void JobPage::pickCollating(bool collated)
{
    // A copy: each change is followed at once.
    const job::JobOptions changes = job::collating(collated, mJob.options(), mJob.ppd());
    for (const auto &[name, value] : changes.entries()) {
        pick(name, value);
    }
}

void JobPage::pickHold()
{
    const QString value = mHold->currentData().toString();
    mHoldTime->setVisible(value == atATime);
    pick(OptionName::holdUntil, value == atATime ? job::holdUntilTime(mHoldTime->time()) : value);
}

QString JobPage::chosenPages() const
{
    return mJob.options().value(OptionName::pageRanges);
}

bool JobPage::isReady()
{
    if (mPages == nullptr || !job::wellFormedPageRanges(mPages->text()).isNull()) {
        return true;
    }
    mPages->setFocus();
    mPages->selectAll();
    return false;
}

void JobPage::follow()
{
    const job::JobOptions &options = mJob.options();
    if (options.value(OptionName::jobName) != mTitle->text().trimmed()) {
        setText(mTitle, options.value(OptionName::jobName));
    }
    followPages();
    followQueue();
}

void JobPage::followPages()
{
    if (mPages == nullptr) {
        return;
    }
    const job::JobOptions &options = mJob.options();
    // A list that is being typed is another text for the same pages, or none yet. What was handed in need be none.
    const QString typed = job::wellFormedPageRanges(mPages->text());
    const QString chosen = job::wellFormedPageRanges(chosenPages());
    if (!typed.isNull() && (typed != chosen || chosen.isNull())) {
        setText(mPages, chosenPages());
        showPagesProblem();
    }
    mPageSet->setCurrentIndex(static_cast<int>(job::pageSetOf(options)));
    mReverse->setChecked(job::isReversed(options));
    mCollate->setChecked(job::isCollated(options, mJob.ppd()));
}

void JobPage::followQueue()
{
    if (mPriority == nullptr) {
        return;
    }
    const job::JobOptions &options = mJob.options();
    const QSignalBlocker quiet(mPriority);
    mPriority->setValue(options.contains(OptionName::jobPriority)
                            ? pdekit::intValue(options.value(OptionName::jobPriority))
                            : usualPriority);
    if (options.value(OptionName::billing) != mBilling->text().trimmed()) {
        setText(mBilling, options.value(OptionName::billing));
    }
    followHold();
}

void JobPage::followHold()
{
    const QString value = mJob.options().value(OptionName::holdUntil);
    const std::optional<QTime> time = job::timeOfHoldUntil(value);
    const int index = mHold->findData(time ? atATime : value == u"no-hold" ? QString() : value);
    mHold->setCurrentIndex(qMax(0, index));
    mHoldTime->setVisible(time.has_value());
    if (time && job::holdUntilTime(mHoldTime->time()) != job::holdUntilTime(*time)) {
        const QSignalBlocker quiet(mHoldTime);
        mHoldTime->setTime(*time);
    }
}

} // namespace tapeprint::dialog
