// SPDX-License-Identifier: Apache-2.0
// A program prints through the portal, and the print server wants a password for whatever it is asked.
#include "tests/support/MeddlingServer.h"
#include "tests/system/PortalSession.h"

#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QTest>

#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace
{

using systemtest::portalPath;
using systemtest::WindowUnderTest;
using tapeprint::test::Meddling;
using tapeprint::test::MeddlingServer;
using tapeprint::test::SeenRequest;

using Reply = QDBusPendingReply<uint, QVariantMap>;

class PortalPassword : public systemtest::PortalSession
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(PortalSession::SetUp());
        if (IsSkipped()) {
            return;
        }
        moreOfSession = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
        ASSERT_NO_FATAL_FAILURE(startSession(true));
        guarded = std::make_unique<MeddlingServer>(
            folder.path(u"meddling.sock"_qs), cups.socket(), [](const SeenRequest &request) {
                return request.authorization == "anna:right" ? Meddling::PassOn : Meddling::Deny;
            });
    }

    static QDBusObjectPath handle(const QString &token)
    {
        return QDBusObjectPath(portalPath + u"/request/1_1/"_qs + token);
    }
    /// Of a program that printed on the queue before.
    Reply prepare()
    {
        return callBackend(u"PreparePrint"_qs,
                           {QVariant::fromValue(handle(u"prepare"_qs)), u"org.example.Program"_qs, QString(),
                            u"Title"_qs, QVariantMap{{u"printer"_qs, u"tape"_qs}}, QVariantMap(), QVariantMap()});
    }
    Reply print(uint token)
    {
        const int file = ::open(document.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
        const QVariantList arguments{QVariant::fromValue(handle(u"print"_qs)),
                                     u"org.example.Program"_qs,
                                     QString(),
                                     u"Title"_qs,
                                     QVariant::fromValue(QDBusUnixFileDescriptor(file)),
                                     QVariantMap{{u"token"_qs, token}}};
        ::close(file); // the descriptor's own copy stays open
        return callBackend(u"Print"_qs, arguments);
    }
    void openDialogAndItsQuestion()
    {
        qint64 backend = 0;
        ASSERT_TRUE(systemtest::waitUntil([&] { return (backend = bus.processOf(systemtest::backendName)) != 0; }));
        const QString problem = dialog.adoptUnconnected(backend);
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        question = dialog.waitForFurtherWindow();
        ASSERT_FALSE(question.isNull());
    }
    void answer()
    {
        dialog.press({u"alt+u"_qs, u"ctrl+a"_qs});
        dialog.type(u"anna"_qs);
        dialog.press({u"Tab"_qs});
        dialog.type(u"right"_qs);
        dialog.press({u"Return"_qs});
        ASSERT_TRUE(dialog.waitForGone(question));
    }

    std::unique_ptr<MeddlingServer> guarded;
    WindowUnderTest dialog{display};
    QString question;
};

TEST_F(PortalPassword, Declined_IsNotAskedForAgainUntilThatIsWished)
{
    Reply reply = prepare();
    ASSERT_NO_FATAL_FAILURE(openDialogAndItsQuestion());
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(dialog.waitForGone(question));
    QTest::qWait(3000);
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()});
    dialog.press({u"alt+a"_qs}); // Ask Again
    question = dialog.waitForFurtherWindow();
    ASSERT_FALSE(question.isNull());
    ASSERT_NO_FATAL_FAILURE(answer());
    EXPECT_TRUE(dialog.isConnected());
    dialog.press({u"Escape"_qs});
    reply.waitForFinished();
    EXPECT_EQ(reply.argumentAt<0>(), 1U);
}

TEST_F(PortalPassword, TypedForTheSettings_IsGoodForThePagesThatComeThenAndForNoLaterCall)
{
    Reply prepared = prepare();
    ASSERT_NO_FATAL_FAILURE(openDialogAndItsQuestion());
    ASSERT_NO_FATAL_FAILURE(answer());
    ASSERT_TRUE(dialog.isConnected());
    dialog.clickPrint();
    prepared.waitForFinished();
    ASSERT_EQ(prepared.argumentAt<0>(), 0U);
    Reply printed = print(prepared.argumentAt<1>()[u"token"_qs].toUInt());
    EXPECT_EQ(printedJob().size(), 1U);
    printed.waitForFinished();
    EXPECT_EQ(printed.argumentAt<0>(), 0U);
    EXPECT_EQ(cups.attributeOfJob(1, "job-originating-user-name"), "anna");
    // The backend goes on; what was typed is gone.
    ASSERT_TRUE(systemtest::waitUntil([this] { return dialog.windows().isEmpty(); }));
    QTest::qWait(1000);
    prepare();
    ASSERT_NO_FATAL_FAILURE(openDialogAndItsQuestion());
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(dialog.waitForGone(question));
    dialog.press({u"Escape"_qs});
}

} // namespace
