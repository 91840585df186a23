// SPDX-License-Identifier: Apache-2.0
// The nine functions. They hold no state; each writes its lines where its name says and reports nothing back.
#include "pagesettings/Exports.h"

#include "log/LogFormat.h"
#include "log/SettingsFile.h"
#include "pdekit/Log.h"
#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"

#include <QByteArray>
#include <QMessageLogger>
#include <QString>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include <unistd.h>

namespace
{

constexpr std::size_t kBytesPerLine = 16;

/// One line of the system log. The message is sent past the category's filter: no setting may switch it off.
void systemLog(const QString &line)
{
    const QByteArray bytes = line.toUtf8();
    QMessageLogger(nullptr, 0, nullptr, pdekit::lcPde().categoryName()).info("%s", bytes.constData());
}

/// The variadic form: the line is filled from the caller's arguments, prefix and all.
void systemLogV(const QString &format, va_list arguments)
{
    systemLog(pdelog::formatted(format, arguments));
}

/// The caller's format behind its prefix. Placeholders are filled later, over the whole; a "%" in the description,
/// which may be a PPD's text, is none of them.
QString taggedFormat(const char *tag, const pdekit::LoggedObject &object, const char *format)
{
    const QString text = QString::fromUtf8(format);
    if (object.isNone()) {
        return QLatin1String(tag) + QLatin1Char(' ') + text;
    }
    const QString description = object.description().replace(QLatin1Char('%'), QLatin1StringView("%%"));
    return QLatin1String(tag) + QStringLiteral(" self(") + description + QStringLiteral(") ") + text;
}

void logText(const char *label, const QString &text)
{
    systemLog(QLatin1String(label) + (text.isNull() ? QStringLiteral("(null)") : text));
}

/// A field of a record as text in the system's encoding.
void logField(const char *label, const char *bytes)
{
    logText(label, pdekit::stringFromSystemEncoding(bytes));
}

/// A record's bytes read as a NUL-terminated string from the record's first byte on: empty when its first field, a
/// flag, is 0, else the flag and the texts behind it. Never reads beyond the record.
template <typename Record>
void logFirstByteOn(const char *label, const Record *record)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    std::array<char, sizeof(Record) + 1> bytes{};
    if (record != nullptr) {
        std::memcpy(bytes.data(), record, sizeof(Record));
    }
    logField(label, record == nullptr ? nullptr : bytes.data());
}

/// write() until everything is out. A descriptor that takes no more ends it; nobody is told.
void writeAll(int fd, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(fd, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return;
        }
        bytes = bytes.sliced(written);
    }
}

/// A byte's two digits at a line's next position.
void appendDigits(char *position, unsigned char byte)
{
    constexpr const char *kDigits = "0123456789abcdef";
    position[0] = kDigits[byte >> 4U];
    position[1] = kDigits[byte & 0xFU];
}

/// A line of a dump: two digits a byte and the terminator.
using DumpLine = std::array<char, kBytesPerLine * 2 + 1>;

} // namespace

extern "C" {
// Reserved names, given and kept as they are.
// NOLINTBEGIN(bugprone-reserved-identifier)

void _PDEProlog(pdekit::LoggedObject object, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    systemLogV(taggedFormat("BEGIN", object, format), arguments);
    va_end(arguments);
}

void _PDEEpilog(pdekit::LoggedObject object, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    systemLogV(taggedFormat("END", object, format), arguments);
    va_end(arguments);
}

void _PDELog(pdekit::LoggedObject object, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    systemLogV(taggedFormat("LOG", object, format), arguments);
    va_end(arguments);
}

void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName)
{
    if (ppd == nullptr) {
        systemLog(QStringLiteral("PPD file is not loaded!!"));
        return;
    }
    if (ppdOptionName == nullptr) {
        systemLog(QStringLiteral("ppdOptionName is NULL!!"));
        return;
    }
    const ppd_option_t *option = ppdFindOption(ppd, ppdOptionName);
    logField("+-+-+-+-+-+-+-+-+-+- start is ", ppdOptionName);
    if (option == nullptr) {
        return;
    }
    // Deliberate: the two flags are printed as the strings that begin with them, and only the first choice is shown.
    const ppd_choice_t *choice = option->num_choices > 0 ? option->choices : nullptr;
    logFirstByteOn("***** conflicted | ", option);
    logField("***** keyword | ", option->keyword);
    logField("***** defchoice | ", option->defchoice);
    logField("***** text | ", option->text);
    systemLog(QString::asprintf("***** ui == %d", static_cast<int>(option->ui)));
    systemLog(QString::asprintf("***** section == %d", static_cast<int>(option->section)));
    logText("***** order == ", pdekit::fixedDecimals(static_cast<double>(option->order), 6));
    systemLog(QString::asprintf("***** num_choices == %d", option->num_choices));
    logFirstByteOn("***** choices->marked | ", choice);
    logField("***** choices->choice | ", choice == nullptr ? nullptr : choice->choice);
    logField("***** choices->text | ", choice == nullptr ? nullptr : choice->text);
    logField("+-+-+-+-+-+-+-+-+-+- end is ", ppdOptionName);
}

void _PDELog_PMPrintSettings_WriteToFile(const pdekit::PrintSettings *settings, const char *name)
{
    if (settings == nullptr || name == nullptr) {
        return;
    }
    pdelog::writeSettings(*settings, pdelog::settingsPath(QString::fromUtf8(name)));
}
// NOLINTEND(bugprone-reserved-identifier)

void debugLog(std::int32_t level, const char *format, ...)
{
    if (level > 0) {
        return;
    }
    std::fputs("DEBUG: ", stderr);
    if (format == nullptr) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    const QByteArray bytes = pdelog::formatted(QString::fromUtf8(format), arguments).toUtf8();
    va_end(arguments);
    std::fprintf(stderr, "%.*s\n", static_cast<int>(bytes.size()), bytes.constData());
}

void debugLogFd(std::int32_t level, int fd, const char *format, ...)
{
    if (level > 0 || format == nullptr) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    const QByteArray bytes = pdelog::formatted(QString::fromUtf8(format), arguments).toUtf8();
    va_end(arguments);
    writeAll(fd, bytes);
    writeAll(fd, "\n");
}

void memoryCheck(std::int32_t level, const unsigned char *bytes, std::int32_t length)
{
    if (level > 0 || bytes == nullptr) {
        return;
    }
    DumpLine line{};
    std::size_t digits = 0;
    for (std::int32_t i = 0; i < length; ++i) {
        appendDigits(&line[digits], bytes[i]);
        digits += 2;
        if (digits == kBytesPerLine * 2) {
            std::fprintf(stderr, "DEBUG:%s", line.data());
            line.fill('\0');
            digits = 0;
        }
        // Deliberate: printed also when the last full line has just gone out, and empty then.
        if (i == length - 1) {
            std::fprintf(stderr, "DEBUG:%s", line.data());
        }
    }
}

void memoryCheckFd(std::int32_t level, int fd, const unsigned char *bytes, std::int32_t length)
{
    if (level > 0 || bytes == nullptr) {
        return;
    }
    DumpLine line{};
    std::size_t digits = 0;
    for (std::int32_t i = 0; i < length; ++i) {
        appendDigits(&line[digits], bytes[i]);
        digits += 2;
        if (digits == kBytesPerLine * 2 || i == length - 1) {
            writeAll(fd, QByteArrayView(line.data(), static_cast<qsizetype>(digits)));
            writeAll(fd, "\n");
            digits = 0;
        }
    }
}
}
