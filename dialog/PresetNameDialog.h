// SPDX-License-Identifier: Apache-2.0
// Asks for the name of a preset, says while it is typed what CUPS cannot keep, and offers a name that it can.
#pragma once

#include <QDialog>
#include <QStringList>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tapeprint::dialog
{

class PresetNameDialog : public QDialog
{
    Q_OBJECT

public:
    /// Whether a name that another preset has may be taken, which replaces that one.
    enum class TakenNames { Replace, Refuse };

    /// \param name to begin with; \param taken the names of the queue's other presets.
    PresetNameDialog(const QString &title, const QString &name, QStringList taken, TakenNames rule, QWidget *parent);

    /// A name that CUPS can keep, once the dialog was accepted.
    QString name() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void follow();
    void takeOffer();

    QStringList mTaken;
    TakenNames mRule;
    QLineEdit *mField = nullptr;
    QLabel *mRemark = nullptr;
    QPushButton *mOffer = nullptr; ///< puts the suitable name in the field
    QDialogButtonBox *mButtons = nullptr;
};

} // namespace tapeprint::dialog
