// SPDX-License-Identifier: Apache-2.0
// Numbers are shown with a decimal point, which the job needs, and taken with a comma as well.
#include "dialog/CustomFields.h"

#include "dialog/PlainText.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include <pdekit/Numbers.h>

namespace tapeprint::dialog
{

namespace
{

/// Decimals of a length that the person reads: as exact as CUPS's own floats.
constexpr int lengthDecimals = 3;
constexpr int numberDecimals = 6;

QString shortNumber(double value, int decimals)
{
    QString text = pdekit::fixedDecimals(value, decimals);
    static const QRegularExpression emptyDecimals(QStringLiteral(R"(\.?0+\z)"));
    return text.contains(u'.') ? text.remove(emptyDecimals) : text;
}

/// The word that CUPS knows a unit by, whatever the person's language calls it.
QString unitWord(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? QStringLiteral("in") : QStringLiteral("mm");
}

} // namespace

CustomFields::CustomFields(const QString &key, std::vector<job::CustomParameter> parameters, const MeasureUnit &unit,
                           QWidget *parent)
    : QWidget(parent), mUnit(unit), mParameters(std::move(parameters))
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    for (const job::CustomParameter &parameter : mParameters) {
        addField(key, parameter);
    }
    mProblem = new QLabel(this);
    mProblem->setObjectName(key + QStringLiteral("/problem"));
    mProblem->setTextFormat(Qt::PlainText);
    mProblem->setWordWrap(true);
    mProblem->hide();
    form->addRow(mProblem);
    fill();
    connect(&mUnit, &MeasureUnit::changed, this, &CustomFields::fill);
}

void CustomFields::addField(const QString &key, const job::CustomParameter &parameter)
{
    auto *place = new QWidget(this);
    auto *row = new QHBoxLayout(place);
    row->setContentsMargins({});
    Field field{new QLineEdit(place), nullptr};
    field.edit->setObjectName(key + u'/' + parameter.name);
    if (parameter.isSecret()) {
        field.edit->setEchoMode(QLineEdit::Password);
    }
    row->addWidget(field.edit, 1);
    if (parameter.isLength()) {
        field.unit = new QLabel(place);
        row->addWidget(field.unit);
    }
    connect(field.edit, &QLineEdit::editingFinished, this, &CustomFields::commit);
    auto *label = plainLabel(tr("%1:", "name of a value").arg(parameter.text), field.edit);
    label->setParent(this);
    nameByFarLabel(field.edit, *label);
    qobject_cast<QFormLayout *>(layout())->addRow(label, place);
    mFields.push_back(field);
}

QString CustomFields::textFor(const job::CustomParameter &parameter, const QString &value) const
{
    if (!parameter.isLength()) {
        return value;
    }
    const std::optional<double> points = job::pointsOfLength(value);
    return points ? shortNumber(inUnit(*points, mUnit.unit()), lengthDecimals) : value;
}

QString CustomFields::firstValue(const job::CustomParameter &parameter) const
{
    // Rounded into the limits, not out of them.
    if (parameter.isText()) {
        return {};
    }
    if (!parameter.isLength()) {
        return shortNumber(parameter.least, numberDecimals);
    }
    const double scale = std::pow(10.0, lengthDecimals);
    const double least = std::ceil(inUnit(parameter.least, mUnit.unit()) * scale - 1.0 / scale) / scale;
    return shortNumber(least, lengthDecimals) + unitWord(mUnit.unit());
}

QString CustomFields::valueOf(std::size_t index) const
{
    const job::CustomParameter &parameter = mParameters[index];
    QString text = mFields[index].edit->text();
    if (parameter.isText()) {
        return text;
    }
    QString number = text.trimmed();
    number.replace(u',', u'.');
    return parameter.isLength() && !number.isEmpty() ? number + unitWord(mUnit.unit()) : number;
}

bool CustomFields::isEdited() const
{
    return std::any_of(mFields.begin(), mFields.end(), [](const Field &field) { return field.edit->isModified(); });
}

void CustomFields::fill()
{
    const QStringList values = job::customValuesIn(mParameters, mShown);
    for (std::size_t i = 0; i < mFields.size(); ++i) {
        const job::CustomParameter &parameter = mParameters[i];
        const QString &value = values.at(static_cast<qsizetype>(i));
        QLineEdit *edit = mFields[i].edit;
        const QString text = textFor(parameter, value.isNull() ? firstValue(parameter) : value);
        if (text != edit->text()) { // what is selected in one that stays is to be typed over
            edit->setText(text);
        }
        edit->setModified(false);
        if (mFields[i].unit != nullptr) {
            mFields[i].unit->setText(unitSign(mUnit.unit()));
        }
        const QString limits = job::customLimits(parameter, mUnit.unit() == LengthUnit::Inch);
        edit->setAccessibleDescription(limits);
        edit->setToolTip(plainToolTip(limits));
    }
    mProblem->hide();
}

void CustomFields::showValue(const QString &value)
{
    if (job::isCustomValue(value) && value != mShown && !isEdited()) {
        setValue(value);
    }
}

void CustomFields::setValue(const QString &value)
{
    mShown = value;
    fill();
}

void CustomFields::begin()
{
    mShown.clear();
    commit();
    takeKeys();
}

void CustomFields::takeKeys()
{
    QLineEdit *edit = mFields[mProblem->isHidden() ? 0 : mWrong].edit;
    edit->setFocus();
    edit->selectAll();
}

bool CustomFields::commit()
{
    QStringList values;
    for (std::size_t i = 0; i < mFields.size(); ++i) {
        values.append(valueOf(i));
        const QString problem = job::customProblem(mParameters[i], values.last(), mUnit.unit() == LengthUnit::Inch);
        if (!problem.isNull()) {
            mProblem->setText(
                mFields.size() == 1
                    ? problem
                    : tr("%1: %2", "name of a value, and what is wrong with it").arg(mParameters[i].text, problem));
            mProblem->show();
            mWrong = i;
            return false;
        }
    }
    mProblem->hide();
    for (const Field &field : mFields) {
        field.edit->setModified(false);
    }
    if (const QString value = job::customValue(mParameters, values); value != mShown) {
        mShown = value;
        Q_EMIT entered(value);
    }
    return true;
}

} // namespace tapeprint::dialog
