// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The channel between the running Vantle and the processes that talk to it (`vantle pick`,
// `vantle toggle`, a second `vantle` start). Qt Core and D-Bus only, so the command line starts
// without loading the desktop part of the program.
//
// On the session bus the running Vantle owns io.github.vantle.Vantle. Without a session bus it
// serves a local socket in $XDG_RUNTIME_DIR; whoever holds the record lock beside it (which the
// kernel drops when its process ends) is the running Vantle.
namespace InstanceChannel {

// Path of the fallback socket for this user, and of the lock that says who serves it.
QString socketPath();
QString lockPath();

inline constexpr int heldElsewhere = -1;
inline constexpr int lockUnavailable = -2; // the runtime folder does not let us create it

// Takes the instance lock without waiting: its descriptor (held until closed), or one of the
// two answers above.
int takeLock();

// The request words spoken on the fallback socket, one a line, each answered by "ok\n".
inline constexpr char pickWord[] = "pick";
inline constexpr char toggleWord[] = "toggle";

} // namespace InstanceChannel

// Sends a request ("Pick" or "TogglePopover") to the running Vantle. False, with a message for
// the user in `error`, when none runs or it does not answer.
bool sendInstanceRequest(const QString &method, QString *error);
