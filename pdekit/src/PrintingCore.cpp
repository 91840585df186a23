// SPDX-License-Identifier: Apache-2.0
// The operations of the printing core. They check their arguments and answer a status, so that a panel may ask for
// anything a dialog did not provide.
#include "pdekit/PrintingCore.h"

#include "pdekit/PropertyList.h"

namespace pdekit
{

namespace
{

OSStatus valueInDictionary(const QVariantMap &dictionary, const QString &key, QVariant *value)
{
    const auto found = dictionary.constFind(key);
    if (found == dictionary.constEnd()) {
        return kPMKeyNotFound;
    }
    *value = *found;
    return kPMNoError;
}

void putInDictionary(QVariantMap &dictionary, const QString &key, const QVariant &value)
{
    if (value.isValid()) {
        dictionary.insert(key, value);
    } else {
        dictionary.remove(key);
    }
}

OSStatus pageNumber(const PrintSettings *settings, const QString &key, std::uint32_t *page)
{
    if (settings == nullptr || page == nullptr) {
        return kPMInvalidParameter;
    }
    const std::optional<std::int32_t> number = propertyListInt32(settings->values.value(key));
    if (!number) {
        return kPMKeyNotFound;
    }
    *page = static_cast<std::uint32_t>(*number);
    return kPMNoError;
}

} // namespace

OSStatus PMPrinterCopyDeviceURI(const Printer *printer, QString *uri)
{
    if (printer == nullptr || uri == nullptr) {
        return kPMInvalidParameter;
    }
    *uri = printer->deviceUri;
    return uri->isNull() ? kPMNoSuchEntry : kPMNoError;
}

OSStatus PMGetPageFormatPaper(const PageFormat *format, PMPaper *paper)
{
    if (format == nullptr || paper == nullptr) {
        return kPMInvalidParameter;
    }
    *paper = format->paper ? &*format->paper : nullptr;
    return kPMNoError;
}

OSStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name)
{
    if (paper == nullptr || name == nullptr) {
        return kPMInvalidParameter;
    }
    *name = paper->ppdPaperName;
    return name->isNull() ? kPMNoSuchEntry : kPMNoError;
}

OSStatus PMPaperGetHeight(PMPaper paper, double *heightPt)
{
    if (paper == nullptr || heightPt == nullptr) {
        return kPMInvalidParameter;
    }
    *heightPt = paper->heightPt;
    return kPMNoError;
}

OSStatus PMPaperGetWidth(PMPaper paper, double *widthPt)
{
    if (paper == nullptr || widthPt == nullptr) {
        return kPMInvalidParameter;
    }
    *widthPt = paper->widthPt;
    return kPMNoError;
}

OSStatus PMPrintSettingsGetValue(const PrintSettings *settings, const QString &key, QVariant *value)
{
    if (settings == nullptr || value == nullptr) {
        return kPMInvalidParameter;
    }
    return valueInDictionary(settings->values, key, value);
}

OSStatus PMPrintSettingsSetValue(PrintSettings *settings, const QString &key, const QVariant &value, bool locked)
{
    if (settings == nullptr || key.isNull()) {
        return kPMInvalidParameter;
    }
    if (settings->lockedKeys.contains(key)) {
        return kPMLocked;
    }
    putInDictionary(settings->values, key, value);
    if (locked) {
        settings->lockedKeys.insert(key);
    }
    return kPMNoError;
}

OSStatus PMSessionGetDataFromSession(const PrintSession *session, const QString &key, QVariant *value)
{
    if (session == nullptr || value == nullptr) {
        return kPMInvalidParameter;
    }
    return valueInDictionary(session->data, key, value);
}

OSStatus PMSessionSetDataInSession(PrintSession *session, const QString &key, const QVariant &value)
{
    if (session == nullptr || key.isNull()) {
        return kPMInvalidParameter;
    }
    putInDictionary(session->data, key, value);
    return kPMNoError;
}

OSStatus PMGetFirstPage(const PrintSettings *settings, std::uint32_t *first)
{
    return pageNumber(settings, PrintSettingsKey::firstPage, first);
}

OSStatus PMSetFirstPage(PrintSettings *settings, std::uint32_t first, bool lock)
{
    return PMPrintSettingsSetValue(settings, PrintSettingsKey::firstPage, qlonglong{first}, lock);
}

OSStatus PMGetLastPage(const PrintSettings *settings, std::uint32_t *last)
{
    return pageNumber(settings, PrintSettingsKey::lastPage, last);
}

OSStatus PMSetLastPage(PrintSettings *settings, std::uint32_t last, bool lock)
{
    return PMPrintSettingsSetValue(settings, PrintSettingsKey::lastPage, qlonglong{last}, lock);
}

OSStatus PMPrintSettingsCreateDataRepresentation(const PrintSettings *settings, QByteArray *data)
{
    if (settings == nullptr || data == nullptr) {
        return kPMInvalidParameter;
    }
    const QByteArray xml = propertyListToXml(settings->values);
    if (xml.isEmpty()) {
        return kPMInvalidParameter;
    }
    *data = xml;
    return kPMNoError;
}

} // namespace pdekit
