// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The entry point of a module that sits beside the desktop part (lib/vantle/modules/), so that a
// library only some sessions need is mapped only where it is used. A program in bin/ that links
// the calling code itself (a test, a benchmark) finds the modules there too. The module stays
// loaded to the end of the process. Null when the module or its entry point cannot be found,
// with the loader's reason in *error.
void *loadedModuleEntry(const char *fileName, const char *entryPoint, QString *error);
