// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Every target's entry point, called by libFuzzer or by ReplayMain.cpp.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

// An invariant that must hold for every input. A broken one aborts, so libFuzzer keeps the
// input as a crash and a corpus replay fails.
#define FUZZ_CHECK(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition);           \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)
