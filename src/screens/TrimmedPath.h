// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>

// The first `fraction` (0 to 1) of `path`'s length, so a stroke can draw itself: 0 gives an
// empty path, 1 the whole path. Curves are followed through their flattened outline.
QPainterPath trimmedPath(const QPainterPath &path, qreal fraction);
