// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/LaunchAtLogin.h"

#include "services/LoginItemService.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

namespace LaunchAtLogin {

void syncLaunchAtLogin(SettingsStore &store, LoginItemService &service)
{
    const bool wanted = store.boolForKey(PreferenceKeys::launchAtLogin);
    const bool actual = service.isEnabled();
    if (wanted == actual)
        return;
    const bool ok = wanted ? service.registerItem() : service.unregisterItem();
    if (!ok)
        store.setBool(PreferenceKeys::launchAtLogin, actual);
}

void refreshLaunchAtLogin(SettingsStore &store, const LoginItemService &service)
{
    store.setBool(PreferenceKeys::launchAtLogin, service.isEnabled());
}

void applyLaunchAtLogin(SettingsStore &store, LoginItemService &service, bool enabled)
{
    const bool ok = enabled ? service.registerItem() : service.unregisterItem();
    if (!ok)
        store.setBool(PreferenceKeys::launchAtLogin, service.isEnabled());
}

} // namespace LaunchAtLogin
