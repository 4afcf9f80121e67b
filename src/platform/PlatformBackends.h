// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Clipboard.h"
#include "history/ScreenColorSampler.h"
#include "hotkeys/GlobalShortcutBackend.h"
#include "platform/DesktopSession.h"

#include <memory>

// The backends `chooseBackends` picks for `session`, made; each needs the QGuiApplication. A
// chosen backend that cannot start here gives the next best: QClipboard where the compositor
// offers no data-control, the Null shortcut backend without an X server or a session bus.

std::unique_ptr<ScreenColorSampler> makeScreenColorSampler(const DesktopSession &session);
std::unique_ptr<Clipboard> makeClipboard(const DesktopSession &session);
std::unique_ptr<GlobalShortcutBackend> makeGlobalShortcutBackend(
    const DesktopSession &session, QObject *parent = nullptr);
