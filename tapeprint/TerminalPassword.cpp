// SPDX-License-Identifier: Apache-2.0
// Standard input may be the document: only the terminal itself is read, and its settings are put back in any case.
#include "tapeprint/TerminalPassword.h"

#include <fcntl.h>
#include <poll.h>
#include <string.h> // NOLINT(modernize-deprecated-headers): explicit_bzero is of POSIX, not of <cstring>
#include <termios.h>
#include <unistd.h>

namespace tapeprint
{

namespace
{

constexpr int lookMs = 200;

class Terminal
{
public:
    Terminal() : mDescriptor(open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        mIsThere = mDescriptor >= 0 && tcgetattr(mDescriptor, &mBefore) == 0;
    }
    ~Terminal()
    {
        if (mIsThere) {
            tcsetattr(mDescriptor, TCSANOW, &mBefore);
        }
        if (mDescriptor >= 0) {
            close(mDescriptor);
        }
    }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    bool isThere() const { return mIsThere; }

    void say(const QString &text) const
    {
        const QByteArray bytes = text.toLocal8Bit();
        [[maybe_unused]] const ssize_t written =
            write(mDescriptor, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }

    /// A line that is typed behind a prompt. \param isShown whether it is seen. Null when the person declines.
    QByteArray readLine(const QString &prompt, bool isShown, const std::function<bool()> &isOver) const
    {
        termios settings = mBefore;
        if (!isShown) {
            // Every key comes here, Ctrl+C too: the program does not end while the terminal hides what is typed.
            settings.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | ISIG);
            settings.c_cc[VMIN] = 1;
            settings.c_cc[VTIME] = 0;
        }
        // What was typed before the question is no answer to it; what follows the prompt is.
        tcsetattr(mDescriptor, TCSAFLUSH, &settings);
        say(prompt);
        QByteArray line("");
        line.reserve(longestLine); // it is never moved, so that one place is to be overwritten
        for (char key = nextKey(isOver); key != '\n' && key != '\r'; key = nextKey(isOver)) {
            const auto code = static_cast<cc_t>(key);
            if (code == settings.c_cc[VINTR] || code == settings.c_cc[VEOF] || key == '\0') {
                explicit_bzero(line.data(), static_cast<std::size_t>(line.size()));
                return {};
            }
            if (code == settings.c_cc[VERASE]) {
                line.chop(1);
            } else if (line.size() < longestLine) {
                line.append(key);
            }
        }
        return line;
    }

private:
    static constexpr qsizetype longestLine = 255;

    /// A null character when none comes any more.
    char nextKey(const std::function<bool()> &isOver) const
    {
        pollfd waited{mDescriptor, POLLIN, 0};
        int ready = 0;
        while (ready == 0 && !isOver()) {
            ready = poll(&waited, 1, lookMs);
        }
        char key = '\0';
        return ready > 0 && read(mDescriptor, &key, 1) == 1 ? key : '\0';
    }

    int mDescriptor;
    bool mIsThere = false;
    termios mBefore{};
};

} // namespace

std::optional<job::Credentials> askOnTerminal(const job::PasswordQuestion &question,
                                              const std::function<bool()> &isOver)
{
    const Terminal terminal;
    if (!terminal.isThere()) {
        return std::nullopt;
    }
    if (question.attempt > 1) {
        terminal.say(QStringLiteral("That was not accepted.\n"));
    }
    terminal.say(QStringLiteral("The print server %1 wants to know who prints.\n").arg(question.server));
    const QByteArray user = terminal.readLine(QStringLiteral("User [%1]: ").arg(question.user), true, isOver);
    if (user.isNull()) {
        return std::nullopt;
    }
    QByteArray password = terminal.readLine(QStringLiteral("Password: "), false, isOver);
    terminal.say(QStringLiteral("\n"));
    if (password.isEmpty()) {
        return std::nullopt;
    }
    return job::Credentials{user.isEmpty() ? question.user : QString::fromLocal8Bit(user), job::Secret(password)};
}

} // namespace tapeprint
