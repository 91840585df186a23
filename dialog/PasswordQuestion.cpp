// SPDX-License-Identifier: Apache-2.0
// The thread that asks and the window share an exchange, and the desk's door: whoever goes first leaves them to the
// other.
#include "dialog/PasswordQuestion.h"

#include "dialog/ButtonIcons.h"
#include "dialog/Mnemonics.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

constexpr std::chrono::milliseconds lookInterval{100};
/// So often a window is looked for before a question comes without one.
constexpr int mostLooks = 20;

/// What a question stands over: the window that has the keys, or where another program has them, one that is seen.
QWidget *windowInSight()
{
    if (QWidget *active = QApplication::activeWindow()) {
        return active;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto seen = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->windowType() == Qt::Dialog;
    });
    return seen == windows.end() ? nullptr : *seen;
}

/// The text of a field as bytes, of which no other copy is left.
job::Secret secretOf(QLineEdit *field)
{
    QString text = field->text();
    field->clear();
    QByteArray bytes = text.toUtf8();
    text.fill(QChar::Null);
    return job::Secret(bytes);
}

} // namespace

PasswordDialog::PasswordDialog(const job::PasswordQuestion &question, QWidget *parent)
    : QDialog(parent), mUser(new QLineEdit(question.user, this)), mPassword(new QLineEdit(this))
{
    setWindowTitle(tr("Password"));
    const QString asks = tr("The print server %1 wants to know who prints.").arg(question.server);
    auto *sentence = new QLabel(question.attempt > 1 ? tr("That was not accepted.") + u' ' + asks : asks, this);
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    mUser->setObjectName(QStringLiteral("user"));
    mPassword->setObjectName(QStringLiteral("password"));
    mPassword->setEchoMode(QLineEdit::Password);
    mPassword->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoAutoUppercase |
                                   Qt::ImhNoPredictiveText);
    auto *form = new QFormLayout;
    form->addRow(tr("&User:"), mUser);
    form->addRow(tr("&Password:"), mPassword);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(sentence);
    layout->addLayout(form);
    layout->addWidget(buttons);
    removeButtonIcons(*this);
    mPassword->setFocus();
    assignMnemonics(*this, {});
}

PasswordDialog::~PasswordDialog()
{
    secretOf(mPassword);
}

job::Credentials PasswordDialog::takeCredentials()
{
    return {mUser->text(), secretOf(mPassword)};
}

/// The way to the desk for threads; shut when the desk is gone.
struct PasswordDesk::Door {
    std::mutex mutex;
    PasswordDesk *desk = nullptr; ///< under the lock
};

/// One question on its way.
struct PasswordDesk::Exchange {
    std::mutex mutex;
    std::condition_variable answered;
    std::optional<job::Credentials> answer; ///< under the lock, as all of it
    bool isAnswered = false;
    bool isOver = false; ///< nobody waits for the answer

    void give(std::optional<job::Credentials> given)
    {
        const std::lock_guard lock(mutex);
        answer = std::move(given);
        isAnswered = true;
        answered.notify_all();
    }
    bool isGivenUp()
    {
        const std::lock_guard lock(mutex);
        return isOver || isAnswered;
    }
};

PasswordDesk::PasswordDesk(QObject *parent) : QObject(parent), mDoor(std::make_shared<Door>())
{
    mDoor->desk = this;
    job::setPasswordAsker([door = mDoor](const job::PasswordQuestion &question,
                                         const std::function<bool()> &isOver) -> std::optional<job::Credentials> {
        const auto exchange = std::make_shared<Exchange>();
        {
            const std::lock_guard lock(door->mutex);
            if (door->desk == nullptr) {
                return std::nullopt;
            }
            QMetaObject::invokeMethod(
                door->desk, [desk = door->desk, question, exchange] { desk->ask(question, exchange, 0); },
                Qt::QueuedConnection);
        }
        std::unique_lock lock(exchange->mutex);
        while (!exchange->isAnswered && !isOver()) {
            exchange->answered.wait_for(lock, lookInterval);
            const std::lock_guard doorLock(door->mutex);
            if (door->desk == nullptr) {
                return std::nullopt;
            }
        }
        exchange->isOver = true;
        return std::move(exchange->answer);
    });
}

PasswordDesk::~PasswordDesk()
{
    job::setPasswordAsker(nullptr);
    const std::lock_guard lock(mDoor->mutex);
    mDoor->desk = nullptr;
}

void PasswordDesk::ask(const job::PasswordQuestion &question, const std::shared_ptr<Exchange> &exchange, int looks)
{
    QWidget *window = windowInSight();
    if (window == nullptr && looks < mostLooks) {
        QTimer::singleShot(lookInterval, this,
                           [this, question, exchange, looks] { ask(question, exchange, looks + 1); });
        return;
    }
    if (!exchange->isGivenUp()) {
        show(question, exchange, window);
    }
}

void PasswordDesk::show(const job::PasswordQuestion &question, const std::shared_ptr<Exchange> &exchange,
                        QWidget *window)
{
    auto *dialog = new PasswordDialog(question, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [dialog, exchange](int result) {
        exchange->give(result == QDialog::Accepted ? std::optional(dialog->takeCredentials()) : std::nullopt);
    });
    // What it stands over may be closed by the program, and takes it along.
    connect(dialog, &QObject::destroyed, this, [this, question, exchange] {
        if (!exchange->isGivenUp()) {
            QTimer::singleShot(0, this, [this, question, exchange] { ask(question, exchange, 0); });
        }
    });
    auto *look = new QTimer(dialog);
    connect(look, &QTimer::timeout, dialog, [dialog, exchange] {
        if (exchange->isGivenUp()) {
            dialog->reject();
        }
    });
    look->start(lookInterval);
    dialog->open();
}

} // namespace tapeprint::dialog
