# Vantle: `make run` starts the program, `make test` runs every test.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=
PREFIX ?= /usr/local

.PHONY: all build run test bench clean install package

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
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

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

# The Debian package, written to $(BUILD_DIR)/vantle_<version>_<arch>.deb.
package: build
	cmake --build $(BUILD_DIR) --target package

clean:
	rm -rf $(BUILD_DIR)
