// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LoadedModule.h"
#include "platform/x11/DisplayColorConversion.h"

namespace {

constexpr char moduleFileName[] = "vantle-colour.so";

} // namespace

DisplayColorConversion::Built DisplayColorConversion::loadedFromIccProfile(const QByteArray &profile)
{
    // Tried once; the module stays loaded, and so does the code of the conversions it made.
    static QString error;
    static const auto convert
        = reinterpret_cast<ModuleEntry>(loadedModuleEntry(moduleFileName, moduleEntry, &error));
    if (!convert)
        return { nullptr,
            QStringLiteral(
                "the colour part of Vantle cannot be loaded (%1); reinstalling Vantle puts it back")
                .arg(error) };
    Built built;
    convert(&profile, &built);
    return built;
}
