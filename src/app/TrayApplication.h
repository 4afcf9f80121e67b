// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Runs Vantle as the tray program of the user's session until it quits. When another Vantle
// already runs, asks that one to show its popup instead and returns at once.
// Needs a QApplication.
int runTrayApplication();
