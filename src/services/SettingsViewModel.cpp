#include "services/SettingsViewModel.h"

#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

namespace SettingsViewModel {

ColorFormat currentFormat(const SettingsStore &store)
{
    const QString raw = store.stringForKey(PreferenceKeys::colorFormat).value_or(QStringLiteral("Hex"));
    return colorFormatFromRawValue(raw).value_or(ColorFormat::hex);
}

QVariantMap registeredDefaults()
{
    return {
        {PreferenceKeys::colorFormat, QStringLiteral("Hex")},
        {PreferenceKeys::launchAtLogin, true},
        {PreferenceKeys::showColorDot, false},
        {PreferenceKeys::historyLimit, 50},
        {PreferenceKeys::pickKeyCode, -1},
        {PreferenceKeys::popoverKeyCode, -1},
        {PreferenceKeys::onboardingShown, false},
    };
}

void registerDefaults(SettingsStore &store)
{
    store.registerDefaults(registeredDefaults());
}

} // namespace SettingsViewModel
