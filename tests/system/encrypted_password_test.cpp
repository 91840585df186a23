// SPDX-License-Identifier: Apache-2.0
// A password that was typed on an encrypted connection, and connections to the same server that are not encrypted.
#include "job/IppQuestion.h"
#include "job/KeptPasswords.h"
#include "job/ServerConnection.h"
#include "tests/support/TextPrinting.h"
#include "tests/system/PrivateCups.h"

#include <gtest/gtest.h>

#include <atomic>

#include <cups/cups.h>

namespace
{

using namespace tapeprint::job;
using Passwords = ServerConnection::Passwords;

class EncryptedPassword : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString reason = systemtest::PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        cups.requirePassword("anna", "right");
        const QString problem = cups.startWithTape();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        cupsSetServer(cups.guardedServer().toUtf8().constData());
        setPasswordAsker([this](const PasswordQuestion &, const std::function<bool()> &) {
            ++questions;
            QByteArray password = "right";
            return std::optional(Credentials{u"anna"_qs, Secret(password)});
        });
    }
    void TearDown() override
    {
        setPasswordAsker(nullptr);
        cupsSetEncryption(HTTP_ENCRYPTION_IF_REQUESTED);
        cupsSetServer(nullptr);
    }

    /// Makes a job, which stays without a document, on a connection of its own. \return whether the server made it.
    bool makesJob(http_encryption_t encryption, Passwords passwords)
    {
        cupsSetEncryption(encryption);
        const auto server = ServerConnection::open(&stop, passwords);
        ipp_t *request = ippNewRequest(IPP_OP_CREATE_JOB);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/printers/tape");
        const Response response = askServer(*server, request, "/printers/tape");
        EXPECT_EQ(httpIsEncrypted(server->http()) != 0, encryption == HTTP_ENCRYPTION_REQUIRED);
        return response && ippGetStatusCode(response.get()) == IPP_STATUS_OK;
    }

    systemtest::PrivateCups cups;
    std::atomic<bool> stop{false};
    int questions = 0;
};

TEST_F(EncryptedPassword, TypedOnAnEncryptedConnection_GoesOutOnNoOther)
{
    const PasswordKeeping keeping;
    ASSERT_TRUE(makesJob(HTTP_ENCRYPTION_REQUIRED, Passwords::Ask));
    EXPECT_EQ(questions, 1);
    EXPECT_FALSE(makesJob(HTTP_ENCRYPTION_IF_REQUESTED, Passwords::GoWithout));
    EXPECT_TRUE(makesJob(HTTP_ENCRYPTION_REQUIRED, Passwords::GoWithout)); // where it is kept
    EXPECT_TRUE(makesJob(HTTP_ENCRYPTION_IF_REQUESTED, Passwords::Ask));
    EXPECT_EQ(questions, 2) << "who sends it unencrypted has to be asked for that";
}

} // namespace
