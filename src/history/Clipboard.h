// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The system clipboard, as the history model uses it: one plain-text string replaces whatever
// the clipboard held. Nothing else is written.
//
// A backend must guarantee: main thread only; returns false only when it knows the text did
// not reach the clipboard (so the program never claims a copy that did not happen).
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual bool setText(const QString &text) = 0;
};
