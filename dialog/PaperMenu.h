// SPDX-License-Identifier: Apache-2.0
// What the pop-up of papers offers: the description's, the person's own sizes that the printer takes, and "Custom…"
// for a new one.
#pragma once

#include "dialog/MeasureUnit.h"
#include "job/CustomSizes.h"
#include "job/Job.h"

#include <QObject>
#include <QPointer>
#include <QSizeF>

#include <functional>
#include <utility>

class QComboBox;

namespace tapeprint::dialog
{

class CustomSizeSheet;

class PaperMenu : public QObject
{
    Q_OBJECT

public:
    /// \param popUp and the others are not owned.
    PaperMenu(QComboBox &popUp, const job::Job &job, const MeasureUnit &unit, QObject *parent);

    /// \param size asked when the sheet opens: what it begins with, in points. Without it, the job's page.
    void setCurrentSize(std::function<QSizeF()> size) { mCurrentSize = std::move(size); }
    /// Offers what the job's printer takes.
    void fill();
    /// The pop-up shows the job's paper.
    void follow();

Q_SIGNALS:
    /// The person picked a paper or entered a size: a value of PageSize.
    void picked(const QString &paper);
    /// A sentence about something that could not be done.
    void problem(const QString &sentence);

private:
    void pick(int row);
    void openSheet();
    void takeSize(const job::NamedSize &size);
    QString sizeText(const QSizeF &sizePt) const;
    int rowOf(const QString &paper) const;

    QComboBox &mPopUp;
    const job::Job &mJob;
    const MeasureUnit &mUnit;
    job::NamedSizes mNamed;
    QString mUnnamed; ///< the job's own size that has no name, as long as it is offered; null when there is none
    QPointer<CustomSizeSheet> mSheet;
    std::function<QSizeF()> mCurrentSize;
};

} // namespace tapeprint::dialog
