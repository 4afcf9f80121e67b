// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The desktop's list of programs started at login (on Linux, an XDG autostart entry).
//
// A backend must guarantee: main thread only; `isEnabled` reports the real state (a disabled or
// unreadable entry counts as not enabled); `registerItem`/`unregisterItem` return false when the
// change did not happen, and never ask the user anything.
class LoginItemService {
public:
    virtual ~LoginItemService() = default;
    virtual bool isEnabled() const = 0;
    virtual bool registerItem() = 0;
    virtual bool unregisterItem() = 0;
};
