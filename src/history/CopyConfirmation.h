// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The "Copied #FF6B36" confirmation after every copy. The real one is the floating capsule
// (CopyHud); tests record the messages.
class CopyConfirmation {
public:
    virtual ~CopyConfirmation() = default;
    // Main thread only; replaces any confirmation on screen at once.
    virtual void showHUD(const QString &message) = 0;
};
