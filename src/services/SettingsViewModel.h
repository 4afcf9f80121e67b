#pragma once

#include "model/ColorFormat.h"

#include <QVariantMap>

class SettingsStore;

// Reads and registration of the preferences that several parts share.
namespace SettingsViewModel {

// The user's preferred format, read afresh from the store at every call: "Hex" when absent,
// hex for a value that names no format.
ColorFormat currentFormat(const SettingsStore &store);

// The seven registered defaults: format "Hex", launch at login on, no colour dot, history
// limit 50, shortcuts not yet set (-1), welcome not yet shown.
QVariantMap registeredDefaults();
void registerDefaults(SettingsStore &store);

} // namespace SettingsViewModel
