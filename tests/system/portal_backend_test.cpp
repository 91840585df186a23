// SPDX-License-Identifier: Apache-2.0
// The backend as the bus starts it, called as the desktop's portal calls it: what is answered to calls of every kind,
// and when it leaves. There is no print server: the dialog is there without one.
#include "tests/system/PortalSession.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace
{

using systemtest::backendName;
using systemtest::portalPath;
using systemtest::soonMs;
using systemtest::waitUntil;
using systemtest::waitWithEvents;
using systemtest::WindowUnderTest;

using Reply = QDBusPendingReply<uint, QVariantMap>;

constexpr uint cancelled = 1;
constexpr uint ended = 2;

QDBusObjectPath handle(const QString &token)
{
    return QDBusObjectPath(portalPath + u"/request/1_1/"_qs + token);
}

class Backend : public systemtest::PortalSession
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(PortalSession::SetUp());
        ASSERT_NO_FATAL_FAILURE(prepareSession());
        ASSERT_NO_FATAL_FAILURE(startSession(false));
    }
    /// What has to be there before the session's bus is.
    virtual void prepareSession() {}

    Reply prepare(const QString &token, const QString &parentWindow = {}, const QVariantMap &options = {})
    {
        return callBackend(u"PreparePrint"_qs, {QVariant::fromValue(handle(token)), u"org.example.Program"_qs,
                                                parentWindow, u"Title"_qs, QVariantMap(), QVariantMap(), options});
    }
    Reply print(const QString &token, int descriptor, const QVariantMap &options = {})
    {
        return callBackend(u"Print"_qs,
                           {QVariant::fromValue(handle(token)), u"org.example.Program"_qs, QString(), u"Title"_qs,
                            QVariant::fromValue(QDBusUnixFileDescriptor(descriptor)), options});
    }
    QDBusMessage closeRequest(const QString &token, const QDBusConnection &from)
    {
        const QDBusMessage call = QDBusMessage::createMethodCall(
            backendName, handle(token).path(), u"org.freedesktop.impl.portal.Request"_qs, u"Close"_qs);
        return from.call(call);
    }
    QDBusMessage closeRequest(const QString &token) { return closeRequest(token, *session); }
    bool standsAt(const QString &token)
    {
        const QDBusMessage call = QDBusMessage::createMethodCall(
            backendName, handle(token).path(), u"org.freedesktop.DBus.Introspectable"_qs, u"Introspect"_qs);
        return session->call(call).arguments().value(0).toString().contains(u"impl.portal.Request"_qs);
    }
    /// The answer's first value; 99 when there is none.
    static uint responseOf(Reply reply)
    {
        reply.waitForFinished();
        return reply.isValid() ? reply.argumentAt<0>() : 99;
    }
    /// Whether one of the backend's descriptors is a pipe.
    bool holds(const QString &pipe) const
    {
        const QDir descriptors(u"/proc/%1/fd"_qs.arg(backendProcess));
        for (const QString &name : descriptors.entryList(QDir::System | QDir::Files | QDir::NoDotAndDotDot)) {
            if (QFile::symLinkTarget(descriptors.filePath(name)).section(u'/', -1) == pipe) {
                return true;
            }
        }
        return false;
    }
    bool isAlive() { return bus.processOf(backendName) == backendProcess; }
    /// Opens a dialog of the program, so that the backend runs.
    void open(WindowUnderTest &window, const QStringList &known = {})
    {
        ASSERT_NO_FATAL_FAILURE(openDialog(window, known));
        backendProcess = bus.processOf(backendName);
    }

    qint64 backendProcess = 0;
    WindowUnderTest dialog{display};
};

TEST_F(Backend, Version_IsOne)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(backendName, portalPath, u"org.freedesktop.DBus.Properties"_qs, u"Get"_qs);
    call << u"org.freedesktop.impl.portal.Print"_qs << u"version"_qs;
    const QDBusReply<QDBusVariant> version = session->call(call);
    ASSERT_TRUE(version.isValid()) << version.error().message().toStdString();
    EXPECT_EQ(version.value().variant().toUInt(), 1U);
}

TEST_F(Backend, Introspection_TellsBothCallsBeforeEitherWasMade)
{
    const QDBusMessage call = QDBusMessage::createMethodCall(
        backendName, portalPath, u"org.freedesktop.DBus.Introspectable"_qs, u"Introspect"_qs);
    const QString told = session->call(call).arguments().value(0).toString();
    EXPECT_TRUE(told.contains(u"<method name=\"PreparePrint\">"_qs)) << told.toStdString();
    EXPECT_TRUE(told.contains(u"<method name=\"Print\">"_qs));
    EXPECT_TRUE(told.contains(u"type=\"h\""_qs)); // the document's descriptor
}

TEST_F(Backend, Escape_IsAnsweredAsThePersonsNo)
{
    Reply reply = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_EQ(dialog.title(), "Title \u2013 org.example.Program");
    EXPECT_TRUE(standsAt(u"one"_qs));
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(reply), cancelled);
    EXPECT_TRUE(reply.argumentAt<1>().isEmpty());
    EXPECT_TRUE(waitUntil([this] { return !standsAt(u"one"_qs) && dialog.windows().isEmpty(); }));
}

TEST_F(Backend, Close_EndsTheCallForItsCallerAlone)
{
    Reply reply = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    {
        const QDBusConnection stranger = QDBusConnection::connectToBus(bus.address(), u"stranger"_qs);
        EXPECT_EQ(closeRequest(u"one"_qs, stranger).errorName(), u"org.freedesktop.DBus.Error.AccessDenied"_qs);
    }
    QDBusConnection::disconnectFromBus(u"stranger"_qs);
    EXPECT_FALSE(reply.isFinished());
    EXPECT_EQ(dialog.windows().size(), 1);
    EXPECT_EQ(closeRequest(u"one"_qs).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(responseOf(reply), ended);
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
    // Once more: the object is gone.
    EXPECT_EQ(closeRequest(u"one"_qs).type(), QDBusMessage::ErrorMessage);
    EXPECT_TRUE(isAlive());
}

TEST_F(Backend, TwoRequests_HaveTwoWindowsAndEachItsOwnAnswer)
{
    Reply first = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    Reply second = prepare(u"two"_qs);
    WindowUnderTest other(display);
    ASSERT_NO_FATAL_FAILURE(open(other, {dialog.window()}));
    other.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(second), cancelled);
    EXPECT_FALSE(first.isFinished());
    EXPECT_TRUE(waitUntil([this] { return dialog.windows() == QStringList{dialog.window()}; }));
    closeRequest(u"one"_qs);
    EXPECT_EQ(responseOf(first), ended);
}

TEST_F(Backend, SameHandleTwice_TheSecondIsAnsweredAndTheFirstGoesOn)
{
    Reply first = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_EQ(responseOf(prepare(u"one"_qs)), ended);
    EXPECT_TRUE(standsAt(u"one"_qs));
    EXPECT_TRUE(backendSays("busy already"));
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(first), cancelled);
}

TEST_F(Backend, ManyRequests_AreAnsweredAndNotAllShown)
{
    std::vector<Reply> replies;
    for (int i = 0; i < 20; ++i) {
        replies.push_back(prepare(u"many%1"_qs.arg(i)));
    }
    EXPECT_EQ(responseOf(replies.back()), ended);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().size() == 16; }));
    for (int i = 0; i < 16; ++i) {
        closeRequest(u"many%1"_qs.arg(i));
        EXPECT_EQ(responseOf(replies[static_cast<std::size_t>(i)]), ended);
    }
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
    EXPECT_TRUE(isAlive());
    // There is room for others again.
    Reply another = prepare(u"another"_qs);
    WindowUnderTest last(display);
    ASSERT_NO_FATAL_FAILURE(open(last));
    last.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(another), cancelled);
}

TEST_F(Backend, CallerThatDies_TakesItsWindowAlong)
{
    {
        const QDBusConnection mortal = QDBusConnection::connectToBus(bus.address(), u"mortal"_qs);
        QDBusMessage call = QDBusMessage::createMethodCall(backendName, portalPath,
                                                           u"org.freedesktop.impl.portal.Print"_qs, u"PreparePrint"_qs);
        call.setArguments({QVariant::fromValue(handle(u"one"_qs)), QString(), QString(), u"Title"_qs, QVariantMap(),
                           QVariantMap(), QVariantMap()});
        mortal.asyncCall(call);
        ASSERT_NO_FATAL_FAILURE(open(dialog));
    }
    QDBusConnection::disconnectFromBus(u"mortal"_qs);
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty() && !standsAt(u"one"_qs); }));
    EXPECT_TRUE(isAlive());
}

TEST_F(Backend, JunkOfEveryKind_StillShowsTheDialog)
{
    QVariantMap settings{{u"n-copies"_qs, u"many"_qs},
                         {u"printer"_qs, 7},
                         {u"cups-"_qs, QString()},
                         {u"cups-PageSize"_qs, QString(100000, u'x')},
                         {QString(1000, u'k'), QStringList{u"a"_qs}},
                         {u"page-ranges"_qs, u"\u202E1-\n"_qs},
                         {u"output-uri"_qs, u"file:///tmp/portal-must-not-write-this"_qs}};
    for (int i = 0; i < 2000; ++i) {
        settings.insert(u"unknown%1"_qs.arg(i), i);
    }
    const QVariantMap pageSetup{{u"Width"_qs, u"wide"_qs}, {u"Height"_qs, qInf()}, {u"Orientation"_qs, 3.5}};
    const QVariantMap options{
        {u"modal"_qs, u"yes"_qs}, {u"accept_label"_qs, u"\u202E&<b>Go</b>"_qs}, {u"token"_qs, u"none"_qs}};
    Reply reply = callBackend(u"PreparePrint"_qs,
                              {QVariant::fromValue(handle(u"one"_qs)), u"../../etc/passwd"_qs, u"x11:ffffffff"_qs,
                               QString(50000, u'T') + u"\n\u202E"_qs, settings, pageSetup, options});
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_LT(dialog.title().size(), 400);
    EXPECT_FALSE(dialog.title().contains("\u202E"));
    EXPECT_TRUE(backendSays("is of another type"));
    EXPECT_TRUE(backendSays("2002 setting(s) left out"));
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(reply), cancelled);
    EXPECT_FALSE(QFileInfo::exists(u"/tmp/portal-must-not-write-this"_qs));
}

TEST_F(Backend, CallsWithOtherArguments_AreAnsweredWithAnError)
{
    const Reply none = callBackend(u"PreparePrint"_qs, {});
    QDBusPendingReply<> wait(none);
    wait.waitForFinished();
    EXPECT_TRUE(wait.isError());
    QDBusPendingReply<> wrong(callBackend(u"Print"_qs, {u"no path"_qs, 1, 2, 3, 4, 5}));
    wrong.waitForFinished();
    EXPECT_TRUE(wrong.isError());
    QDBusPendingReply<> unknown(callBackend(u"Preview"_qs, {}));
    unknown.waitForFinished();
    EXPECT_TRUE(unknown.isError());
    EXPECT_NE(bus.processOf(backendName), 0);
}

TEST_F(Backend, DescriptorsThatAreNoDocument_AreAnsweredAndThePersonIsTold)
{
    const int root = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_EQ(responseOf(print(u"folder"_qs, root)), ended);
    ::close(root);
    const int empty = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(responseOf(print(u"device"_qs, empty)), ended);
    ::close(empty);
    ASSERT_NO_FATAL_FAILURE(open(dialog)); // a sentence for each
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().size() == 2; }));
    EXPECT_TRUE(backendSays("is not printed"));
    EXPECT_TRUE(isAlive());
}

TEST_F(Backend, PipeThatNeverEnds_IsEndedByClose)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    Reply reply = print(u"one"_qs, ends[0]);
    const QString pipe = QFile::symLinkTarget(u"/proc/self/fd/%1"_qs.arg(ends[0])).section(u'/', -1);
    EXPECT_TRUE(waitUntil([this] { return standsAt(u"one"_qs); }));
    backendProcess = bus.processOf(backendName);
    EXPECT_TRUE(holds(pipe));
    EXPECT_FALSE(reply.isFinished());
    closeRequest(u"one"_qs);
    EXPECT_EQ(responseOf(reply), ended);
    EXPECT_TRUE(waitUntil([this, &pipe] { return !holds(pipe); }, soonMs)); // though it has not ended
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST_F(Backend, WithoutAWritableHomeAndTemporaryFolder_ShowsTheDialogAndSaysWhyNothingIsPrinted)
{
    // The bus that is there was started with other variables.
    QProcess program;
    moreOfSession = {{u"HOME"_qs, u"/proc"_qs}, {u"TMPDIR"_qs, u"/proc"_qs}, {u"XDG_CONFIG_HOME"_qs, u"/proc"_qs}};
    ASSERT_NO_FATAL_FAILURE(startProgram(program, QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint-portal"), {}));
    ASSERT_TRUE(waitUntil([this] { return bus.processOf(backendName) != 0; }));
    Reply asked = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(asked), cancelled);
    const int file = ::open(document.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(responseOf(print(u"two"_qs, file)), ended);
    ::close(file);
    WindowUnderTest sentence(display);
    ASSERT_NO_FATAL_FAILURE(open(sentence, {dialog.window()}));
    systemtest::endProcess(program);
    EXPECT_TRUE(program.readAllStandardError().contains("is not printed"));
}

TEST_F(Backend, TokenThatIsNone_ShowsTheDialogWithTheDocument)
{
    const int file = ::open(document.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
    Reply reply = print(u"one"_qs, file, {{u"token"_qs, 4711U}});
    ::close(file);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_TRUE(backendSays("the dialog is shown"));
    // Its copy of the document is for nobody else, and goes with the window.
    const QString temporary = this->folder.path(u"tmp"_qs);
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(reply), cancelled);
    EXPECT_TRUE(waitUntil([&] {
        return QDir(temporary).entryList({u"tapeprint-*"_qs}, QDir::Dirs).isEmpty() ||
               QDir(temporary + u'/' + QDir(temporary).entryList({u"tapeprint-*"_qs}, QDir::Dirs).value(0)).isEmpty();
    }));
}

TEST_F(Backend, IdleForAWhile_Leaves)
{
    // By hand, with less patience than the bus's.
    QProcess program;
    ASSERT_NO_FATAL_FAILURE(
        startProgram(program, QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint-portal"), {u"--idle"_qs, u"1"_qs}));
    ASSERT_TRUE(waitUntil([this] { return bus.processOf(backendName) != 0; }));
    Reply reply = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_FALSE(program.waitForFinished(1500)); // a window stands open
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(reply), cancelled);
    ASSERT_TRUE(program.waitForFinished(5000));
    EXPECT_EQ(program.exitCode(), 0);
}

/// How the dialog stands over another window of an X server.
class BackendOnX11 : public Backend, public testing::WithParamInterface<bool>
{
protected:
    void TearDown() override
    {
        systemtest::endProcess(program);
        Backend::TearDown();
    }

    QProcess program; ///< one that prints
};

TEST_P(BackendOnX11, WindowOfAnotherProgram_TheDialogStandsOverItAndHoldsItUpUnlessToldNotTo)
{
    ASSERT_NO_FATAL_FAILURE(startProgram(program, u"xmessage"_qs, {u"-name"_qs, u"printing"_qs, u"Hello"_qs}));
    QByteArray window;
    ASSERT_TRUE(waitUntil([&] {
        window = display.xdotool({u"search"_qs, u"--onlyvisible"_qs, u"--classname"_qs, u"printing"_qs}).trimmed();
        return !window.isEmpty();
    }));
    const QString number = QString::number(window.toULongLong(), 16);
    Reply reply = prepare(u"one"_qs, u"x11:"_qs + number, {{u"modal"_qs, GetParam()}});
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    const QByteArray properties =
        systemtest::runClient({u"xprop"_qs,
                               {u"-id"_qs, dialog.window(), u"WM_TRANSIENT_FOR"_qs, u"_NET_WM_STATE"_qs},
                               {{u"DISPLAY"_qs, display.name()}}})
            .output;
    EXPECT_TRUE(properties.contains("window id # 0x" + number.toLatin1() + '\n')) << properties.toStdString();
    EXPECT_EQ(properties.contains("_NET_WM_STATE_MODAL"), GetParam()) << properties.toStdString();
    EXPECT_FALSE(reply.isFinished());
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(reply), cancelled);
}

INSTANTIATE_TEST_SUITE_P(Modal, BackendOnX11, testing::Bool());

TEST_F(Backend, OptionsOfLaterPortals_OpenTheDialogAsTheirLackDoes)
{
    Reply reply = prepare(u"later"_qs, {},
                          {{u"modal"_qs, true},
                           {u"accept_label"_qs, u"_Go"_qs},
                           {u"has_current_page"_qs, true},
                           {u"has_selected_pages"_qs, false},
                           {u"supported_output_file_formats"_qs, QStringList{u"pdf"_qs, u"svg"_qs}}});
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    EXPECT_FALSE(reply.isFinished());
    EXPECT_EQ(dialog.title(), "Title \xe2\x80\x93 org.example.Program");
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(responseOf(reply), cancelled);
}

TEST_F(Backend, Sigterm_EndsItAndItsWindow)
{
    Reply reply = prepare(u"one"_qs);
    ASSERT_NO_FATAL_FAILURE(open(dialog));
    ASSERT_EQ(::kill(static_cast<pid_t>(backendProcess), SIGTERM), 0);
    EXPECT_EQ(responseOf(reply), 99U); // the bus says that nobody answers any more
    EXPECT_TRUE(waitUntil([this] { return bus.processOf(backendName) == 0; }));
}

TEST_F(Backend, WithoutBusOrDisplayOrWithAnotherInItsPlace_SaysWhyAndEnds)
{
    const auto run = [this](std::vector<std::pair<QString, QString>> changed) {
        auto variables = sessionVariables();
        variables.insert(variables.end(), changed.begin(), changed.end());
        return systemtest::runClient({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint-portal"), {}, variables});
    };
    const auto noBus = run({{u"DBUS_SESSION_BUS_ADDRESS"_qs, u"unix:path=/nonexistent"_qs}});
    EXPECT_EQ(noBus.status, 1);
    EXPECT_TRUE(noBus.messages.contains("no session bus")) << noBus.messages.toStdString();
    const auto noDisplay = run({{u"DISPLAY"_qs, QString()}});
    EXPECT_EQ(noDisplay.status, 1);
    EXPECT_TRUE(noDisplay.messages.contains("no display")) << noDisplay.messages.toStdString();
    const auto deadDisplay = run({{u"DISPLAY"_qs, u":987"_qs}});
    EXPECT_EQ(deadDisplay.status, 1);
    EXPECT_TRUE(deadDisplay.messages.contains("cannot be used")) << deadDisplay.messages.toStdString();
    ASSERT_TRUE(session->registerService(backendName));
    const auto second = run({});
    EXPECT_EQ(second.status, 1);
    EXPECT_TRUE(second.messages.contains("another one has it")) << second.messages.toStdString();
}

/// A session on Wayland.
class BackendOnWayland : public Backend
{
protected:
    /// Starts the display, which makes the socket.
    void startDisplay(const QString &file, const QStringList &arguments)
    {
        moreOfSession.insert(moreOfSession.end(), {{u"DISPLAY"_qs, QString()}, {u"WAYLAND_DISPLAY"_qs, socket}});
        ASSERT_NO_FATAL_FAILURE(startProgram(compositor, file, arguments));
        ASSERT_TRUE(waitUntil([this] { return QFileInfo::exists(folder.path(u"run"_qs) + u'/' + socket); }))
            << compositor.readAllStandardError().toStdString();
    }
    void TearDown() override
    {
        systemtest::endProcess(program);
        Backend::TearDown();
        systemtest::endProcess(compositor);
    }

    QString socket = u"wayland-1"_qs;
    QProcess compositor;
    QProcess program; ///< one that prints
};

/// On a display that lends no windows. The backend writes down what it says to it.
class BackendOnPlainWayland : public BackendOnWayland
{
protected:
    void prepareSession() override
    {
        ASSERT_NO_FATAL_FAILURE(
            startDisplay(u"weston"_qs, {u"--backend=headless-backend.so"_qs, u"--socket="_qs + socket,
                                        u"--idle-time=0"_qs, u"--no-config"_qs}));
        moreOfSession.emplace_back(u"WAYLAND_DEBUG"_qs, u"1"_qs);
    }
};

TEST_F(BackendOnPlainWayland, ParentOfAnotherProgram_TheDialogStandsByItselfAndIsThereAtOnce)
{
    QElapsedTimer time;
    time.start();
    Reply reply = prepare(u"one"_qs, u"wayland:0123456789abcdef"_qs);
    EXPECT_TRUE(backendSays("the dialog stands by itself: the display has no windows of other programs to give"));
    EXPECT_TRUE(backendSays("set_title(\"Title \u2013 org.example.Program\")"));
    EXPECT_TRUE(backendSays("set_app_id(\"org.tapeprint.TapePrint\")")); // whose icon the desktop shows
    // The portal waits 25 seconds for a backend: one that waits for the portal would be given up.
    EXPECT_LT(time.elapsed(), 20000);
    EXPECT_FALSE(reply.isFinished());
    closeRequest(u"one"_qs);
    EXPECT_EQ(responseOf(reply), ended);
}

/// GNOME's display of Debian 12. It lends windows as well, by the first version of the protocol alone.
class BackendOnGnomesWayland : public BackendOnWayland
{
protected:
    void prepareSession() override
    {
        ASSERT_TRUE(desktop.start(sessionVariables(), {}).isNull());
        moreOfSession = {{u"DBUS_SESSION_BUS_ADDRESS"_qs, desktop.address()}};
        ASSERT_NO_FATAL_FAILURE(
            startDisplay(u"mutter"_qs, {u"--headless"_qs, u"--wayland"_qs, u"--no-x11"_qs,
                                        u"--virtual-monitor=1280x1024"_qs, u"--wayland-display="_qs + socket}));
        moreOfSession.front() = {u"WAYLAND_DEBUG"_qs, u"1"_qs};
    }

private:
    systemtest::PrivateBus desktop; ///< the display's own: it does not start without one
};

TEST_F(BackendOnGnomesWayland, WindowOfAnotherProgram_TheDialogStandsOverIt)
{
    ASSERT_NO_FATAL_FAILURE(startPortal());
    ASSERT_NO_FATAL_FAILURE(
        startProgram(program, QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/print_by_gtk.py"), {}));
    EXPECT_TRUE(backendSays(".set_parent_of(")) << program.readAllStandardError().toStdString();
    // What the display does not know it says before it answers anything later.
    EXPECT_TRUE(waitUntil([this] {
        const QByteArray said = bus.messages();
        return said.indexOf(".done(", said.indexOf(".set_parent_of(")) >= 0;
    }));
    EXPECT_FALSE(bus.messages().contains("stands by itself"));
}

TEST_F(BackendOnGnomesWayland, HandleThatNobodyGaveOut_TheDialogStandsByItself)
{
    Reply reply = prepare(u"one"_qs, u"wayland:0123456789abcdef"_qs);
    EXPECT_TRUE(backendSays("the display does not know the caller's window"));
    closeRequest(u"one"_qs);
    EXPECT_EQ(responseOf(reply), ended);
}

/// On a display that lends windows. It tiles those that stand by themselves; one over another floats.
class BackendOnTilingWayland : public BackendOnWayland
{
protected:
    void prepareSession() override
    {
        const QString configuration =
            systemtest::writeFile(folder.path(u"sway.conf"_qs), "xwayland disable\nfocus_follows_mouse no\n");
        moreOfSession = {{u"WLR_BACKENDS"_qs, u"headless"_qs}, {u"WLR_RENDERER"_qs, u"pixman"_qs}};
        // It refuses to be root; among users of its own it is not.
        ASSERT_NO_FATAL_FAILURE(startDisplay(u"unshare"_qs, {u"--user"_qs, u"sway"_qs, u"--config"_qs, configuration}));
    }
    /// Whether the dialog is on the display, in one of the two ways.
    bool dialogStands(const QString &way)
    {
        const QString control = QDir(folder.path(u"run"_qs)).entryList({u"sway-ipc.*"_qs}, QDir::System).value(0);
        QProcess question;
        startProgram(question, u"swaymsg"_qs,
                     {u"--socket"_qs, folder.path(u"run/"_qs + control), u"--raw"_qs, u"--type"_qs, u"get_tree"_qs});
        question.waitForFinished();
        return holdsDialog(QJsonDocument::fromJson(question.readAllStandardOutput()).object(), way);
    }

private:
    static bool holdsDialog(const QJsonObject &node, const QString &way)
    {
        for (const QString &list : {u"nodes"_qs, u"floating_nodes"_qs}) {
            for (const QJsonValue &entry : node[list].toArray()) {
                const bool isDialog = entry[u"app_id"_qs].toString() == u"org.tapeprint.TapePrint"_qs;
                if ((isDialog && list == way) || holdsDialog(entry.toObject(), way)) {
                    return true;
                }
            }
        }
        return false;
    }
};

TEST_F(BackendOnTilingWayland, WindowOfAnotherProgram_TheDialogStandsOverIt)
{
    ASSERT_NO_FATAL_FAILURE(startPortal());
    ASSERT_NO_FATAL_FAILURE(
        startProgram(program, QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/print_by_gtk.py"), {}));
    EXPECT_TRUE(waitUntil([this] { return dialogStands(u"floating_nodes"_qs); }))
        << program.readAllStandardError().toStdString() << bus.messages().toStdString();
}

TEST_F(BackendOnTilingWayland, HandleThatNobodyGaveOut_TheDialogStandsByItself)
{
    const std::array<QPair<QString, QByteArray>, 4> handles{{
        {u"wayland:0123456789abcdef"_qs, "the display does not know the caller's window"},
        {u"wayland:"_qs + QString(5000, u'a'), "the caller's window cannot be used"}, // no message is so long
        {u"wayland:with\nlines"_qs, "the caller's window cannot be used"},
        {u"x11:1234"_qs, "the caller's window cannot be used"},
    }};
    for (const auto &[parent, said] : handles) {
        const QString token = u"of_%1"_qs.arg(parent.size());
        Reply reply = prepare(token, parent);
        EXPECT_TRUE(waitUntil([this] { return dialogStands(u"nodes"_qs); })) << parent.toStdString();
        EXPECT_TRUE(backendSays(said)) << parent.toStdString();
        closeRequest(token);
        EXPECT_EQ(responseOf(reply), ended) << parent.toStdString();
        EXPECT_TRUE(waitUntil([this] { return !dialogStands(u"nodes"_qs); }));
    }
}

} // namespace
