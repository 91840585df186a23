// SPDX-License-Identifier: Apache-2.0
// The program where no window can be shown: every way ends in one line and the same status, never in an abort.
#include "ProgramTest.h"

#include <array>
#include <cstddef>
#include <string>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

using hosttest::Outcome;

class Display : public hosttest::Program
{
protected:
    void expectNoWindow(const char *part) const
    {
        expectFailure(testsupport::general, {u"--ppd"_qs, ppd, document}, part);
    }

    /// An X server as far as connecting goes, which says what it is given, or nothing. \return its name for DISPLAY.
    QString listenAs(int number)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        // The abstract name: nothing is left behind.
        const std::string name = "/tmp/.X11-unix/X" + std::to_string(number);
        name.copy(address.sun_path + 1, sizeof address.sun_path - 2);
        mServer = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
        // The socket interface takes every kind of address through this one type.
        EXPECT_EQ(bind(mServer, reinterpret_cast<const sockaddr *>(&address), length), 0);
        EXPECT_EQ(listen(mServer, 5), 0);
        return u":"_qs + QString::number(number);
    }

    /// Answers the second connection, which is the toolkit's, as a server does that lets nobody in.
    void refuseOne() const
    {
        close(accept(mServer, nullptr, nullptr)); // the look whether there is a server
        const int client = accept(mServer, nullptr, nullptr);
        std::array<char, 256> request{};
        EXPECT_GT(read(client, request.data(), request.size()), 0);
        // Failed, 12 bytes of reason, protocol 11.0, three words of reason.
        const std::string refusal("\0\x0c\x0b\0\0\0\x03\0not this one", 20);
        EXPECT_EQ(write(client, refusal.data(), refusal.size()), 20);
        close(client);
    }

    ~Display() override
    {
        if (mServer >= 0) {
            close(mServer);
        }
    }

private:
    int mServer = -1;
};

TEST_F(Display, ThatThereIsNot_IsSaidAndNothingIsPrinted)
{
    expectNoWindow("There is no display");
    variables = {{u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs}};
    expectNoWindow("There is no display");
}

TEST_F(Display, ThatIsDead_IsNamed)
{
    variables = {{u"DISPLAY"_qs, u":3999"_qs}};
    expectNoWindow("The display :3999 cannot be used");
    variables = {{u"DISPLAY"_qs, u"nonsense"_qs}};
    expectNoWindow("The display nonsense cannot be used");
    variables = {{u"WAYLAND_DISPLAY"_qs, folder.filePath(u"none"_qs)}};
    expectNoWindow("none cannot be used");
    // On another machine, where only the toolkit finds out.
    variables = {{u"DISPLAY"_qs, u"localhost:3999"_qs}};
    expectNoWindow("The display localhost:3999 cannot be used");
}

TEST_F(Display, WhosePlatformTheToolkitDoesNotKnow_IsNamed)
{
    variables = {{u"DISPLAY"_qs, listenAs(3998)}, {u"QT_QPA_PLATFORM"_qs, u"no-such-platform"_qs}};
    expectNoWindow("The display :3998 cannot be used");
}

TEST_F(Display, ThatLetsNobodyIn_IsNamed)
{
    variables = {{u"DISPLAY"_qs, listenAs(3997)}, {u"QT_QPA_PLATFORM"_qs, u"xcb"_qs}};
    std::thread server([this] { refuseOne(); });
    expectNoWindow("The display :3997 cannot be used");
    server.join();
}

TEST_F(Display, ThatNeverAnswers_IsNamedInTheEnd)
{
    variables = {{u"DISPLAY"_qs, listenAs(3996)}, {u"QT_QPA_PLATFORM"_qs, u"xcb"_qs}};
    expectNoWindow("The display :3996 cannot be used");
}

TEST_F(Display, ThatIsDead_IsSaidInJsonWhenThatIsAskedFor)
{
    variables = {{u"DISPLAY"_qs, u"localhost:3999"_qs}};
    const Outcome outcome = run({u"--json"_qs, u"--ppd"_qs, ppd, document});
    EXPECT_EQ(outcome.status, testsupport::general);
    EXPECT_EQ(outcome.messages, "");
    EXPECT_TRUE(outcome.output.contains("\"kind\": \"general\"")) << outcome.output.toStdString();
}

} // namespace
