// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <cstdio>
#include <cstdlib>

// Each target's body: one input, checked against the invariants of its reader. FuzzMain.cpp
// hands it libFuzzer's inputs, or the files of a corpus folder when replayed without libFuzzer.
void fuzzOne(const QByteArray &input);

// An invariant that must hold for every input. A broken one aborts, so libFuzzer keeps the
// input as a crash and a corpus replay fails.
#define FUZZ_CHECK(condition)                                                                                \
    ((condition) ? void()                                                                                    \
                 : (std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition),   \
                     std::abort()))
