// SPDX-License-Identifier: Apache-2.0
// The description that every object has.
#include "pdekit/LoggedObject.h"

#include <cstdlib>
#include <memory>

#include <cxxabi.h>

namespace pdekit
{

namespace
{

QString described(const QString &className, const void *address)
{
    return QLatin1Char('<') + className + QLatin1StringView(": 0x") +
           QString::number(reinterpret_cast<quintptr>(address), 16) + QLatin1Char('>');
}

struct MallocDeleter {
    void operator()(char *memory) const { std::free(memory); }
};

} // namespace

QString defaultDescription(const QObject *object)
{
    return described(QString::fromUtf8(object->metaObject()->className()), object);
}

QString defaultDescription(const std::type_info &type, const void *address)
{
    int status = 0;
    const std::unique_ptr<char, MallocDeleter> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status));
    return described(QString::fromUtf8(status == 0 ? name.get() : type.name()), address);
}

} // namespace pdekit
