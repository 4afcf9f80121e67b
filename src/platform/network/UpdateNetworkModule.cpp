// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/network/QtUpdateNetwork.h"

// The network module's one entry point (see LoadedUpdateNetwork): the caller owns the result.
extern "C" Q_DECL_EXPORT UpdateNetwork *vantleMakeUpdateNetwork()
{
    return new QtUpdateNetwork;
}
