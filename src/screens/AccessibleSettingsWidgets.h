// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;

// What a screen reader hears for the settings tabs and the welcome window, which paint
// themselves: null for any other class, so the program's accessibility factory can ask here
// first and fall through to the other screens.
QAccessibleInterface *accessibleSettingsWidget(const QString &className, QObject *object);
