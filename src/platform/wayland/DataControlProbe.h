// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Whether the compositor named by WAYLAND_DISPLAY offers a data-control manager (ext or wlr):
// one connection and one registry round trip, made before Qt chooses its platform. False when
// no compositor answers.
bool compositorOffersDataControl();
