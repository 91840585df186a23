// SPDX-License-Identifier: Apache-2.0
// The cases that a portal for printing has to stand, through the desktop's own portal: basic, delay, cancel, close,
// lockdown, results, parallel.
#include "tests/system/PortalSession.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QTest>

#include <map>

#include <fcntl.h>
#include <unistd.h>

namespace
{

using systemtest::portalName;
using systemtest::portalPath;
using systemtest::waitUntil;
using systemtest::waitWithEvents;
using systemtest::WindowUnderTest;

struct Answer {
    uint response = 99;
    QVariantMap results;
};

/// Hears the portal's answers.
class Ear : public QObject
{
    Q_OBJECT

public:
    std::map<QString, Answer> answers; ///< by the request's path

public Q_SLOTS:
    void hear(uint response, const QVariantMap &results, const QDBusMessage &message)
    {
        answers[message.path()] = {response, results};
    }
};

/// A desktop that may forbid printing.
class Lockdown : public QDBusVirtualObject
{
public:
    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() != u"GetAll"_qs) {
            return false;
        }
        connection.send(message.createReply(QVariantMap{{u"disable-printing"_qs, true}}));
        return true;
    }
};

class PortalCase : public systemtest::PortalSession
{
protected:
    void open(bool withServer)
    {
        ASSERT_NO_FATAL_FAILURE(startSession(withServer));
        ASSERT_NO_FATAL_FAILURE(startPortal());
        session->connect(portalName, QString(), u"org.freedesktop.portal.Request"_qs, u"Response"_qs, &ear,
                         SLOT(hear(uint, QVariantMap, QDBusMessage)));
    }
    QDBusMessage call(const QString &method, QVariantList arguments, const QString &token,
                      QVariantMap options = {}) const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(portalName, portalPath, u"org.freedesktop.portal.Print"_qs, method);
        options.insert(u"handle_token"_qs, token);
        arguments.append(options);
        message.setArguments(arguments);
        return session->call(message);
    }
    QDBusMessage prepare(const QString &token, const QVariantMap &settings = {}) const
    {
        return call(u"PreparePrint"_qs, {QString(), token, settings, QVariantMap()}, token);
    }
    /// Prints the document with the settings behind a number. \param token the call's.
    QDBusMessage print(const QString &token, uint settings) const
    {
        const int file = ::open(document.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
        const QVariantList arguments{QString(), u"The label"_qs, QVariant::fromValue(QDBusUnixFileDescriptor(file))};
        ::close(file); // the descriptor's own copy stays open
        return call(u"Print"_qs, arguments, token, {{u"token"_qs, settings}});
    }
    QString pathOf(const QString &token) const
    {
        return portalPath + u"/request/"_qs + session->baseService().mid(1).replace(u'.', u'_') + u'/' + token;
    }
    bool hasAnswer(const QString &token) const { return ear.answers.count(pathOf(token)) > 0; }
    Answer answer(const QString &token)
    {
        waitWithEvents([&] { return hasAnswer(token); });
        return ear.answers[pathOf(token)];
    }

    Ear ear;
    WindowUnderTest dialog{display};
};

TEST_F(PortalCase, BasicAndResults_SettingsAreAnsweredAndTheirTokenPrintsWithoutAWindow)
{
    ASSERT_NO_FATAL_FAILURE(open(true));
    EXPECT_EQ(prepare(u"basic"_qs).type(), QDBusMessage::ReplyMessage);
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    EXPECT_EQ(dialog.title(), "basic");
    dialog.clickPrint();
    const Answer prepared = answer(u"basic"_qs);
    ASSERT_EQ(prepared.response, 0U);
    const uint token = prepared.results[u"token"_qs].toUInt();
    EXPECT_NE(token, 0U);
    const auto setup = qdbus_cast<QVariantMap>(prepared.results[u"page-setup"_qs]);
    EXPECT_NEAR(setup[u"Width"_qs].toDouble(), 24.0, 0.01);
    EXPECT_NEAR(setup[u"Height"_qs].toDouble(), 100.0, 0.01);
    const auto settings = qdbus_cast<QVariantMap>(prepared.results[u"settings"_qs]);
    EXPECT_EQ(settings[u"cups-PageSize"_qs].toString(), u"24mm"_qs);
    EXPECT_EQ(print(u"print"_qs, token).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(answer(u"print"_qs).response, 0U);
    const auto calls = printedJob();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(systemtest::tapeOptions(calls[0]), systemtest::panelOptionsMm());
    EXPECT_EQ(calls[0].title(), "The label");
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
}

TEST_F(PortalCase, HomeThatCannotBeWritten_PrintsAndSaysThatNothingIsKept)
{
    moreOfSession = {{u"XDG_CONFIG_HOME"_qs, u"/dev/null"_qs}};
    ASSERT_NO_FATAL_FAILURE(open(true));
    prepare(u"homeless"_qs);
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    dialog.clickPrint();
    const uint token = answer(u"homeless"_qs).results[u"token"_qs].toUInt();
    EXPECT_NE(token, 0U);
    print(u"print"_qs, token);
    EXPECT_EQ(answer(u"print"_qs).response, 0U);
    EXPECT_EQ(printedJob().size(), 1U);
    EXPECT_TRUE(backendSays("cannot be kept for the next time"));
}

TEST_F(PortalCase, PrinterOfEarlierSettingsThatIsGone_GivesWayToTheDefaultInTheWindow)
{
    ASSERT_NO_FATAL_FAILURE(open(true));
    ASSERT_TRUE(cups.addRecordedQueue(u"further"_qs, u"mm"_qs).isNull()); // or the only one would be taken anyhow
    prepare(u"gone"_qs, {{u"printer"_qs, u"another"_qs}});
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    dialog.clickPrint();
    const auto settings = qdbus_cast<QVariantMap>(answer(u"gone"_qs).results[u"settings"_qs]);
    EXPECT_EQ(settings[u"printer"_qs].toString(), u"tape"_qs);
}

TEST_F(PortalCase, TokenWhosePrinterIsGone_PrintsOnNoOtherAndSaysWhy)
{
    ASSERT_NO_FATAL_FAILURE(open(true));
    ASSERT_TRUE(cups.addRecordedQueue(u"another"_qs, u"mm"_qs).isNull());
    prepare(u"chosen"_qs, {{u"printer"_qs, u"another"_qs}});
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    dialog.clickPrint();
    const Answer prepared = answer(u"chosen"_qs);
    EXPECT_EQ(qdbus_cast<QVariantMap>(prepared.results[u"settings"_qs])[u"printer"_qs].toString(), u"another"_qs);
    ASSERT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
    ASSERT_TRUE(cups.run(u"lpadmin"_qs, {u"-x"_qs, u"another"_qs}).isNull());
    EXPECT_EQ(print(u"print"_qs, prepared.results[u"token"_qs].toUInt()).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(answer(u"print"_qs).response, 2U);
    EXPECT_TRUE(backendSays("is not printed"));
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().size() == 1; })) << "nobody is told";
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(PortalCase, DelayAndCancel_NothingIsAnsweredUntilThePersonSaysNo)
{
    ASSERT_NO_FATAL_FAILURE(open(false));
    prepare(u"cancel"_qs);
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    QTest::qWait(500);
    EXPECT_FALSE(hasAnswer(u"cancel"_qs));
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(answer(u"cancel"_qs).response, 1U);
}

TEST_F(PortalCase, Close_TakesTheWindowAlongWithoutAnAnswer)
{
    ASSERT_NO_FATAL_FAILURE(open(false));
    prepare(u"close"_qs);
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    session->call(QDBusMessage::createMethodCall(portalName, pathOf(u"close"_qs), u"org.freedesktop.portal.Request"_qs,
                                                 u"Close"_qs));
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
    QTest::qWait(200);
    EXPECT_FALSE(hasAnswer(u"close"_qs));
}

TEST_F(PortalCase, CloseWhileAPanelsAlertStands_TakesBothAlongAndTheNextCallIsServed)
{
    ASSERT_NO_FATAL_FAILURE(open(true));
    prepare(u"alert"_qs);
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    dialog.goTo(systemtest::PanelControl::tapeLength);
    dialog.type(u"3"_qs); // below the shortest tape
    dialog.press({u"Return"_qs});
    ASSERT_FALSE(dialog.waitForFurtherWindow().isNull()) << "no alert";
    session->call(QDBusMessage::createMethodCall(portalName, pathOf(u"alert"_qs), u"org.freedesktop.portal.Request"_qs,
                                                 u"Close"_qs));
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
    prepare(u"next"_qs);
    WindowUnderTest next(display);
    ASSERT_NO_FATAL_FAILURE(openDialog(next));
    EXPECT_EQ(next.title(), "next");
    next.press({u"Escape"_qs});
    EXPECT_EQ(answer(u"next"_qs).response, 1U);
}

TEST_F(PortalCase, Parallel_EachCallHasItsOwnAnswer)
{
    ASSERT_NO_FATAL_FAILURE(open(false));
    prepare(u"first"_qs);
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    prepare(u"second"_qs);
    WindowUnderTest second(display);
    ASSERT_NO_FATAL_FAILURE(openDialog(second, {dialog.window()}));
    prepare(u"third"_qs);
    WindowUnderTest third(display);
    ASSERT_NO_FATAL_FAILURE(openDialog(third, {dialog.window(), second.window()}));
    EXPECT_EQ(second.title(), "second");
    second.press({u"Escape"_qs}); // the keys are the third's, which came last
    EXPECT_EQ(answer(u"third"_qs).response, 1U);
    EXPECT_FALSE(hasAnswer(u"first"_qs));
    EXPECT_FALSE(hasAnswer(u"second"_qs));
    ASSERT_TRUE(second.waitForGone(third.window()));
    second.press({u"Escape"_qs});
    EXPECT_EQ(answer(u"second"_qs).response, 1U);
    EXPECT_FALSE(hasAnswer(u"first"_qs));
    ASSERT_TRUE(dialog.waitForGone(second.window()));
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(answer(u"first"_qs).response, 1U);
}

TEST_F(PortalCase, Lockdown_NoDialogIsShownWhereTheDesktopForbidsPrinting)
{
    const QString portals = folder.makeFolder(u"portals"_qs);
    systemtest::writeFile(portals + u"/tapeprint.portal"_qs,
                          systemtest::contentsOf(QStringLiteral(TAPEPRINT_PORTAL_DATA_DIR
                                                                "/xdg-desktop-portal/portals/tapeprint.portal")));
    systemtest::writeFile(portals + u"/strict.portal"_qs,
                          "[portal]\nDBusName=org.example.Strict\n"
                          "Interfaces=org.freedesktop.impl.portal.Lockdown\nUseIn=GNOME\n");
    moreOfSession = {{u"XDG_DESKTOP_PORTAL_DIR"_qs, portals}};
    Lockdown lockdown;
    ASSERT_NO_FATAL_FAILURE(startSession(false));
    ASSERT_TRUE(session->registerVirtualObject(portalPath, &lockdown));
    ASSERT_TRUE(session->registerService(u"org.example.Strict"_qs));
    ASSERT_NO_FATAL_FAILURE(startPortal());
    EXPECT_EQ(prepare(u"forbidden"_qs).errorName(), u"org.freedesktop.portal.Error.NotAllowed"_qs);
    EXPECT_EQ(display.xdotool({u"search"_qs, u"--onlyvisible"_qs, u"--name"_qs, u"forbidden"_qs}), QByteArray());
}

} // namespace

#include "portal_cases_test.moc"
