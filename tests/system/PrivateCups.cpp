// SPDX-License-Identifier: Apache-2.0
// The private server's configuration and queues. Filters run as the user lp, who must be able to pass every folder and
// to write where records and temporary files go.
#include "tests/system/PrivateCups.h"

#include "tests/system/Client.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <memory>
#include <span>

#include <arpa/inet.h>
#include <cups/cups.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace systemtest
{

namespace
{

const QString serverProgram = QStringLiteral("/usr/sbin/cupsd");
const QString labelFilter = QStringLiteral("/usr/lib/cups/filter/rastertolabel");

const char filesConfiguration[] = "ServerRoot %1/etc\n"
                                  "RequestRoot %1/spool\n"
                                  "TempDir %1/spool/tmp\n"
                                  "CacheDir %1/cache\n"
                                  "StateDir %1/run\n"
                                  "AccessLog %1/log/access_log\n"
                                  "ErrorLog %1/log/error_log\n"
                                  "PageLog %1/log/page_log\n"
                                  "ServerBin /usr/lib/cups\n"
                                  "DataDir /usr/share/cups\n"
                                  "FileDevice Yes\n"
                                  "Sandboxing Relaxed\n"
                                  "User lp\n"
                                  "Group lp\n";

const char serverConfiguration[] = "LogLevel debug\n"
                                   "MaxLogSize 0\n"
                                   "Listen %1/cups.sock\n"
                                   "Browsing Off\n"
                                   "WebInterface No\n"
                                   "DefaultAuthType None\n"
                                   "JobPrivateAccess all\n"
                                   "JobPrivateValues none\n"
                                   "<Location />\n"
                                   "  Order allow,deny\n"
                                   "  Allow all\n"
                                   "</Location>\n"
                                   "<Policy default>\n"
                                   "  JobPrivateAccess all\n"
                                   "  JobPrivateValues none\n"
                                   "  <Limit All>\n"
                                   "    Order allow,deny\n"
                                   "    Allow all\n"
                                   "  </Limit>\n"
                                   "</Policy>\n";

/// The record is whole when it takes its name; runs of one job follow each other and are numbered.
const char recordingScript[] = "#!/bin/sh\n"
                               "n=1\n"
                               "while [ -e '%1'/\"$1.$n\" ]; do n=$((n + 1)); done\n"
                               "printf '%s\\0' \"$@\" >'%1'/\"$1.$n.part\" || exit 1\n"
                               "mv '%1'/\"$1.$n.part\" '%1'/\"$1.$n\" || exit 1\n"
                               "exec '%2' \"$@\"\n";

struct ConnectionDeleter {
    void operator()(http_t *connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, ConnectionDeleter>;

Connection connectTo(const QString &socket)
{
    constexpr int connectMs = 1000;
    return Connection(httpConnect2(QFile::encodeName(socket).constData(), 0, nullptr, AF_UNSPEC,
                                   HTTP_ENCRYPTION_IF_REQUESTED, 1, connectMs, nullptr));
}

QByteArray filled(const char *text, const QString &first, const QString &second = {})
{
    return QByteArray(text).replace("%1", QFile::encodeName(first)).replace("%2", QFile::encodeName(second));
}

/// The module that looks for passwords in a file, in the folder of the machine's kind.
QString passwordModule()
{
    const QDir libraries(QStringLiteral("/usr/lib"));
    for (const QString &folder : libraries.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString module = libraries.filePath(folder + QLatin1String("/pam_wrapper/pam_matrix.so"));
        if (QFileInfo::exists(module)) {
            return module;
        }
    }
    return {};
}

QString describedBy(const QString &description)
{
    return QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-%1.ppd").arg(description);
}

struct AnswerDeleter {
    void operator()(ipp_t *answer) const { ippDelete(answer); }
};
using Answer = std::unique_ptr<ipp_t, AnswerDeleter>;

/// All that the server knows of one job; null when it answers nothing.
Answer askAboutJob(const Connection &connection, int jobId)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    return Answer(cupsDoRequest(connection.get(), request, "/"));
}

} // namespace

PrivateCups::PrivateCups() = default;

PrivateCups::~PrivateCups()
{
    endProcess(mServer);
}

QString PrivateCups::reasonToSkip()
{
    if (geteuid() != 0) {
        return QStringLiteral("A print server that runs filters as their own user must be started by root.");
    }
    if (!QFileInfo(serverProgram).isExecutable() || !QFileInfo(labelFilter).isExecutable()) {
        return QStringLiteral("cupsd or rastertolabel is missing: install cups-daemon and cups.");
    }
    return {};
}

void PrivateCups::requirePassword(const QByteArray &user, const QByteArray &password)
{
    mPassword = user + ':' + password;
    // A port that is free now; the server may use it again at once.
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const int probe = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The socket interface takes every kind of address through this one type.
    auto *any = reinterpret_cast<sockaddr *>(&address);
    if (bind(probe, any, size) == 0 && getsockname(probe, any, &size) == 0) {
        mGuardedPort = ntohs(address.sin_port);
    }
    close(probe);
}

/// The server asks PAM, and PAM is given a file of the test's own to look into.
void PrivateCups::guard(QByteArray &configuration)
{
    configuration.replace("DefaultAuthType None", "DefaultAuthType Basic");
    configuration.replace("  <Limit All>", "  <Limit Create-Job Print-Job>\n"
                                           "    AuthType Basic\n"
                                           "    Require valid-user\n"
                                           "    Order allow,deny\n"
                                           "    Allow all\n"
                                           "  </Limit>\n"
                                           "  <Limit All>");
    configuration += "Listen " + guardedServer().toLatin1() + '\n';
    mFolder.makeFolder(QStringLiteral("etc/ssl"), 0700); // for a certificate, if somebody wants an encrypted connection
    const QString known = writeFile(mFolder.path(QStringLiteral("passwords")), mPassword + ":cups\n", 0600);
    const QByteArray module = QFile::encodeName(passwordModule()) + " passdb=" + QFile::encodeName(known) + '\n';
    const QString services = mFolder.makeFolder(QStringLiteral("pam"));
    for (const char *name : {"/cups", "/other"}) {
        writeFile(services + QLatin1String(name), "auth required " + module + "account required " + module, 0644);
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral("libpam_wrapper.so"));
    environment.insert(QStringLiteral("PAM_WRAPPER"), QStringLiteral("1"));
    environment.insert(QStringLiteral("PAM_WRAPPER_SERVICE_DIR"), services);
    mServer.setProcessEnvironment(environment);
}

QString PrivateCups::start()
{
    const passwd *printUser = getpwnam("lp");
    if (!mFolder.isValid() || printUser == nullptr) {
        return QStringLiteral("There is no temporary folder, or no user lp.");
    }
    for (const char *name :
         {"etc", "etc/ppd", "spool", "spool/tmp", "cache", "run", "run/certs", "log", "out", "record"}) {
        const QString path = mFolder.makeFolder(QString::fromLatin1(name));
        if (chown(QFile::encodeName(path).constData(), printUser->pw_uid, printUser->pw_gid) != 0) {
            return QStringLiteral("The folder %1 cannot be given to the user lp.").arg(path);
        }
    }
    for (const char *name : {"home", "home/root", "home/tmp"}) {
        mFolder.makeFolder(QString::fromLatin1(name));
    }
    mFolder.makeFolder(QStringLiteral("home/runtime"), 0700); // the toolkit insists on it
    const QString files =
        writeFile(mFolder.path(QStringLiteral("cups-files.conf")), filled(filesConfiguration, mFolder.path()), 0640);
    QByteArray configuration = mMoreConfiguration + filled(serverConfiguration, mFolder.path());
    if (!mPassword.isEmpty()) {
        guard(configuration);
    }
    const QString server = writeFile(mFolder.path(QStringLiteral("cupsd.conf")), configuration, 0640);

    QByteArray queues;
    for (int i = 0; i < mManyQueues; ++i) {
        queues += "<Printer many-" + QByteArray::number(i) +
                  ">\nInfo One of many\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</Printer>\n";
    }
    writeFile(mFolder.path(QStringLiteral("etc/printers.conf")), queues, 0600);
    dieWithTest(mServer);
    mServer.setProcessChannelMode(QProcess::MergedChannels);
    mServer.start(serverProgram, {QStringLiteral("-f"), QStringLiteral("-c"), server, QStringLiteral("-s"), files});
    const bool answers = waitUntil([this] {
        mServer.waitForFinished(0); // notices an early end
        return mServer.state() == QProcess::NotRunning || connectTo(socket()) != nullptr;
    });
    if (!answers || mServer.state() == QProcess::NotRunning) {
        return QStringLiteral("cupsd does not answer. It says: %1 %2")
            .arg(QString::fromUtf8(mServer.readAll()), QString::fromUtf8(errorLog().right(2000)));
    }
    return {};
}

QByteArray PrivateCups::errorLog() const
{
    return contentsOf(mFolder.path(QStringLiteral("log/error_log")));
}

std::vector<std::pair<QString, QString>> PrivateCups::clientVariables() const
{
    // Root's lpoptions would go to the machine's own folder without the third.
    return {{QStringLiteral("CUPS_SERVER"), socket()},
            {QStringLiteral("HOME"), mFolder.path(QStringLiteral("home"))},
            {QStringLiteral("CUPS_SERVERROOT"), mFolder.path(QStringLiteral("home/root"))},
            {QStringLiteral("TMPDIR"), mFolder.path(QStringLiteral("home/tmp"))},
            {QStringLiteral("XDG_RUNTIME_DIR"), mFolder.path(QStringLiteral("home/runtime"))}};
}

void PrivateCups::useHere() const
{
    for (const auto &[name, value] : clientVariables()) {
        qputenv(name.toLocal8Bit().constData(), value.toLocal8Bit());
    }
}

QString PrivateCups::startWithTape()
{
    QString problem = start();
    if (problem.isNull()) {
        problem = addRecordedQueue(u"tape"_qs, u"mm"_qs);
    }
    useHere();
    return problem;
}

QString PrivateCups::recordingFilter()
{
    // The server runs no filter that others than root could have changed.
    const QString folder = mFolder.makeFolder(QStringLiteral("filter"));
    return writeFile(folder + QLatin1String("/recordingfilter"),
                     filled(recordingScript, mFolder.path(QStringLiteral("record")), labelFilter), 0755);
}

QString PrivateCups::addRecordedQueue(const QString &name, const QString &description, const QByteArray &more)
{
    return addFilteredQueue(name, description, recordingFilter(), more);
}

QString PrivateCups::addScriptedQueue(const QString &name, const QString &description, const QByteArray &script)
{
    const QString folder = mFolder.makeFolder(QStringLiteral("filter"));
    return addFilteredQueue(name, description,
                            writeFile(folder + u'/' + name + QLatin1String("-filter"), "#!/bin/sh\n" + script, 0755));
}

QString PrivateCups::addFilteredQueue(const QString &name, const QString &description, const QString &filter,
                                      const QByteArray &more)
{
    QByteArray ppd = contentsOf(describedBy(description));
    const QByteArray shipped = " rastertolabel\"";
    if (ppd.count(shipped) != 1) {
        return QStringLiteral("The description %1 does not name the filter rastertolabel once.").arg(description);
    }
    ppd.replace(shipped, " " + QFile::encodeName(filter) + '"');
    return addQueue(name, writeFile(mFolder.path(name + QLatin1String(".ppd")), ppd + more));
}

QString PrivateCups::addPlainQueue(const QString &name, const QString &description)
{
    return addQueue(name, describedBy(description));
}

QString PrivateCups::addQueue(const QString &name, const QString &ppdPath)
{
    return run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                                           QLatin1String("file://") + outputPath(name), QStringLiteral("-P"), ppdPath});
}

QString PrivateCups::run(const QString &program, const QStringList &arguments) const
{
    const Outcome outcome = runClient({QLatin1String("/usr/sbin/") + program, arguments, clientVariables()});
    return outcome.status == 0 ? QString()
                               : QStringLiteral("%1 failed: %2")
                                     .arg(program, QString::fromUtf8(outcome.messages + errorLog().right(2000)));
}

QByteArray PrivateCups::printedBy(const QString &queue) const
{
    return contentsOf(outputPath(queue));
}

std::vector<ServerJob> PrivateCups::jobs() const
{
    const Connection connection = connectTo(socket());
    cups_job_t *found = nullptr;
    const int count = cupsGetJobs2(connection.get(), &found, nullptr, 0, CUPS_WHICHJOBS_ALL);
    std::vector<ServerJob> jobs;
    for (const cups_job_t &job : std::span(found, static_cast<std::size_t>(count > 0 ? count : 0))) {
        jobs.push_back(
            {job.id, QString::fromUtf8(job.dest), QString::fromUtf8(job.title), static_cast<int>(job.state)});
    }
    cupsFreeJobs(count, found);
    return jobs;
}

QByteArray PrivateCups::attributeOfJob(int jobId, const char *name) const
{
    const Answer answer = askAboutJob(connectTo(socket()), jobId);
    std::array<char, 1024> text{};
    ippAttributeString(ippFindAttribute(answer.get(), name, IPP_TAG_ZERO), text.data(), text.size());
    return text.data();
}

std::optional<ServerJob> PrivateCups::waitForEnd(int jobId) const
{
    std::optional<ServerJob> ended;
    waitUntil([&] {
        // The one job: a list of all ends with the 500th.
        const Answer answer = askAboutJob(connectTo(socket()), jobId);
        const auto find = [&answer](const char *name) { return ippFindAttribute(answer.get(), name, IPP_TAG_ZERO); };
        const int state = ippGetInteger(find("job-state"), 0);
        if (state > IPP_JSTATE_STOPPED) {
            const QString queue = QString::fromUtf8(ippGetString(find("job-printer-uri"), 0, nullptr));
            ended = ServerJob{jobId, queue.section(u'/', -1),
                              QString::fromUtf8(ippGetString(find("job-name"), 0, nullptr)), state};
        }
        return ended.has_value();
    });
    return ended;
}

std::vector<FilterCall> PrivateCups::filterCalls(int jobId) const
{
    std::vector<FilterCall> calls;
    for (int run = 1;; ++run) {
        const QString path = mFolder.path(QStringLiteral("record/%1.%2").arg(jobId).arg(run));
        if (!QFileInfo::exists(path)) {
            return calls;
        }
        FilterCall call{contentsOf(path).split('\0')};
        call.arguments.removeLast(); // what follows the last end mark
        calls.push_back(call);
    }
}

} // namespace systemtest
