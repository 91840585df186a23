// SPDX-License-Identifier: Apache-2.0
// Any dictionaries of a program's, as the portal hands them on, one entry a line: the dictionary (s the print settings,
// p the page setup, o the options of the call), the type of the value (see valueOf), then KEY=VALUE, where "\n" is an
// end of line. What is understood fits the printer, the answer says what was done, and read again asks for no more.
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "job/CupsOptions.h"
#include "job/CustomValues.h"
#include "job/PageRanges.h"
#include "job/PlainText.h"
#include "job/PpdFile.h"
#include "job/PpdMarks.h"
#include "job/UsualOptions.h"
#include "portal/Conversation.h"
#include "portal/ParentWindow.h"
#include "portal/PortalSettings.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QLoggingCategory>

#include <algorithm>
#include <cmath>

#include <pdekit/Numbers.h>

using namespace tapeprint;
using fuzz::require;

namespace
{

/// A tape with named and free sizes, a resolution, and own values of one and of two parameters, one of them secret.
const QByteArray description = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*ModelName: "T"
*NickName: "T"
*OpenUI *PageSize: PickOne
*DefaultPageSize: T72
*PageSize T72: ""
*PageSize S72: ""
*CloseUI: *PageSize
*DefaultPaperDimension: T72
*PaperDimension T72: "72 288"
*PaperDimension S72: "72 144"
*DefaultImageableArea: T72
*ImageableArea T72: "3 0 69 288"
*ImageableArea S72: "0 0 72 144"
*HWMargins: 2 5 4 1
*VariablePaperSize: True
*NonUIOrderDependency: 100 AnySetup *CustomPageSize
*CustomPageSize True: "pop pop pop pop pop"
*ParamCustomPageSize Width: 1 points 36 144
*ParamCustomPageSize Height: 2 points 36 720
*OpenUI *Length: PickOne
*DefaultLength: 80.0
*Length 80.0: ""
*CloseUI: *Length
*OpenUI *Resolution: PickOne
*DefaultResolution: 300x300dpi
*Resolution 300x300dpi: ""
*Resolution 300x600dpi: ""
*CloseUI: *Resolution
*OpenUI *Duplex: PickOne
*DefaultDuplex: None
*Duplex None: ""
*Duplex DuplexTumble: ""
*Duplex DuplexNoTumble: ""
*CloseUI: *Duplex
*OpenUI *MediaType: PickOne
*DefaultMediaType: Film
*MediaType Film: ""
*MediaType Paper: ""
*CloseUI: *MediaType
*OpenUI *Finish: PickMany
*DefaultFinish: None
*Finish None: ""
*Finish Cut: ""
*Finish Fold: ""
*CloseUI: *Finish
*OpenUI *JobPin: PickOne
*DefaultJobPin: None
*JobPin None: ""
*CustomJobPin True: "pop"
*ParamCustomJobPin Pin: 1 passcode 4 4
*CloseUI: *JobPin
*OpenUI *Stamp: PickOne
*DefaultStamp: None
*Stamp None: ""
*CustomStamp True: "pop pop"
*ParamCustomStamp Text: 1 string 0 20
*ParamCustomStamp Size: 2 points 1 100
*CloseUI: *Stamp
)PPD";

job::PpdFile openDescription()
{
    const fuzz::MemoryFile file;
    const QString path = file.hold(reinterpret_cast<const std::uint8_t *>(description.constData()),
                                   static_cast<std::size_t>(description.size()));
    return job::PpdFile(ppdOpenFile(path.toLatin1().constData()));
}

bool isHarmless(const QString &text)
{
    return job::harmless(text) == text;
}

void checkLogged(QtMsgType, const QMessageLogContext &, const QString &message)
{
    require(isHarmless(message));
}

bool prepare()
{
    qputenv("XDG_DATA_HOME", "/nonexistent");
    qputenv("XDG_DATA_DIRS", "/nonexistent");
    QLoggingCategory::setFilterRules(QStringLiteral("*=true\nqt.*=false"));
    qInstallMessageHandler(checkLogged);
    return true;
}

struct Call {
    QVariantMap settings;
    QVariantMap pageSetup;
    QVariantMap options;
};

/// A value as it comes off the bus.
QVariant valueOf(QChar type, const QString &text)
{
    switch (type.toLatin1()) {
    case 's':
        return text;
    case 'd':
        return text.toDouble();
    case 'u':
        return text.toUInt();
    case 'i':
        return text.toInt();
    case 'b':
        return text == u"true";
    case 't':
        return QVariant::fromValue(text.toULongLong());
    case 'a':
        return text.split(u',');
    case 'y':
        return text.toUtf8();
    case 'o':
        return QVariant::fromValue(QDBusObjectPath(QStringLiteral("/a")));
    case 'v':
        return QVariant::fromValue(QDBusVariant(text));
    case 'm':
        return QVariant::fromValue(QDBusArgument()); // what a structure arrives as
    default:
        return {};
    }
}

Call callOf(const QString &input)
{
    Call call;
    for (const QString &line : input.split(u'\n')) {
        const QString entry = line.mid(2);
        const QString key = entry.section(u'=', 0, 0);
        const QVariant value = valueOf(line.size() < 2 ? QChar() : line[1],
                                       entry.section(u'=', 1).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
        if (line.startsWith(u's')) {
            call.settings.insert(key, value);
        } else if (line.startsWith(u'p')) {
            call.pageSetup.insert(key, value);
        } else if (line.startsWith(u'o')) {
            call.options.insert(key, value);
        }
    }
    return call;
}

/// The values of general options become words of a command: they are words and numbers, whatever was asked.
bool isWord(const QString &value)
{
    return !value.isEmpty() && std::all_of(value.begin(), value.end(), [](QChar letter) {
        return letter.unicode() < 128 && (letter.isLetterOrNumber() || letter == u'-' || letter == u',');
    });
}

void checkUsual(const job::JobOptions &usual)
{
    for (const auto &[name, value] : usual.entries()) {
        // Pages that are no list are shown to the person as they came, and are refused when they are to be printed.
        const bool isRefused = name == job::OptionName::pageRanges && !job::pageRangesProblem(value).isNull();
        require(isWord(value) || (isRefused && isHarmless(value)));
        if (name == job::OptionName::copies) {
            require(value.toInt() >= 2 && value.toInt() <= 9999);
        } else if (name == job::OptionName::numberUp) {
            require(value.toInt() >= 2);
        } else {
            require(name == job::OptionName::collate || name == job::OptionName::outputOrder ||
                    name == job::OptionName::pageSet || name == job::OptionName::numberUpLayout ||
                    name == job::OptionName::pageRanges || name == job::OptionName::orientation);
        }
    }
}

void checkTexts(const QVariantMap &settings)
{
    for (const QVariant &value : settings) {
        require(value.userType() == QMetaType::QString);
    }
}

bool isSecret(ppd_file_t *ppd, const QString &keyword, const QString &value)
{
    return job::withoutSecret(ppd, keyword, value) != value;
}

/// Nothing is invented: options of the description by its own names, with choices that it lists or values it takes.
void checkFitting(const job::JobOptions &fit, ppd_file_t *ppd)
{
    for (const auto &[name, value] : fit.entries()) {
        const ppd_option_t *option = job::findOption(ppd, name);
        require(option != nullptr && name == QString::fromUtf8(option->keyword));
        if (job::isCustomValue(value)) {
            const std::vector<job::CustomParameter> parameters = job::customParameters(ppd, name);
            require(!parameters.empty() &&
                    job::customValuesIn(parameters, value).size() == static_cast<qsizetype>(parameters.size()));
        } else {
            require(job::listedChoice(ppd, name, value) == value || job::isNumber(value));
        }
    }
}

/// The job of a person who agreed to all that the program asked for.
job::SettledJob agreed(const portal::AskedSettings &asked, const job::JobOptions &fit, ppd_file_t *ppd)
{
    job::TapeKeywords keywords;
    keywords.lengthOption = QStringLiteral("Length");
    job::SettledJob settled;
    settled.queue = job::PrintQueue();
    settled.queue->name = QStringLiteral("tape");
    settled.options = asked.usual;
    for (const auto &[name, value] : fit.entries()) {
        settled.options.set(name, value);
    }
    ppdMarkDefaults(ppd);
    const job::CupsOptions options(settled.options);
    cupsMarkOptions(ppd, options.count(), options.data());
    settled.page = job::tapePageOf(ppd, settled.options, keywords);
    return settled;
}

/// What is done is not asked for once more, and what was chosen is chosen the next time; secrets are for no program.
void checkAskedAgain(const portal::AskedSettings &again, const job::JobOptions &fit, ppd_file_t *ppd)
{
    require(again.printer == u"tape");
    for (const auto &[name, value] : again.usual.entries()) {
        require(name == job::OptionName::orientation);
    }
    const job::JobOptions fitAgain = portal::fitting(again, ppd);
    for (const auto &[name, value] : fit.entries()) {
        require(isSecret(ppd, name, value) ? fitAgain.value(name) != value : fitAgain.value(name) == value);
    }
}

void checkSettings(const QVariantMap &settings, const QVariantMap &pageSetup, ppd_file_t *ppd)
{
    const portal::AskedSettings asked = portal::askedSettings(settings, pageSetup);
    checkTexts(asked.given);
    checkUsual(asked.usual);
    require(std::isfinite(asked.paperMm.width()) && std::isfinite(asked.paperMm.height()));
    require(portal::fitting(asked, nullptr).entries().empty());
    const job::JobOptions fit = portal::fitting(asked, ppd);
    checkFitting(fit, ppd);
    const job::SettledJob settled = agreed(asked, fit, ppd);
    const QVariantMap answer = portal::answeredSettings(asked, settled, ppd);
    checkTexts(answer);
    const QVariantMap answeredSetup = portal::answeredPageSetup(settled);
    checkAskedAgain(portal::askedSettings(answer, answeredSetup), fit, ppd);
    require(!portal::withoutProgramsPart(settled).options.contains(job::OptionName::orientation));
}

void checkCaller(const QVariantMap &options)
{
    const portal::Caller caller{
        portal::textIn(options, QStringLiteral("app_id")), portal::textIn(options, QStringLiteral("parent_window")),
        portal::textIn(options, QStringLiteral("title")), portal::truthIn(options, QStringLiteral("modal"), true)};
    require(isHarmless(portal::headingFor(caller)));
    require(isHarmless(portal::buttonText(portal::textIn(options, QStringLiteral("accept_label")))));
    portal::numberIn(options, QStringLiteral("token"));
    const std::optional<WId> window = portal::x11WindowIn(caller.parentWindow);
    require(!window || *window != 0);
    require(portal::waylandHandleIn(caller.parentWindow).size() <= 256);
    const portal::ParentWindow parent(caller.parentWindow);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isReady = prepare();
    static const job::PpdFile ppd = openDescription();
    require(isReady && ppd != nullptr);
    const Call call = callOf(fuzz::inputText(data, size));
    checkSettings(call.settings, call.pageSetup, ppd.get());
    checkCaller(call.options);
    return 0;
}
