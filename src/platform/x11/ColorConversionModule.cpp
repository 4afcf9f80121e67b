// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/DisplayColorConversion.h"

// The colour module's one entry point (see LoadedColorConversion.cpp): a monitor's profile to
// its conversion, or the reason there is none, in *built.
extern "C" Q_DECL_EXPORT void vantleColorConversionFromIccProfile(
    const QByteArray *profile, DisplayColorConversion::Built *built)
{
    *built = DisplayColorConversion::fromIccProfile(*profile);
}
