// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class LoginItemService;
class SettingsStore;

// Keeps the "launchAtLogin" preference and the login item in step. Failures are never shown:
// the preference is rewritten to the real state instead, so the settings toggle tells the truth.
namespace LaunchAtLogin {

// At launch the preference wins: register or unregister to match it.
void syncLaunchAtLogin(SettingsStore &store, LoginItemService &service);

// When the settings window appears the login item wins: the preference takes its real state.
void refreshLaunchAtLogin(SettingsStore &store, const LoginItemService &service);

// The settings toggle changed to `enabled`.
void applyLaunchAtLogin(SettingsStore &store, LoginItemService &service, bool enabled);

} // namespace LaunchAtLogin
