// SPDX-License-Identifier: Apache-2.0
// The level of the panel interface. Plug-ins made for an older or newer level decide by it whether they can serve.
#include "pdekit/SystemVersion.h"

#include <utility>

namespace pdekit
{

namespace
{

struct SelectorValue {
    std::uint32_t selector;
    std::int32_t value;
};

constexpr SelectorValue kInterfaceLevel[] = {
    {gestaltSystemVersionMajor, 10},
    {gestaltSystemVersionMinor, 6},
    {gestaltSystemVersionBugFix, 0},
};

GestaltSource &gestaltSource()
{
    static GestaltSource source;
    return source;
}

} // namespace

OSStatus Gestalt(std::uint32_t selector, std::int32_t *response)
{
    if (response == nullptr) {
        return kPMInvalidParameter;
    }
    if (gestaltSource()) {
        return gestaltSource()(selector, response);
    }
    for (const SelectorValue &entry : kInterfaceLevel) {
        if (entry.selector == selector) {
            *response = entry.value;
            return kPMNoError;
        }
    }
    return kPMNoSuchEntry;
}

void setGestaltSource(GestaltSource source)
{
    gestaltSource() = std::move(source);
}

} // namespace pdekit
