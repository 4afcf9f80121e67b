# SPDX-License-Identifier: GPL-3.0-or-later
# Vantle: `make run` starts the program, `make test` runs every test.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)
# Extra ctest options, such as `-R app_` for a part of the suite. Nothing is retried: a test
# that fails once fails the suite.
CTEST_FLAGS ?=
CMAKE_FLAGS ?=
PREFIX ?= /usr/local

.PHONY: all build run test bench fuzz sanitize clean install package
FUZZ_SECONDS ?= 300

all: build

build:
	@scripts/ensure-deps.sh build
	cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DCMAKE_INSTALL_PREFIX=$(PREFIX) $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	@scripts/ensure-deps.sh run
	@scripts/run.sh $(BUILD_DIR)/bin/vantle

test: build
	@scripts/ensure-deps.sh test
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS) $(CTEST_FLAGS)

install: build
	cmake --install $(BUILD_DIR) --prefix $(PREFIX)

# Release build, then Vantle next to the floor programs under private X servers (see README,
# "Speed and footprint"); tables in build/bench/results.md and results.json.
bench:
	@scripts/ensure-deps.sh test
	cmake -S . -B $(BUILD_DIR)/bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DVANTLE_BUILD_TESTS=OFF -DVANTLE_BUILD_BENCH=ON $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR)/bench -j $(JOBS) --target vantle floor_tray floor_overlay bench_harness sampler_bench history_bench bench_report
	bench/run-bench.sh $(BUILD_DIR)/bench/bin $(BUILD_DIR)/bench
	@cat $(BUILD_DIR)/bench/results.md

# Each fuzz target for FUZZ_SECONDS (clang libFuzzer, ASan, UBSan); results in build/fuzz/results.md.
fuzz:
	@scripts/ensure-deps.sh build fuzz
	cmake -S . -B $(BUILD_DIR)/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
		-DVANTLE_FUZZ=ON -DVANTLE_BUILD_TESTS=OFF $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR)/fuzz -j $(JOBS) --target fuzzers
	scripts/run-fuzzers.sh $(BUILD_DIR)/fuzz/bin tests/fuzz/corpus $(BUILD_DIR)/fuzz $(FUZZ_SECONDS)

# The whole test suite built with AddressSanitizer and UndefinedBehaviorSanitizer.
sanitize:
	@scripts/ensure-deps.sh build test
	cmake -S . -B $(BUILD_DIR)/sanitize -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVANTLE_SANITIZE=ON $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR)/sanitize -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	LSAN_OPTIONS=suppressions=$(CURDIR)/tests/sanitize/lsan.supp:print_suppressions=0 \
	UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
		ctest --test-dir $(BUILD_DIR)/sanitize --output-on-failure -j $(JOBS)

# The Debian package, written to $(BUILD_DIR)/vantle_<version>_<arch>.deb.
package: build
	cmake --build $(BUILD_DIR) --target package

clean:
	rm -rf $(BUILD_DIR)
