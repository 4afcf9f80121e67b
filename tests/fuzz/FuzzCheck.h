// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <cstdio>
#include <cstdlib>

// Each target's body: one input (from libFuzzer or a replayed corpus file) against its invariants.
void fuzzOne(const QByteArray &input);

// A broken invariant aborts: libFuzzer keeps the input as a crash and a corpus replay fails.
#define FUZZ_CHECK(condition)                                                                                \
    ((condition) ? void()                                                                                    \
                 : (std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition),   \
                     std::abort()))
