// SPDX-License-Identifier: Apache-2.0
// What goes wrong is said in one line on standard error, with a status of its kind, and leaves neither a job nor a
// file.
#include "tests/support/ExitStatuses.h"
#include "tests/system/SystemTest.h"

#include <QDirIterator>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

using systemtest::Outcome;
using systemtest::SystemTest;

/// A socket with a name, which nobody listens on yet.
int boundSocket(const QString &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The socket interface takes every kind of address through this one type.
    EXPECT_EQ(bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    return descriptor;
}

class BadInput : public SystemTest
{
protected:
    /// \param part what the one line must hold.
    void expectFailure(testsupport::ExitStatus status, const QStringList &arguments, const char *part,
                       const QByteArray &input = {}) const
    {
        const QStringList before = files();
        const Outcome outcome = tapeprint(arguments, input);
        EXPECT_EQ(outcome.status, status) << part;
        EXPECT_EQ(outcome.output, "") << part;
        EXPECT_TRUE(outcome.messages.startsWith("tapeprint: ")) << outcome.messages.toStdString();
        EXPECT_EQ(outcome.messages.count('\n'), 1) << outcome.messages.toStdString();
        EXPECT_TRUE(outcome.messages.contains(part)) << outcome.messages.toStdString();
        EXPECT_EQ(files(), before) << part;
        EXPECT_TRUE(cups.jobs().empty()) << part;
    }

    const QString ppd = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");

private:
    /// The files where the program works, and where it keeps temporary ones.
    QStringList files() const
    {
        QStringList names;
        QStringList folders{workFolder};
        for (const auto &[name, value] : cups.clientVariables()) {
            if (name == u"HOME") {
                folders.append(value);
            }
        }
        for (const QString &root : folders) {
            QDirIterator entries(root, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                 QDirIterator::Subdirectories);
            while (entries.hasNext()) {
                names.append(entries.next());
            }
        }
        names.sort();
        return names;
    }
};

TEST_F(BadInput, UnknownQueueOrInstance_IsNamed)
{
    expectFailure(testsupport::noSuchPrinter, {u"-d"_qs, u"nosuch"_qs, u"--no-dialog"_qs, document},
                  "knows no queue nosuch");
    expectFailure(testsupport::noSuchPrinter, {u"-d"_qs, u"tape/nosuch"_qs, u"--no-dialog"_qs, document},
                  "knows no queue tape/nosuch");
    expectFailure(testsupport::noSuchPrinter, {u"--no-dialog"_qs, document}, "no default printer");
}

TEST_F(BadInput, UnknownQueueOrInstanceOfAVariable_IsNamed)
{
    moreVariables = {{u"LPDEST"_qs, u"nosuch"_qs}};
    expectFailure(testsupport::noSuchPrinter, {u"--no-dialog"_qs, document}, "knows no queue nosuch");
    moreVariables = {{u"PRINTER"_qs, u"tape/nosuch"_qs}};
    expectFailure(testsupport::noSuchPrinter, {u"--no-dialog"_qs, document}, "knows no queue tape/nosuch");
    moreVariables = {{u"PRINTER"_qs, u"lp"_qs}}; // says nothing
    expectFailure(testsupport::noSuchPrinter, {u"--no-dialog"_qs, document}, "no default printer");
}

TEST_F(BadInput, ServerThatIsNotThere_IsNamed)
{
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"nobody.sock"_qs)}};
    expectFailure(testsupport::unreachable, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document},
                  "nobody.sock does not answer");
}

TEST_F(BadInput, ServerThatDied_IsNamed)
{
    // It leaves its socket behind.
    close(boundSocket(folder.path(u"dead.sock"_qs)));
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"dead.sock"_qs)}};
    expectFailure(testsupport::unreachable, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document},
                  "dead.sock does not answer");
}

TEST_F(BadInput, ServerThatHangs_IsNamed)
{
    // It takes connections, and says nothing on them.
    const int server = boundSocket(folder.path(u"hung.sock"_qs));
    ASSERT_EQ(listen(server, 5), 0);
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"hung.sock"_qs)}, {u"TAPEPRINT_PATIENCE"_qs, u"2"_qs}};
    expectFailure(testsupport::unreachable, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document},
                  "hung.sock does not answer");
    close(server);
}

TEST_F(BadInput, PpdThatDoesNotParse_IsNamedWithItsLine)
{
    const QString broken =
        systemtest::writeFile(workFolder + u"/broken.ppd"_qs, "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\nbroken\n");
    expectFailure(testsupport::badDescription, {u"--ppd"_qs, broken, u"--no-dialog"_qs, document},
                  "broken.ppd is not valid, line 3: ");
    expectFailure(testsupport::badDescription, {u"-d"_qs, u"tape"_qs, u"--ppd"_qs, broken, u"--no-dialog"_qs, document},
                  "line 3: ");
    expectFailure(testsupport::badDescription, {u"--ppd"_qs, workFolder + u"/none.ppd"_qs, u"--no-dialog"_qs, document},
                  "none.ppd cannot be read");
}

TEST_F(BadInput, DocumentThatIsMissingOrEmpty_IsNamed)
{
    expectFailure(testsupport::badDocument, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"none.pdf"_qs},
                  "none.pdf cannot be read");
    expectFailure(testsupport::badDocument, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document, u"none.pdf"_qs},
                  "none.pdf cannot be read");
    expectFailure(testsupport::badDocument, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, workFolder}, "it is a folder");
    expectFailure(testsupport::badDocument, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs}, "Standard input is empty");
    systemtest::writeFile(workFolder + u"/empty.pdf"_qs, "");
    expectFailure(testsupport::badDocument, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"empty.pdf"_qs},
                  "empty.pdf is empty");
}

TEST_F(BadInput, OutputThatCannotBeWritten_IsNamed)
{
    const QStringList start{u"--ppd"_qs, ppd, u"--no-dialog"_qs, u"--output"_qs};
    expectFailure(testsupport::unwritableOutput, start + QStringList{u"/dev/full"_qs, document},
                  "No space left on device");
    expectFailure(testsupport::unwritableOutput, start + QStringList{workFolder + u"/none/out.prn"_qs, document},
                  "/none/out.prn cannot be written");
    // Not even root makes a file there.
    expectFailure(testsupport::unwritableOutput, start + QStringList{u"/proc/out.prn"_qs, document},
                  "/proc/out.prn cannot be written");
    expectFailure(testsupport::unwritableOutput, start + QStringList{workFolder, document}, "cannot be written");
}

TEST_F(BadInput, DocumentThatNoFilterTakes_LeavesNoOutputBehind)
{
    const QString noise = systemtest::writeFile(workFolder + u"/noise.pdf"_qs, "%PDF-1.4\nand no more\n");
    expectFailure(testsupport::badDocument, {u"--ppd"_qs, ppd, u"--no-dialog"_qs, u"--output"_qs, u"out.prn"_qs, noise},
                  "noise.pdf");
}

TEST_F(BadInput, OptionsThatAreNone_AreNamed)
{
    expectFailure(testsupport::badUsage, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-n"_qs, u"0"_qs, document},
                  "copies");
    expectFailure(testsupport::badUsage, {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-P"_qs, u"x"_qs, document},
                  "pages");
    expectFailure(testsupport::refusedValue,
                  {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-o"_qs, u"KsMargin={a=1}"_qs, document},
                  "KsMargin={a=1} is none of the choices");
    // Of an option that neither panel nor description knows, nobody but the print server would see the braces.
    expectFailure(testsupport::badUsage,
                  {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-o"_qs, u"Stranger={a=1}"_qs, document}, "braces");
}

} // namespace
