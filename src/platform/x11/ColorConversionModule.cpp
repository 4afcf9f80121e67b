// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/DisplayColorConversion.h"

#include <type_traits>

// The colour module's one entry point (see LoadedColorConversion.cpp): a monitor's profile to
// its conversion, or the reason there is none, in *built.
extern "C" Q_DECL_EXPORT void vantleColorConversionFromIccProfile(
    const QByteArray *profile, DisplayColorConversion::Built *built)
{
    *built = DisplayColorConversion::fromIccProfile(*profile);
}

// The desktop part calls it through this type: a signature changed on one side only would be
// undefined behaviour that no linker sees.
static_assert(
    std::is_same_v<decltype(&vantleColorConversionFromIccProfile), DisplayColorConversion::ModuleEntry>);
