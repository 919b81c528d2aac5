# Habitual entry points around CMake. The build lives in build/.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)

export QT_QPA_PLATFORM = offscreen

.PHONY: all deps configure build run install package test bench bench-startup sanitize fuzz format clean

all: build

deps:
	@tools/install_deps.sh

$(BUILD_DIR)/CMakeCache.txt:
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DCMAKE_EXPORT_COMPILE_COMMANDS=ON

configure: deps $(BUILD_DIR)/CMakeCache.txt

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

# The window itself, on the desktop this is typed on: the offscreen platform above
# is for the tests only.
run: configure
	cmake --build $(BUILD_DIR) -j $(JOBS) --target lookwright
	env -u QT_QPA_PLATFORM $(BUILD_DIR)/lookwright

# Installs the two programs, the desktop entry, the AppStream file and the icons
# below PREFIX; DESTDIR stages them elsewhere, as packagers do.
PREFIX ?= /usr/local
install: build
	DESTDIR="$(DESTDIR)" cmake --install $(BUILD_DIR) --prefix $(PREFIX)

# A Debian package of the same tree, installed under /usr, in $(BUILD_DIR).
package: build
	cd $(BUILD_DIR) && cpack -G DEB

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

# Figures for bench/README.md: the core's steps, the window's run, then the converter end to end.
bench: build
	$(BUILD_DIR)/bench/bench_core
	$(BUILD_DIR)/bench/bench_conversion_run
	bench/end_to_end.sh $(BUILD_DIR)/lookwright-convert

# How long the window takes to appear, under Xvfb, next to a bare Qt window.
bench-startup: build
	bench/startup.sh $(BUILD_DIR)

# The whole suite again, built with AddressSanitizer and UndefinedBehaviorSanitizer.
SANITIZE_DIR ?= build-sanitize
sanitize: deps
	cmake -S . -B $(SANITIZE_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLOOKWRIGHT_SANITIZE=ON
	cmake --build $(SANITIZE_DIR) -j $(JOBS)
	cd $(SANITIZE_DIR) && \
	ASAN_OPTIONS=halt_on_error=1:detect_leaks=1:abort_on_error=1 \
	UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
	ctest --output-on-failure -j $(JOBS)

# Every fuzz target for SECONDS seconds, from seeds in tests/data, examples/ and
# the shared real presets when they are there.
FUZZ_DIR ?= build-fuzz
SECONDS ?= 60
fuzz: deps
	CXX=clang++ cmake -S . -B $(FUZZ_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLOOKWRIGHT_FUZZ=ON -DLOOKWRIGHT_TESTS=OFF
	cmake --build $(FUZZ_DIR) -j $(JOBS)
	fuzz/run.sh $(FUZZ_DIR) $(SECONDS)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR)
