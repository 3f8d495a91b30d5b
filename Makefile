# Entry points: `make run` builds and starts Larkspan, `make test` builds and runs every test,
# `make bench` runs the benchmarks. Each installs missing Debian packages first.

BUILD_DIR ?= build
SANITIZE_DIR ?= build-sanitize
BENCH_DIR ?= build-bench
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=
PREFIX ?= /usr/local

.PHONY: all deps build run test test-sanitize bench tsan install uninstall package clean

all: build

deps:
	@scripts/install-deps

build: deps
	cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	$(BUILD_DIR)/src/larkspan

# Installs under PREFIX (DESTDIR is honoured); `make install PREFIX=~/.local` needs no root.
install: build
	cmake --install $(BUILD_DIR) --prefix $(PREFIX)

# Removes what the last install put in place; the user's data and settings stay.
uninstall:
	xargs -r -d '\n' rm -f -- <$(BUILD_DIR)/install_manifest.txt

# build/larkspan_<version>_amd64.deb
package: build
	cd $(BUILD_DIR) && cpack -G DEB

# The core tests once more under AddressSanitizer and UndefinedBehaviorSanitizer.
test-sanitize: deps
	cmake -S . -B $(SANITIZE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLARKSPAN_CORE_ONLY=ON -DLARKSPAN_SANITIZE=ON
	cmake --build $(SANITIZE_DIR) -j $(JOBS) --target larkspan_core_tests
	ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
		ctest --test-dir $(SANITIZE_DIR) --output-on-failure -j $(JOBS)

# Core, UI and end-to-end tests; ends with CTest's summary line.
test: test-sanitize build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

# Every benchmark program (the bench_* executables, not their build folders), then the footprint of
# the real tracker; all of them run, and the target fails if any of them failed.
bench: deps
	cmake -S . -B $(BENCH_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DLARKSPAN_BENCH=ON $(CMAKE_FLAGS)
	cmake --build $(BENCH_DIR) -j $(JOBS)
	@failed=""; \
	for b in $(BENCH_DIR)/bench/bench_*; do \
		[ -f "$$b" ] && [ -x "$$b" ] || continue; \
		echo "== $$(basename $$b)"; $$b $(BENCH_ARGS) || failed="$$failed $$(basename $$b)"; \
	done; \
	echo "== footprint"; bench/footprint.sh $(BENCH_DIR)/src/larkspan || failed="$$failed footprint"; \
	[ -z "$$failed" ] || { echo "failed:$$failed" >&2; exit 1; }

# The tracking road once more under ThreadSanitizer.
tsan: deps
	cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLARKSPAN_CORE_ONLY=ON -DLARKSPAN_TSAN=ON
	cmake --build build-tsan -j $(JOBS) --target larkspan_core_tests
	ctest --test-dir build-tsan --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD_DIR) $(SANITIZE_DIR) $(BENCH_DIR) build-tsan
