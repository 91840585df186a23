// SPDX-License-Identifier: Apache-2.0
// Any object as the subject of a log line, by its description: objects of Qt, of the panel interface, and of classes
// that have neither base in common.
#pragma once

#include "pdekit/Export.h"

#include <QObject>
#include <QString>

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <typeinfo>

namespace pdekit
{

/// How an object without a description of its own is described: "<CLASS: 0xADDRESS>", the address in hexadecimal.
PDEKIT_EXPORT QString defaultDescription(const QObject *object);
/// The same for an object of another class. \param type the object's own class, not the one it is pointed at by.
PDEKIT_EXPORT QString defaultDescription(const std::type_info &type, const void *address);

/// Borrows an object for one call. Made from a pointer to an object of any class, so that a function that takes one can
/// be given `this`, a QObject, a PDEChoice, a plug-in's principal object or nullptr.
class LoggedObject
{
public:
    /// No object.
    LoggedObject(std::nullptr_t) {}
    /// \param object may be null, which is no object.
    template <typename Object>
    LoggedObject(const Object *object) : mObject(object), mDescribe(&descriptionOf<Object>)
    {
    }

    /// Whether there is no object.
    bool isNone() const { return mObject == nullptr; }
    /// What the object's `description()` answers when its class has one, else its default description.
    /// Null without an object.
    QString description() const { return isNone() ? QString() : mDescribe(mObject); }

private:
    template <typename Object>
    static QString descriptionOf(const void *pointer)
    {
        const auto *object = static_cast<const Object *>(pointer);
        if constexpr (requires {
                          {
                              object->description()
                              } -> std::convertible_to<QString>;
                      }) {
            return object->description();
        } else if constexpr (std::is_base_of_v<QObject, Object>) {
            return defaultDescription(object);
        } else if constexpr (std::is_polymorphic_v<Object>) {
            return defaultDescription(typeid(*object), dynamic_cast<const void *>(object));
        } else {
            return defaultDescription(typeid(Object), object);
        }
    }

    const void *mObject = nullptr;
    QString (*mDescribe)(const void *) = nullptr;
};

} // namespace pdekit
