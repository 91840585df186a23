// SPDX-License-Identifier: Apache-2.0
// Fields for an option's own value, one for each of its parameters. What a parameter does not take is refused in a
// sentence below them, and the job keeps what it has.
#pragma once

#include "dialog/MeasureUnit.h"
#include "job/CustomValues.h"

#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;

namespace tapeprint::dialog
{

class CustomFields : public QWidget
{
    Q_OBJECT

public:
    /// \param key the option's, by which the fields are named. \param unit not owned; lengths are shown and taken in
    /// it.
    CustomFields(const QString &key, std::vector<job::CustomParameter> parameters, const MeasureUnit &unit,
                 QWidget *parent);

    /// The fields show a job's value, unless the person is typing. A value that is none of its own leaves them alone.
    void showValue(const QString &value);
    /// The fields show a value, whatever the person has typed.
    void setValue(const QString &value);
    /// The person wants a value of their own: the job gets what the fields show, and the first of them the focus.
    void begin();
    /// The person is done with a field: takes over what stands there. \return whether every parameter takes it.
    bool commit();
    /// The person is led to the field that is wrong, or to the first: what stands there goes with the first key.
    void takeKeys();
    /// What the fields showed or took last.
    const QString &value() const { return mShown; }

Q_SIGNALS:
    /// A value that every parameter takes.
    void entered(const QString &value);

private:
    struct Field {
        QLineEdit *edit = nullptr;
        QLabel *unit = nullptr; ///< of lengths alone
    };

    void addField(const QString &key, const job::CustomParameter &parameter);
    void fill();
    QString textFor(const job::CustomParameter &parameter, const QString &value) const;
    QString valueOf(std::size_t index) const;
    QString firstValue(const job::CustomParameter &parameter) const;
    bool isEdited() const;

    const MeasureUnit &mUnit;
    std::vector<job::CustomParameter> mParameters;
    std::vector<Field> mFields; ///< one each
    QString mShown;             ///< the job's value that the fields show
    QLabel *mProblem = nullptr;
    std::size_t mWrong = 0; ///< the field that the problem is about
};

} // namespace tapeprint::dialog
