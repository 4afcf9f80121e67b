// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Whether windows with see-through parts show as such. X11 needs a compositing manager for
// that; without one, whatever a translucent window leaves clear shows as black, and windows
// with rounded shapes cut themselves to their shape instead. Wayland always composites.
bool desktopShowsTranslucentWindows();
