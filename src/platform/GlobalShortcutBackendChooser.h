#pragma once

#include "hotkeys/GlobalShortcutBackend.h"

#include <memory>

// The one place that decides how global shortcuts reach the desktop: key grabs on X11, the
// GlobalShortcuts portal on Wayland, nothing elsewhere. VANTLE_SHORTCUTS=x11|portal|none
// forces a choice (for tests and bug reports); a forced backend that cannot work gives the
// Null one. Needs the QGuiApplication.
std::unique_ptr<GlobalShortcutBackend> createGlobalShortcutBackend(QObject *parent = nullptr);
