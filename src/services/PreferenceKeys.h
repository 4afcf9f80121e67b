// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Every preference key of the program, in one place.
namespace PreferenceKeys {
inline const QString colorFormat = QStringLiteral("colorFormat");
inline const QString launchAtLogin = QStringLiteral("launchAtLogin");
inline const QString showColorDot = QStringLiteral("showColorDot");
inline const QString historyLimit = QStringLiteral("historyLimit");
inline const QString pickKeyCode = QStringLiteral("pickKeyCode");
inline const QString pickModifiers = QStringLiteral("pickModifiers");
inline const QString pickKeyChar = QStringLiteral("pickKeyChar");
inline const QString popoverKeyCode = QStringLiteral("popoverKeyCode");
inline const QString popoverModifiers = QStringLiteral("popoverModifiers");
inline const QString popoverKeyChar = QStringLiteral("popoverKeyChar");
inline const QString onboardingShown = QStringLiteral("onboardingShown");
inline const QString automaticallyUpdate = QStringLiteral("SUAutomaticallyUpdate");
// The release the user chose to skip; background checks stay quiet about it.
inline const QString skippedUpdateVersion = QStringLiteral("SUSkippedVersion");
inline const QString colorHistory = QStringLiteral("colorHistory");
} // namespace PreferenceKeys
