// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Clipboard.h"

// The desktop clipboard (not the primary selection) through QClipboard.
class QtClipboard : public Clipboard {
public:
    // Whether the copy needs a focused window of ours: on Wayland, where the compositor takes
    // the selection through the core protocol only with the serial of a recent input event on
    // a focused surface, and drops it silently otherwise while Qt still reports owning it
    // (measured on sway 1.7; mutter behaves the same).
    explicit QtClipboard(bool isFocusRequired);

    bool setText(const QString &text) override;

private:
    bool m_isFocusRequired;
};
