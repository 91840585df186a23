// SPDX-License-Identifier: Apache-2.0
// A dialog's side for tests.
#include "RecordingCallback.h"

#include "pdekit/PropertyList.h"

RecordingCallback::RecordingCallback(OpenPpd openPpd) : ppd(std::move(openPpd))
{
    printer.name = QStringLiteral("tape");
    printer.deviceUri = QStringLiteral("usb://Test/Tape");
    if (ppd != nullptr && ppd->num_sizes > 0) {
        usePaper(ppd->sizes[0].name);
    }
}

bool RecordingCallback::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    sent.emplace_back(key, choice);
    if (ppd != nullptr) {
        ppdMarkOption(ppd.get(), key.toUtf8().constData(), choice.toUtf8().constData());
    }
    return true;
}

void RecordingCallback::usePaper(const char *keyword)
{
    const ppd_size_t *size = ppdPageSize(ppd.get(), keyword);
    format.paper =
        pdekit::Paper{QString::fromUtf8(keyword), static_cast<double>(size->width), static_cast<double>(size->length)};
}

void RecordingCallback::usePaper(const QString &ppdPaperName, double lengthMm)
{
    format.paper = pdekit::Paper{ppdPaperName, 68.0, lengthMm * 0.0393701 * 72.0};
}

void RecordingCallback::useTicket(int labelType, int inkType)
{
    const QVariantMap ticket = {{QStringLiteral("LxHNLabelType"), labelType}, {QStringLiteral("LxHNInkType"), inkType}};
    settings.values.insert(QStringLiteral("org.tapeprint.print.PrintSettingsTicket.LxE5"),
                           pdekit::propertyListToXml(ticket));
    usePaper(QString(), 100.0);
}

std::vector<QString> RecordingCallback::sentFor(const QString &key) const
{
    std::vector<QString> choices;
    for (const Sent &each : sent) {
        if (each.first == key) {
            choices.push_back(each.second);
        }
    }
    return choices;
}

QString RecordingCallback::lastSent(const QString &key) const
{
    const std::vector<QString> choices = sentFor(key);
    return choices.empty() ? QString() : choices.back();
}

std::vector<QString> RecordingCallback::sentKeys() const
{
    std::vector<QString> keys;
    for (const Sent &each : sent) {
        keys.push_back(each.first);
    }
    return keys;
}
