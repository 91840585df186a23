// SPDX-License-Identifier: Apache-2.0
// Reading filters as cupsfilter does, but stricter: what is not of the plain form is taken for a program of the
// description's own.
#include "job/PpdPrograms.h"

#include "job/Advice.h"
#include "job/PlainText.h"
#include "job/RootOwned.h"
#include "job/Texts.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <span>

namespace tapeprint::job
{

namespace
{

/// Filters of the folder that run what the description says: one interprets command lines, the others are shell
/// scripts that compute with the description's numbers, which a shell expands.
constexpr std::array interpretingFilters{
    "foomatic-rip",       "imagetobrf",       "imagetoubrl",      "vectortobrf",   "vectortoubrl",
    "texttobrf",          "musicxmltobrf",    "brftopagedbrf",    "brftoembosser", "imageubrltoindexv3",
    "imageubrltoindexv4", "textbrftoindexv3", "textbrftoindexv4",
};

/// Kinds of document which only such scripts make: naming one as a filter's source brings them in as well.
const QRegularExpression &interpretedSources()
{
    static const QRegularExpression pattern(QStringLiteral("brf|ubrl"), QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

constexpr std::array descriptionFolders{"/usr/share/ppd", "/usr/share/cups/model", "/usr/local/share/ppd",
                                        "/usr/local/share/cups/model", "/opt/share/ppd"};

bool isNamed(const char *name, QLatin1String keyword)
{
    return QLatin1String(name).compare(keyword, Qt::CaseInsensitive) == 0;
}

/// SOURCE [DESTINATION] COST [maxsize(BYTES)] PROGRAM
struct FilterLine {
    QString source;
    QString program;
};

std::optional<FilterLine> parseFilter(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A[ \t]*([^ \t/]{1,15}/[^ \t]{1,255})(?:[ \t]+[^ \t/]{1,15}/[^ \t]{1,255})?[ \t]+\d{1,9})"
                       R"([ \t]+(?:maxsize\(\d{1,18}\)[ \t]*)?([^ \t].*?)[ \t]*\z)"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? std::optional(FilterLine{match.captured(1), match.captured(2)}) : std::nullopt;
}

bool isInterpreting(const QString &program)
{
    const QString target = QFileInfo(QFileInfo(cupsFilterFolder() + u'/' + program).canonicalFilePath()).fileName();
    return std::any_of(interpretingFilters.begin(), interpretingFilters.end(), [&](const char *name) {
        return program == QLatin1String(name) || target == QLatin1String(name);
    });
}

bool bringsNothing(const QString &filter)
{
    const std::optional<FilterLine> line = parseFilter(filter);
    return line && isOwnFilter(line->program) && !isInterpreting(line->program) &&
           !interpretedSources().match(line->source).hasMatch();
}

void add(std::vector<ForeignProgram> &programs, const QString &keyword, const QString &text)
{
    const bool isThere = std::any_of(programs.begin(), programs.end(), [&](const ForeignProgram &program) {
        return program.keyword == keyword && program.text == text;
    });
    if (!isThere) {
        programs.push_back({keyword, text});
    }
}

} // namespace

QString cupsFilterFolder()
{
    return QStringLiteral(TAPEPRINT_CUPS_SERVERBIN "/filter");
}

bool isOwnFilter(const QString &program, const QString &folder)
{
    if (program == u"-") {
        return true;
    }
    if (program.isEmpty() || program.contains(u'/') || program == u"." || program == u"..") {
        return false;
    }
    const QString path = folder + u'/' + program;
    return QFileInfo(path).isFile() && onlyRootChanges(path);
}

std::vector<ForeignProgram> foreignPrograms(ppd_file_t *ppd)
{
    std::vector<ForeignProgram> programs;
    for (const char *filter : std::span(ppd->filters, static_cast<std::size_t>(std::max(ppd->num_filters, 0)))) {
        if (const QString text = QString::fromUtf8(filter); !bringsNothing(text)) {
            add(programs, QStringLiteral("cupsFilter"), text);
        }
    }
    for (const ppd_attr_t *attribute : std::span(ppd->attrs, static_cast<std::size_t>(std::max(ppd->num_attrs, 0)))) {
        const QString keyword = QString::fromUtf8(attribute->name);
        const QString text = QString::fromUtf8(attribute->value);
        const bool isFilter = isNamed(attribute->name, QLatin1String("cupsFilter")) ||
                              isNamed(attribute->name, QLatin1String("cupsFilter2")) ||
                              isNamed(attribute->name, QLatin1String("cupsPreFilter"));
        const bool isCommand = keyword.startsWith(QLatin1String("FoomaticRIP"), Qt::CaseInsensitive);
        if ((isFilter && !bringsNothing(text)) || isCommand) {
            add(programs, keyword, text);
        }
    }
    return programs;
}

QStringList foreignFilterPaths(const std::vector<ForeignProgram> &programs)
{
    QStringList paths;
    for (const ForeignProgram &program : programs) {
        const std::optional<FilterLine> line = parseFilter(program.text);
        if (!line || !line->program.contains(u'/')) {
            continue;
        }
        const QString path = QDir::cleanPath(QDir(cupsFilterFolder()).absoluteFilePath(line->program));
        if (QFileInfo(path).isFile() && !paths.contains(path)) {
            paths.append(path);
        }
    }
    return paths;
}

QString describe(const std::vector<ForeignProgram> &programs)
{
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(programs.size()));
    for (const ForeignProgram &program : programs) {
        lines.append(QStringLiteral("%1: %2").arg(harmless(program.keyword), harmless(program.text)));
    }
    return lines.join(QLatin1String("; "));
}

bool isSystemDescription(const QString &ppdPath)
{
    const QString path = QFileInfo(ppdPath).canonicalFilePath();
    return std::any_of(descriptionFolders.begin(), descriptionFolders.end(),
                       [&path](const char *folder) {
                           const QString place = QFileInfo(QString::fromLatin1(folder)).canonicalFilePath();
                           return !place.isEmpty() && path.startsWith(place + u'/');
                       }) &&
           onlyRootChanges(path);
}

bool mayRunPrograms(const QString &ppdPath, ppd_file_t *ppd, bool isTrusted, Problem *error)
{
    const std::vector<ForeignProgram> programs = foreignPrograms(ppd);
    if (programs.empty() || isTrusted || isSystemDescription(ppdPath)) {
        return true;
    }
    *error = {
        Problem::BadDescription,
        advice(Texts::tr("The printer description %1 brings programs or commands of its own, which nobody vouches "
                         "for: %2. Nothing was run."),
               QStringLiteral("The printer description %1 brings programs or commands of its own, which nobody "
                              "vouches for: %2. Nothing was run. If you trust its author, repeat with "
                              "--trust-ppd."))
            .arg(harmless(ppdPath), describe(programs))};
    return false;
}

} // namespace tapeprint::job
