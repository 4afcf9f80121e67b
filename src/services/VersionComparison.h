// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Release versions compared part by part as numbers, so "1.10" is newer than "1.9" and "1.0"
// equals "1". A part may carry a suffix after its number ("2b1"); a suffix marks a pre-release
// of that number, older than the plain number, and suffixes compare as text.
// Returns a negative number when `a` is older than `b`, 0 when equal, positive when newer.
int compareVersions(const QString &a, const QString &b);
