// SPDX-License-Identifier: Apache-2.0
// One field a command, which wraps and can be selected, and a button that copies it whole.
#include "dialog/ShowCommand.h"

#include "dialog/ButtonIcons.h"
#include "dialog/Mnemonics.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace tapeprint::dialog
{

namespace
{

/// After a hyphen a line may end, and "-" alone at its end reads like another command. This keeps "-o" together, and is
/// not seen.
constexpr QChar wordJoiner(0x2060);

/// Shows a command. What is copied out of it is the command alone.
class CommandField : public QPlainTextEdit
{
public:
    CommandField(const QString &command, QWidget *parent)
        : QPlainTextEdit(QString(command).replace(u'-', QStringLiteral("-") + wordJoiner), parent)
    {
    }

protected:
    QMimeData *createMimeDataFromSelection() const override
    {
        auto *copied = new QMimeData;
        copied->setText(textCursor().selection().toPlainText().remove(wordJoiner));
        return copied;
    }
};

} // namespace

ShowCommand::ShowCommand(const QString &tapeprint, const QString &lp, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Commands for a Shell"));
    auto *layout = new QVBoxLayout(this);
    addCommand(layout, tr("The same job by &tapeprint:"), tapeprint, QStringLiteral("tapeprint"));
    if (!lp.isNull()) {
        addCommand(layout, tr("The same options by &lp, which lays nothing out:"), lp, QStringLiteral("lp"));
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    removeButtonIcons(*this);
    resize(sizeOn(screen()->availableSize()));
    assignMnemonics(*this, {});
}

QSize ShowCommand::sizeOn(QSize screen)
{
    constexpr QSize wished(640, 420);         // seven lines each: all that a tape printer has
    return wished.boundedTo(screen * 9 / 10); // a window's frame has its place, too
}

void ShowCommand::addCommand(QVBoxLayout *layout, const QString &title, const QString &command, const QString &name)
{
    auto *field = new CommandField(command, this);
    field->setObjectName(name + QLatin1String("Command"));
    field->setReadOnly(true);
    field->setTabChangesFocus(true);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    auto *label = new QLabel(title, this);
    label->setBuddy(field);
    auto *copy = new QPushButton(tr("Copy"), this);
    copy->setObjectName(name + QLatin1String("Copy"));
    copy->setAccessibleName(tr("Copy the command of %1").arg(name));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, [command] { QApplication::clipboard()->setText(command); });
    auto *row = new QHBoxLayout;
    row->addWidget(label, 1);
    row->addWidget(copy);
    layout->addLayout(row);
    layout->addWidget(field, 1);
}

} // namespace tapeprint::dialog
