// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"

#include <QVariantMap>

class SettingsStore;

// Reads and registration of the preferences that several parts share.
namespace SettingsViewModel {

// The user's preferred format, read afresh from the store at every call: "Hex" when absent,
// hex for a value that names no format.
ColorFormat currentFormat(const SettingsStore &store);

// The seven registered defaults of services/Preferences.h: format, launch at login, colour dot,
// history limit, both shortcuts not yet set, welcome not yet shown.
QVariantMap registeredDefaults();
void registerDefaults(SettingsStore &store);

} // namespace SettingsViewModel
