// SPDX-License-Identifier: Apache-2.0
// What both calls have in common.
#include "portal/Conversation.h"

#include "job/PlainText.h"
#include "portal/Log.h"
#include "portal/PortalTexts.h"
#include "portal/ProgramName.h"

#include <utility>

namespace tapeprint::portal
{

namespace
{

/// A title, not a novel.
constexpr qsizetype mostCharacters = 128;

/// The value of an option; invalid when it is missing or of another type.
QVariant valueIn(const QVariantMap &options, const QString &key, QMetaType::Type type)
{
    QVariant value = options.value(key);
    if (value.isValid() && value.userType() != type) {
        qCWarning(portalLog) << "the option" << key << "is of another type, and counts as missing";
        value.clear();
    }
    return value;
}

} // namespace

void Conversation::answer(Response response, const QVariantMap &results)
{
    if (!std::exchange(mIsAnswered, true)) {
        Q_EMIT answered(response, results);
    }
}

QString headingFor(const Caller &caller)
{
    const QString title = job::harmless(caller.title.left(mostCharacters)).trimmed();
    const QString shown = title.isEmpty() ? PortalTexts::tr("Print") : title;
    const QString program = programName(caller.program);
    return program.isEmpty() ? shown : PortalTexts::tr("%1 – %2", "title and program").arg(shown, program);
}

QString jobNameFor(const Caller &caller, const QString &documentName)
{
    QString name = job::harmless(documentName.left(mostCharacters)).trimmed();
    return name.isEmpty() ? headingFor(caller) : name;
}

QString buttonText(const QString &label)
{
    constexpr qsizetype most = 40;                        // it stands in a row of others
    const QChar mark = QChar::ObjectReplacementCharacter; // for what is no key: none of it is in the label then
    QString text = job::harmless(label.left(most)).remove(mark);
    text.replace(u'&', QLatin1String("&&")).replace(QLatin1String("__"), mark);
    return text.replace(u'_', u'&').replace(mark, QLatin1String("_"));
}

bool truthIn(const QVariantMap &options, const QString &key, bool otherwise)
{
    const QVariant value = valueIn(options, key, QMetaType::Bool);
    return value.isValid() ? value.toBool() : otherwise;
}

uint numberIn(const QVariantMap &options, const QString &key)
{
    return valueIn(options, key, QMetaType::UInt).toUInt();
}

QString textIn(const QVariantMap &options, const QString &key)
{
    return valueIn(options, key, QMetaType::QString).toString();
}

} // namespace tapeprint::portal
