// SPDX-License-Identifier: Apache-2.0
// libcups reads these files only together with a request to the server and, for a list, a search of the network.
#include "job/SavedDestinations.h"

#include <QFile>
#include <QList>

#include <algorithm>

namespace tapeprint::job
{

namespace
{

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isSame(const QueueName &left, const QueueName &right)
{
    return left.queue.compare(right.queue, Qt::CaseInsensitive) == 0 &&
           left.instance.compare(right.instance, Qt::CaseInsensitive) == 0;
}

} // namespace

QueueName namedByVariable()
{
    if (const QString name = qEnvironmentVariable("LPDEST"); !name.isEmpty()) {
        return QueueName::parse(name);
    }
    const QString name = qEnvironmentVariable("PRINTER");
    return name.isEmpty() || name == u"lp" ? QueueName() : QueueName::parse(name);
}

void SavedDestinations::add(const QByteArray &text)
{
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QByteArray kind = words.value(0).toLower();
        if (words.size() < 2 || (kind != "dest" && kind != "default")) {
            continue;
        }
        const QueueName name = QueueName::parse(QString::fromUtf8(words[1]));
        if (kind == "default") {
            preferred = name;
        }
        if (!name.instance.isEmpty() && !hasInstance(name)) {
            instances.push_back(name);
        }
    }
}

SavedDestinations SavedDestinations::read()
{
    SavedDestinations saved;
    saved.add(
        contentsOf(qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups")) + QLatin1String("/lpoptions")));
    if (const QString home = qEnvironmentVariable("HOME"); !home.isEmpty()) {
        saved.add(contentsOf(home + QLatin1String("/.cups/lpoptions")));
    }
    if (const QueueName named = namedByVariable(); !named.queue.isEmpty()) {
        saved.preferred = named;
    }
    return saved;
}

bool SavedDestinations::hasInstance(const QueueName &name) const
{
    return std::any_of(instances.begin(), instances.end(),
                       [&name](const QueueName &instance) { return isSame(instance, name); });
}

} // namespace tapeprint::job
