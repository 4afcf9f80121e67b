// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What a screen reader hears of Vantle: the accessible interfaces of the widgets that paint
// themselves (colour rows, format lines, contrast lines, labels, the settings tabs, the welcome
// window) and of the application, whose windows include the popup and its menus. Installed
// once, after the QApplication exists and before any window shows.
void installAccessibleWidgets();
