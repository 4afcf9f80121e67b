#pragma once

#include "history/Clipboard.h"

#include <QString>
#include <memory>

// The one place that decides how copies reach the desktop clipboard.

enum class ClipboardBackend { qt, dataControl };

// In a Wayland session the data-control protocol, which needs no focus, is tried first; on X11
// QClipboard owns the selection without focus anyway. VANTLE_CLIPBOARD=qt|data-control
// overrides either (for bug reports and tests).
ClipboardBackend chooseClipboardBackend(
    const QString &override, const QString &platformName, const QString &sessionType, bool hasWaylandDisplay);

// The clipboard for this process, from the environment and the running QGuiApplication. Falls
// back to QClipboard where the compositor offers no data-control manager.
std::unique_ptr<Clipboard> makeClipboard();
