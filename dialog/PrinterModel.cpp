// SPDX-License-Identifier: Apache-2.0
// A list that changes under the person's eyes: the row that is pointed at stays the row that is pointed at.
#include "dialog/PrinterModel.h"

#include "dialog/PlainText.h"
#include "dialog/StateMark.h"
#include "job/PlainText.h"

#include <QSet>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

StateMark markOf(const PrinterRow &row)
{
    if (row.printer.isDiscovered && !row.isGone) {
        return StateMark::Network; // its state is known when it is open
    }
    if (row.isGone || !row.printer.isAccepting) {
        return StateMark::Failure;
    }
    if (row.printer.state == job::PrinterState::Stopped) {
        return StateMark::Paused;
    }
    if (!row.printer.isFine()) {
        return StateMark::Warning;
    }
    return row.printer.state == job::PrinterState::Processing ? StateMark::Busy : StateMark::Fine;
}

QString textOf(const job::Printer &printer)
{
    if (printer.name.isEmpty()) {
        return PrinterModel::tr("%1 (no print queue)").arg(job::harmless(printer.info));
    }
    const QString name = job::harmless(printer.fullName());
    const QString text = printer.info.isEmpty() || printer.info == printer.name
                             ? name
                             : PrinterModel::tr("%1 (%2)").arg(name, job::harmless(printer.info));
    return printer.isDefault ? PrinterModel::tr("%1 (default)").arg(text) : text;
}

} // namespace

int PrinterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

int PrinterModel::rowOf(const QString &name) const
{
    const auto found = std::find_if(mRows.begin(), mRows.end(),
                                    [&name](const PrinterRow &row) { return row.printer.fullName() == name; });
    return found == mRows.end() ? -1 : static_cast<int>(found - mRows.begin());
}

QString PrinterModel::wordsOf(const PrinterRow &row) const
{
    return row.isGone ? tr("not there any more") : row.printer.stateWords(mIsTape);
}

QStringList PrinterModel::linesAbout(const PrinterRow &row) const
{
    QStringList lines;
    if (!row.printer.location.isEmpty()) {
        lines.append(tr("Location: %1").arg(job::harmless(row.printer.location)));
    }
    if (row.printer.isClass) {
        lines.append(tr("A class: whichever of its printers is free prints the job."));
    }
    if (row.printer.isDiscovered) {
        lines.append(tr("Found on the network"));
    }
    if (const QString words = wordsOf(row); !words.isEmpty()) {
        lines.append(words);
    }
    return lines;
}

QVariant PrinterModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const PrinterRow &row = mRows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: // a mark alone does not say why
        return markOf(row) == StateMark::Failure || markOf(row) == StateMark::Paused ||
                       markOf(row) == StateMark::Warning
                   ? textOf(row.printer) + QStringLiteral(" – ") + wordsOf(row)
                   : textOf(row.printer);
    case AboutRole:
        return linesAbout(row).join(QLatin1String("; "));
    case TitleRole:
        return textOf(row.printer);
    case Qt::DecorationRole:
        return row.printer.name.isEmpty() ? QVariant() : QVariant(iconOf(markOf(row)));
    case Qt::ToolTipRole:
        return plainToolTip((QStringList{textOf(row.printer)} + linesAbout(row)).join(u'\n'));
    case Qt::AccessibleTextRole: {
        const QString words = wordsOf(row);
        return words.isEmpty() ? textOf(row.printer)
                               : tr("%1, %2", "a printer and its state").arg(textOf(row.printer), words);
    }
    case NameRole:
        return row.printer.fullName();
    case SearchRole:
        return QStringList{textOf(row.printer), row.printer.location}.join(u'\n');
    default:
        return {};
    }
}

void PrinterModel::removeRowsFrom(int first, int end)
{
    if (first < end) {
        beginRemoveRows({}, first, end - 1);
        mRows.erase(mRows.begin() + first, mRows.begin() + end);
        endRemoveRows();
    }
}

void PrinterModel::insertRowsFrom(const std::vector<PrinterRow> &rows, int first, int end)
{
    if (first < end) {
        beginInsertRows({}, first, end - 1);
        mRows.insert(mRows.begin() + first, rows.begin() + first, rows.begin() + end);
        endInsertRows();
    }
}

void PrinterModel::setRows(const std::vector<PrinterRow> &rows)
{
    if (rows == mRows) {
        return; // as a rule, once a second
    }
    QSet<QString> staying;
    for (const PrinterRow &row : rows) {
        staying.insert(row.printer.fullName());
    }
    // First what is gone, a run of rows at a time.
    for (int end = rowCount(); end > 0; --end) {
        int first = end;
        while (first > 0 && !staying.contains(mRows[static_cast<std::size_t>(first - 1)].printer.fullName())) {
            --first;
        }
        removeRowsFrom(first, end);
        end = first;
    }
    // Then what is new, and what has changed. A row out of its order comes anew at its place.
    QSet<QString> known;
    for (const PrinterRow &row : mRows) {
        known.insert(row.printer.fullName());
    }
    const int count = static_cast<int>(rows.size());
    for (int at = 0; at < count; ++at) {
        const PrinterRow &row = rows[static_cast<std::size_t>(at)];
        const QString name = row.printer.fullName();
        if (const int old = known.contains(name) ? rowOf(name) : -1; old > at) {
            removeRowsFrom(at, old);
        } else if (old < 0) {
            int end = at + 1;
            while (end < count && !known.contains(rows[static_cast<std::size_t>(end)].printer.fullName())) {
                ++end;
            }
            insertRowsFrom(rows, at, end);
            at = end - 1;
            continue;
        }
        if (mRows[static_cast<std::size_t>(at)] != row) {
            mRows[static_cast<std::size_t>(at)] = row;
            Q_EMIT dataChanged(index(at), index(at));
        }
    }
    removeRowsFrom(count, rowCount());
}

} // namespace tapeprint::dialog
