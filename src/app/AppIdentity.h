// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Names under which the running Vantle can be found in the user's session.
namespace AppIdentity {
inline constexpr char dbusServiceName[] = "io.github.vantle.Vantle";
inline constexpr char dbusObjectPath[] = "/io/github/vantle/Vantle";
inline constexpr char dbusInterface[] = "io.github.vantle.Vantle";
} // namespace AppIdentity
