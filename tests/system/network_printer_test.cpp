// SPDX-License-Identifier: Apache-2.0
// A printer that nobody has set up: it tells of itself on the network, the dialog finds it, the print server makes a
// queue of it for the job. The network is the machine's own, and the printer is CUPS's for tests.
#include "tests/support/TextPrinting.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateBus.h"
#include "tests/system/PrivateCups.h"
#include "tests/system/PrivateDisplay.h"
#include "tests/system/WindowUnderTest.h"

#include <QDir>
#include <QLockFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <unistd.h>

namespace
{

using systemtest::PrivateCups;

const QString responderProgram = QStringLiteral("/usr/sbin/avahi-daemon");
const QString printerProgram = QStringLiteral("/usr/sbin/ippeveprinter");

const char responderConfiguration[] = "[server]\n"
                                      "host-name=tapeprint-test\n"
                                      "use-ipv4=yes\n"
                                      "use-ipv6=no\n"
                                      "allow-interfaces=lo\n"
                                      "[publish]\n"
                                      "publish-workstation=no\n"
                                      "publish-hinfo=no\n";

class NetworkPrinter : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString reason = PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        for (const QString &program : {responderProgram, printerProgram}) {
            if (!QFile::exists(program)) {
                GTEST_SKIP() << program.toStdString() << " is not installed";
            }
        }
        ASSERT_TRUE(turn.tryLock(longestTurnMs));
        // Names of the network are looked up in a file, and its bus is the test's: whoever is started has both.
        succeed(bus.start({}, {}));
        const QString names = systemtest::writeFile(folder.path(u"hosts"_qs), "127.0.0.1 tapeprint-test.local\n");
        network = {{u"DBUS_SYSTEM_BUS_ADDRESS"_qs, bus.address()},
                   {u"LD_PRELOAD"_qs, u"libnss_wrapper.so"_qs},
                   {u"NSS_WRAPPER_HOSTS"_qs, names}};
        ASSERT_NO_FATAL_FAILURE(startResponder());
        if (IsSkipped()) {
            return;
        }
        startPrinter();
        for (const auto &[name, value] : network) {
            qputenv(name.toLocal8Bit().constData(), value.toLocal8Bit());
        }
        const QString problem = cups.start();
        for (const auto &[name, value] : network) {
            qunsetenv(name.toLocal8Bit().constData());
        }
        succeed(problem);
    }
    void TearDown() override
    {
        systemtest::endProcess(printer);
        systemtest::endProcess(responder);
    }

    static void succeed(const QString &problem) { ASSERT_TRUE(problem.isNull()) << problem.toStdString(); }

    void startResponder()
    {
        const QString file = systemtest::writeFile(folder.path(u"avahi.conf"_qs), responderConfiguration);
        systemtest::dieWithTest(responder);
        responder.setProcessEnvironment(systemtest::clientEnvironment({network.front()}));
        responder.setProcessChannelMode(QProcess::MergedChannels);
        responder.start(responderProgram, {u"--no-drop-root"_qs, u"--no-chroot"_qs, u"--no-rlimits"_qs,
                                           u"--no-proc-title"_qs, u"-f"_qs, file});
        QByteArray said;
        const auto isUp = [&] {
            responder.waitForReadyRead(systemtest::pollMs);
            said += responder.readAll();
            return said.contains("startup complete") || responder.state() == QProcess::NotRunning;
        };
        systemtest::waitUntil(isUp);
        if (!said.contains("startup complete")) {
            GTEST_SKIP() << "avahi-daemon cannot be started, maybe because another runs: " << said.toStdString();
        }
    }

    void startPrinter()
    {
        constexpr int firstPort = 20000; // below those that the system hands out by itself
        constexpr int ports = 10000;
        const QString port = QString::number(firstPort + getpid() % ports);
        systemtest::dieWithTest(printer);
        printer.setProcessEnvironment(systemtest::clientEnvironment({network.front()}));
        printer.start(printerProgram, {u"-n"_qs, u"localhost"_qs, u"-p"_qs, port, u"-d"_qs, spool, u"-k"_qs, u"-K"_qs,
                                       folder.makeFolder(u"keys"_qs), u"-f"_qs, u"application/pdf,image/pwg-raster"_qs,
                                       u"-r"_qs, u"_print"_qs, u"-l"_qs, u"Attic"_qs, u"Label Printer Upstairs"_qs});
    }

    systemtest::Client client(const QStringList &arguments) const
    {
        std::vector<std::pair<QString, QString>> variables = cups.clientVariables();
        variables.insert(variables.end(), network.begin(), network.end());
#ifdef __SANITIZE_ADDRESS__
        // The sanitizer's runtime would insist on being loaded before all others, and refuse a library bound deeply.
        variables.emplace_back(u"NSS_WRAPPER_DISABLE_DEEPBIND"_qs, u"1"_qs);
        variables.emplace_back(u"ASAN_OPTIONS"_qs,
                               qEnvironmentVariable("ASAN_OPTIONS") + u":verify_asan_link_order=0"_qs);
#endif
        return {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), arguments, variables};
    }

    /// Waits until the printer has got so many documents.
    bool hasPrinted(qsizetype documents) const
    {
        return systemtest::waitUntil([&] { return QDir(spool).entryList({u"*.pdf"_qs}).size() == documents; });
    }

    /// A machine has one responder at a time: these tests take turns.
    static constexpr int longestTurnMs = 120000;
    QLockFile turn{QDir::temp().filePath(u"tapeprint-network-tests.lock"_qs)};
    systemtest::PrivateFolder folder;
    QString spool = folder.makeFolder(u"spool"_qs);
    QString document = QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf");
    std::vector<std::pair<QString, QString>> network;
    systemtest::PrivateBus bus;
    QProcess responder;
    QProcess printer;
    PrivateCups cups;
};

TEST_F(NetworkPrinter, IsOfferedOpenedAndPrintedOnWithAndWithoutAWindow)
{
    const QString name = u"Label_Printer_Upstairs"_qs;
    // It is offered before there is a queue of it.
    QByteArray offered;
    const auto isOffered = [&] {
        offered = systemtest::runClient({u"/usr/bin/lpstat"_qs, {u"-e"_qs}, client({}).variables}).output;
        return offered.split('\n').contains(name.toLatin1());
    };
    ASSERT_TRUE(systemtest::waitUntil(isOffered)) << offered.toStdString();

    const systemtest::Outcome outcome = systemtest::runClient(client({u"--no-dialog"_qs, u"-d"_qs, name, document}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.startsWith("Job Label_Printer_Upstairs-")) << outcome.output.toStdString();
    EXPECT_TRUE(hasPrinted(1));

    if (const QString reason = systemtest::PrivateDisplay::reasonToSkip(); !reason.isNull()) {
        GTEST_SKIP() << reason.toStdString();
    }
    systemtest::PrivateDisplay display;
    succeed(display.start());
    systemtest::WindowUnderTest window(display);
    succeed(window.open(client({u"-d"_qs, name, document})));
    window.clickPrint();
    EXPECT_TRUE(hasPrinted(2));
}

TEST_F(NetworkPrinter, IsFoundByAWindowThatNobodyGaveAPrinter)
{
    if (const QString reason = systemtest::PrivateDisplay::reasonToSkip(); !reason.isNull()) {
        GTEST_SKIP() << reason.toStdString();
    }
    systemtest::PrivateDisplay display;
    succeed(display.start());
    systemtest::WindowUnderTest window(display);
    succeed(window.open(client({document})));
    // The server has no queue: what there is to be picked was found on the network.
    const QByteArray before = window.title();
    window.press({u"alt+r"_qs});
    const auto isPicked = [&] {
        window.press({u"Down"_qs});
        return window.title() != before;
    };
    ASSERT_TRUE(systemtest::waitUntil(isPicked)) << before.toStdString();
    EXPECT_TRUE(window.isConnected());
    window.clickPrint();
    EXPECT_TRUE(hasPrinted(1));
}

} // namespace
