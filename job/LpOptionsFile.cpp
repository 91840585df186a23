// SPDX-License-Identifier: Apache-2.0
// Lines of lpoptions: "Dest QUEUE/INSTANCE NAME=VALUE NAME="VALUE WITH BLANKS"...", or Default in the place of Dest;
// what stands behind # is a comment.
#include "job/LpOptionsFile.h"

#include "job/CupsOptions.h"
#include "job/PlainText.h"
#include "job/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>

#include <sys/stat.h>

namespace tapeprint::job
{

namespace
{

/// libcups reads so many bytes of a line, its end among them.
constexpr qsizetype longestLine = 8191;
/// Nothing of this size was saved by a person: it is not read into memory.
constexpr qint64 mostBytes = qint64{16} << 20;

const QByteArray destKeyword = QByteArrayLiteral("Dest");
const QByteArray defaultKeyword = QByteArrayLiteral("Default");

bool isBlank(char letter)
{
    return letter == ' ' || (letter >= '\t' && letter <= '\r');
}

/// A line cut into what libcups sees in it.
struct Line {
    QByteArray keyword; ///< empty: it says nothing about a queue
    QByteArray queue;
    QByteArray instance;
    QByteArray options;

    bool isDefault() const { return keyword.compare(defaultKeyword, Qt::CaseInsensitive) == 0; }
    bool isAbout(const QString &ofQueue, const QString &ofInstance) const
    {
        return !keyword.isEmpty() && QString::fromUtf8(queue).compare(ofQueue, Qt::CaseInsensitive) == 0 &&
               QString::fromUtf8(instance).compare(ofInstance, Qt::CaseInsensitive) == 0;
    }
    QByteArray text() const
    {
        const QByteArray name = instance.isEmpty() ? queue : queue + '/' + instance;
        return keyword + ' ' + name + (options.isEmpty() ? QByteArray() : ' ' + options);
    }
};

/// The first word, taken away with the blanks behind it.
QByteArray takeWord(QByteArray &text)
{
    const auto end = std::find_if(text.begin(), text.end(), isBlank);
    QByteArray word = text.left(end - text.begin());
    text = text.mid(word.size()).trimmed();
    return word;
}

/// What stands before a comment. A "\#" is a #.
QByteArray withoutComment(const QByteArray &raw)
{
    QByteArray text;
    for (const char letter : raw) {
        if (letter != '#') {
            text.append(letter);
        } else if (text.endsWith('\\')) {
            text.back() = '#';
        } else {
            break;
        }
    }
    return text.trimmed();
}

Line parse(const QByteArray &raw)
{
    Line line;
    line.options = withoutComment(raw);
    line.keyword = takeWord(line.options);
    const bool isQueue = line.keyword.compare(destKeyword, Qt::CaseInsensitive) == 0 || line.isDefault();
    QByteArray name = takeWord(line.options);
    if (!isQueue || name.isEmpty()) {
        return {};
    }
    const qsizetype slash = name.indexOf('/');
    line.queue = slash < 0 ? name : name.left(slash);
    if (line.queue.isEmpty()) {
        return {}; // "Dest /": about no queue, and written anew its options would be taken for one
    }
    line.instance = slash < 0 ? QByteArray() : name.mid(slash + 1);
    return line;
}

/// A line as it goes into the file, where a # would begin a comment.
QByteArray written(const Line &line)
{
    return line.text().replace('#', "\\#");
}

JobOptions optionsOf(const Line &line)
{
    CupsOptions parsed;
    parsed.parse(line.options);
    JobOptions options;
    for (const cups_option_t &option : parsed) {
        options.set(QString::fromUtf8(option.name), QString::fromUtf8(option.value));
    }
    return options;
}

/// libcups sorts options by their names.
bool areSame(const JobOptions &left, const JobOptions &right)
{
    const auto &entries = left.entries();
    return entries.size() == right.entries().size() &&
           std::all_of(entries.begin(), entries.end(), [&right](const JobOptions::Entry &entry) {
               return right.contains(entry.first) && right.value(entry.first) == entry.second;
           });
}

/// NAME=VALUE, with quotes around what is not one plain word.
QByteArray optionWord(const JobOptions::Entry &entry)
{
    static const QByteArray plain = QByteArrayLiteral("._-+,:;/%@*=");
    const QByteArray value = entry.second.toUtf8();
    const bool isPlain = !value.isEmpty() && std::all_of(value.begin(), value.end(), [](char letter) {
        const bool isLetter = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
        return isLetter || (letter >= '0' && letter <= '9') || plain.contains(letter);
    });
    if (isPlain) {
        return entry.first.toUtf8() + '=' + value;
    }
    QByteArray quoted;
    for (const char letter : value) {
        if (letter == '"' || letter == '\'' || letter == '\\') {
            quoted.append('\\');
        }
        quoted.append(letter);
    }
    return entry.first.toUtf8() + "=\"" + quoted + '"';
}

QByteArray optionWords(const JobOptions &options)
{
    QByteArrayList words;
    for (const JobOptions::Entry &entry : options.entries()) {
        words.append(optionWord(entry));
    }
    return words.join(' ');
}

} // namespace

std::optional<LpOptionsFile> LpOptionsFile::read(const QString &path, Problem *error)
{
    LpOptionsFile read(path);
    const QFileInfo info(path);
    if (!info.exists()) {
        return read;
    }
    QFile file(path);
    const bool isReadable = info.isFile() && info.size() <= mostBytes && file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isReadable ? file.readAll() : QByteArray();
    if (!isReadable || file.error() != QFileDevice::NoError) {
        const QString reason = !info.isFile()            ? Texts::tr("it is no file")
                               : info.size() > mostBytes ? Texts::tr("it is too large")
                                                         : file.errorString();
        *error = Texts::tr("The file with your presets, %1, cannot be read (%2).").arg(harmless(path), reason);
        return std::nullopt;
    }
    read.mLines = bytes.split('\n');
    if (read.mLines.last().isEmpty()) { // behind the end of the last line
        read.mLines.removeLast();
    }
    return read;
}

std::vector<LpOptionsFile::Entry> LpOptionsFile::entries() const
{
    std::vector<Entry> entries;
    for (const QByteArray &raw : mLines) {
        const Line line = parse(raw);
        const auto isSame = [&line](const Entry &entry) { return line.isAbout(entry.queue, entry.instance); };
        if (!line.keyword.isEmpty() && std::none_of(entries.begin(), entries.end(), isSame)) {
            entries.push_back(
                {QString::fromUtf8(line.queue), QString::fromUtf8(line.instance), optionsOf(line), line.isDefault()});
        }
    }
    return entries;
}

std::optional<LpOptionsFile::Entry> LpOptionsFile::find(const QString &queue, const QString &instance) const
{
    for (const QByteArray &raw : mLines) {
        if (const Line line = parse(raw); line.isAbout(queue, instance)) {
            return Entry{QString::fromUtf8(line.queue), QString::fromUtf8(line.instance), optionsOf(line),
                         line.isDefault()};
        }
    }
    return std::nullopt;
}

bool LpOptionsFile::set(const QString &queue, const QString &instance, const JobOptions &options, Problem *error)
{
    Line line{destKeyword, queue.toUtf8(), instance.toUtf8(), optionWords(options)};
    if (written(line).size() >= longestLine) {
        *error = {Problem::RefusedValue, Texts::tr("These are more options than CUPS keeps in a preset.")};
        return false;
    }
    // Asked of libcups' own parser: a value may hold what its line cannot.
    const Line readBack = parse(written(line));
    if (written(line).contains('\n') || !readBack.isAbout(queue, instance) || !areSame(optionsOf(readBack), options)) {
        *error = {Problem::RefusedValue, Texts::tr("An option has a value that CUPS cannot keep in a preset.")};
        return false;
    }
    bool isThere = false;
    QByteArrayList lines;
    for (const QByteArray &raw : std::as_const(mLines)) {
        const Line old = parse(raw);
        if (!old.isAbout(queue, instance)) {
            lines.append(raw);
        } else if (!isThere) {
            isThere = true;
            line.keyword = old.keyword;
            lines.append(written(line));
        }
    }
    if (!isThere) {
        lines.append(written(line));
    }
    mLines = lines;
    return true;
}

void LpOptionsFile::remove(const QString &queue, const QString &instance)
{
    mLines.erase(std::remove_if(mLines.begin(), mLines.end(),
                                [&](const QByteArray &raw) { return parse(raw).isAbout(queue, instance); }),
                 mLines.end());
}

void LpOptionsFile::rename(const QString &queue, const QString &instance, const QString &newInstance)
{
    for (QByteArray &raw : mLines) {
        Line line = parse(raw);
        if (line.isAbout(queue, instance)) {
            line.instance = newInstance.toUtf8();
            raw = written(line);
        }
    }
}

void LpOptionsFile::makeDefault(const QString &queue, const QString &instance)
{
    bool isThere = false;
    for (QByteArray &raw : mLines) {
        Line line = parse(raw);
        const bool isMeant = line.isAbout(queue, instance) && !isThere;
        if (line.keyword.isEmpty() || isMeant == line.isDefault()) {
            isThere = isThere || isMeant;
            continue;
        }
        isThere = isThere || isMeant;
        line.keyword = isMeant ? defaultKeyword : destKeyword;
        raw = written(line);
    }
    if (!isThere) {
        mLines.append(written({defaultKeyword, queue.toUtf8(), instance.toUtf8(), {}}));
    }
}

bool LpOptionsFile::write(Problem *error) const
{
    constexpr mode_t forThePersonAlone = 0700; // as libcups makes it
    const QByteArray folder = QFile::encodeName(QFileInfo(mPath).path());
    mkdir(folder.constData(), forThePersonAlone); // when it is there already, or cannot be made, the next step tells
    QSaveFile file(mPath);
    QByteArray bytes = mLines.join('\n');
    if (!bytes.isEmpty()) {
        bytes.append('\n');
    }
    // What a full disk keeps back shows when it is flushed; committing alone would not look.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit()) {
        return true;
    }
    *error = {Problem::UnwritableOutput,
              Texts::tr("The file with your presets, %1, cannot be written (%2): it stays as it was.")
                  .arg(harmless(mPath), file.errorString())};
    return false;
}

} // namespace tapeprint::job
