// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/SettingsViewModel.h"

#include "services/Preferences.h"
#include "services/SettingsStore.h"

namespace SettingsViewModel {

ColorFormat currentFormat(const SettingsStore &store)
{
    const QString raw
        = store.stringForKey(Preferences::colorFormat.key).value_or(Preferences::colorFormat.defaultValue);
    return colorFormatFromRawValue(raw).value_or(ColorFormat::hex);
}

QVariantMap registeredDefaults()
{
    using namespace Preferences;
    return {
        colorFormat.registration(),
        launchAtLogin.registration(),
        showColorDot.registration(),
        historyLimit.registration(),
        pickShortcut.registration(),
        popoverShortcut.registration(),
        onboardingShown.registration(),
    };
}

void registerDefaults(SettingsStore &store)
{
    store.registerDefaults(registeredDefaults());
}

} // namespace SettingsViewModel
