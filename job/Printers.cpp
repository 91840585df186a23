// SPDX-License-Identifier: Apache-2.0
// Print queues through libcups: the server, the saved options of the person, PPDs of local and remote queues.
#include "job/Printers.h"

#include "job/Advice.h"
#include "job/IppQuestion.h"
#include "job/MemoryFile.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/SavedDestinations.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <span>
#include <thread>

#include <cups/cups.h>

namespace tapeprint::job
{

namespace
{

struct DestinationDeleter {
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using DestinationPtr = std::unique_ptr<cups_dest_t, DestinationDeleter>;

/// What a server tells about a queue stands among its options; it is no option of a job.
bool describesQueue(const QString &name)
{
    static const std::array prefixes{QLatin1String("printer-"), QLatin1String("marker-"), QLatin1String("auth-info"),
                                     QLatin1String("queued-job-count")};
    return name == u"device-uri" || std::any_of(prefixes.begin(), prefixes.end(), [&name](QLatin1String prefix) {
               return name.startsWith(prefix) && name != u"printer-resolution";
           });
}

QString optionOf(const cups_dest_t &destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

PrintQueue queueFrom(const cups_dest_t &destination)
{
    PrintQueue queue;
    queue.name = QString::fromUtf8(destination.name);
    queue.instance = QString::fromUtf8(destination.instance);
    queue.info = optionOf(destination, "printer-info");
    queue.makeModel = optionOf(destination, "printer-make-and-model");
    queue.deviceUri = optionOf(destination, "device-uri");
    for (const cups_option_t &option :
         std::span(destination.options, static_cast<std::size_t>(std::max(destination.num_options, 0)))) {
        const QString name = QString::fromUtf8(option.name);
        if (!describesQueue(name)) {
            queue.options.set(name, QString::fromUtf8(option.value));
        }
    }
    return queue;
}

/// A default of the server as libcups writes it among a destination's options.
QString defaultText(ipp_attribute_t *attribute)
{
    if (ippGetValueTag(attribute) == IPP_TAG_ENUM) {
        return QString::number(ippGetInteger(attribute, 0));
    }
    std::array<char, 1024> text{};
    ippAttributeString(attribute, text.data(), text.size());
    return QString::fromUtf8(text.data());
}

/// Asks the server for some of what it knows of a queue.
Response askAbout(const ServerConnection &server, const QString &queue, std::span<const char *const> attributes)
{
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(attributes.size()), nullptr, attributes.data());
    return askServer(server, request);
}

/// Asks about the queue, or for the server's default, what libcups is about to ask, and throws the answer away. When
/// libcups gets none it takes the printer for one of the network, and asks again on a connection of its own, which
/// hears of no change of mind and waits half a minute and more.
bool isAnswered(const ServerConnection &server, const QString &queue)
{
    const Response answer = queue.isEmpty() ? askServer(server, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT))
                                            : askAbout(server, queue, std::array{"printer-name"});
    return answer != nullptr || (!server.isStopped() && !server.isUnreachable() && !server.wasRefused());
}

/// Asks the server for what it knows of the queue alone. What it adds to every job by itself is taken away: only what
/// the person saved is laid down by the dialog.
void completeFromServer(const ServerConnection &server, PrintQueue &queue)
{
    const Response response = askAbout(
        server, queue.name,
        std::array{"printer-config-change-time", "printer-defaults", "copies-supported", "number-up-supported"});
    queue.limits = limitsIn(response.get());
    static const QLatin1String ending("-default");
    for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute != nullptr;
         attribute = ippNextAttribute(response.get())) {
        QString name = QString::fromUtf8(ippGetName(attribute));
        if (name == u"printer-config-change-time") {
            queue.configuredAt = ippGetInteger(attribute, 0);
        }
        if (!name.endsWith(ending)) {
            continue;
        }
        name.chop(ending.size());
        if (queue.options.contains(name) && queue.options.value(name) == defaultText(attribute)) {
            queue.options.remove(name);
        }
    }
}

Problem noMemory(const PrintQueue &queue)
{
    return Texts::tr("The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.")
        .arg(harmless(queue.name), qt_error_string());
}

/// The queues of a class, whose PPD is that of the first.
QString firstMember(const ServerConnection &server, const QString &name)
{
    const Response response = askAbout(server, name, std::array{"member-names"});
    ipp_attribute_t *members = ippFindAttribute(response.get(), "member-names", IPP_TAG_NAME);
    return QString::fromUtf8(ippGetString(members, 0, nullptr));
}

/// Writes a queue's PPD into an open file. cupsGetPPD3 does the same, but on a connection of its own, which hears of no
/// change of mind and waits for a silent server for good; and it takes what a server cut short for the whole.
http_status_t fetchPpd(const ServerConnection &server, const QString &name, const MemoryFile &file)
{
    static const QLatin1String folder("/printers/");
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/printers/%s.ppd", name.toUtf8().constData());
    const QByteArray resource = QByteArray(uri.data()).mid(QByteArrayView(uri.data()).indexOf(folder));
    const http_status_t status = cupsGetFd(server.http(), resource.constData(), file.handle());
    bool isLengthTold = false;
    const qint64 length = QByteArray(httpGetField(server.http(), HTTP_FIELD_CONTENT_LENGTH)).toLongLong(&isLengthTold);
    return status == HTTP_STATUS_OK && isLengthTold && file.size() != length ? HTTP_STATUS_ERROR : status;
}

/// The same for a queue or a class.
http_status_t fetchPpdOfQueueOrClass(const ServerConnection &server, const QString &name, const MemoryFile &file)
{
    const http_status_t status = fetchPpd(server, name, file);
    if (status != HTTP_STATUS_NOT_FOUND) {
        return status;
    }
    const QString member = firstMember(server, name);
    return member.isEmpty() ? status : fetchPpd(server, member, file);
}

/// A printer found on the network has no queue until the print server is asked for one, which lasts as long as it is
/// used. Its description is made from what the printer says of itself, and is there a while later. Where the server
/// makes none, the printer is one without a description.
void makeQueueOf(const ServerConnection &server, const cups_dest_t &found)
{
    constexpr std::chrono::seconds timeToDescribe{10};
    constexpr std::chrono::milliseconds betweenLooks{100};
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const auto add = [&](ipp_tag_t type, const char *name, const QString &value) {
        if (!value.isEmpty()) {
            ippAddString(request, IPP_TAG_PRINTER, type, name, nullptr, value.toUtf8().constData());
        }
    };
    add(IPP_TAG_URI, "device-uri", optionOf(found, "device-uri"));
    add(IPP_TAG_NAME, "printer-name", QString::fromUtf8(found.name));
    add(IPP_TAG_TEXT, "printer-info", optionOf(found, "printer-info"));
    add(IPP_TAG_TEXT, "printer-location", optionOf(found, "printer-location"));
    const Response response = askServer(server, request);
    const MemoryFile description(mostPpdBytes + 1);
    if (!response || ippGetStatusCode(response.get()) > IPP_STATUS_OK_EVENTS_COMPLETE || !description.isOpen()) {
        return;
    }
    const auto end = std::chrono::steady_clock::now() + timeToDescribe;
    while (!server.isStopped() && std::chrono::steady_clock::now() < end &&
           fetchPpd(server, QString::fromUtf8(found.name), description) == HTTP_STATUS_NOT_FOUND) {
        std::this_thread::sleep_for(betweenLooks);
    }
}

bool isDiscovered(const cups_dest_t &destination)
{
    return (optionOf(destination, "printer-type").toUInt() & CUPS_PRINTER_DISCOVERED) != 0U;
}

} // namespace

QueueName QueueName::parse(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    return slash < 0 ? QueueName{text, {}} : QueueName{text.left(slash), text.mid(slash + 1)};
}

Problem serverProblem(const ServerConnection &server)
{
    if (server.isStopped()) {
        return {Problem::Cancelled, QString()};
    }
    // One that wants a password does answer: it is not asked again until it is there.
    return {server.wasDeclined()  ? Problem::Cancelled
            : server.wasRefused() ? Problem::RejectedJob
                                  : Problem::Unreachable,
            server.isOpen() || server.wasRefused() ? server.problem() : ServerConnection::noAnswer()};
}

std::optional<PrintQueue> findQueue(const ServerConnection &server, const QueueName &named, Problem *error)
{
    // Looked up by name as well, so that one which is not there is said by its name.
    const QueueName wanted = named.queue.isEmpty() ? namedByVariable() : named;
    const QString &name = wanted.queue;
    const QString &instance = wanted.instance;
    if (!server.isOpen() || !isAnswered(server, name)) {
        *error = serverProblem(server);
        if (error->kind == Problem::Unreachable && !server.wasRefused()) {
            error->sentence = ServerConnection::noAnswer(); // it has not been heard before
        }
        return std::nullopt;
    }
    const QByteArray nameBytes = name.toUtf8();
    const QByteArray instanceBytes = instance.toUtf8();
    const DestinationPtr destination(cupsGetNamedDest(server.http(), name.isEmpty() ? nullptr : nameBytes.constData(),
                                                      instance.isEmpty() ? nullptr : instanceBytes.constData()));
    // libcups answers any instance of a queue that exists: whether the person has one of that name is asked apart.
    if (destination && (instance.isEmpty() || SavedDestinations::read().hasInstance(wanted))) {
        PrintQueue queue = queueFrom(*destination);
        if (isDiscovered(*destination)) {
            makeQueueOf(server, *destination);
        }
        completeFromServer(server, queue);
        return queue;
    }
    if (server.isStopped() || server.isUnreachable()) {
        *error = serverProblem(server);
    } else if (name.isEmpty()) {
        *error = {Problem::NoSuchPrinter,
                  advice(Texts::tr("There is no default printer: choose one."),
                         QStringLiteral("There is no default printer: name a print queue with -d QUEUE, or print "
                                        "without one with --ppd FILE."))};
    } else {
        *error = {Problem::NoSuchPrinter,
                  advice(Texts::tr("The print server knows no queue %1: choose another printer."),
                         QStringLiteral("The print server knows no queue %1: see lpstat -e for the queues there are."))
                      .arg(harmless(wanted.text()))};
    }
    return std::nullopt;
}

PpdFile openQueuePpd(const ServerConnection &server, const PrintQueue &queue, QByteArray *digest, Problem *error)
{
    const MemoryFile file(mostPpdBytes + 1);
    if (!file.isOpen()) {
        *error = noMemory(queue);
        return nullptr;
    }
    const http_status_t status = fetchPpdOfQueueOrClass(server, queue.name, file);
    if (status == HTTP_STATUS_NOT_FOUND) {
        return nullptr;
    }
    if (server.isStopped() || server.isUnreachable() || server.wasRefused()) {
        *error = serverProblem(server);
        return nullptr;
    }
    if (status != HTTP_STATUS_OK) {
        *error = {Problem::Unreachable,
                  Texts::tr("The PPD of queue %1 cannot be had from the print server (%2): see that the queue is "
                            "set up.")
                      .arg(harmless(queue.name), reasonText(QString::fromUtf8(cupsLastErrorString())))};
        return nullptr;
    }
    const std::optional<QByteArray> ppd = file.contents();
    if (!ppd) {
        *error = noMemory(queue);
        return nullptr;
    }
    *digest = QCryptographicHash::hash(*ppd, QCryptographicHash::Sha256);
    return openPpd(*ppd, error, Texts::tr("of queue %1").arg(queue.name));
}

} // namespace tapeprint::job
