# Habitual entry points around CMake. The build lives in build/.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)
# CI passes WERROR=ON; a local build only warns.
WERROR ?= OFF

export QT_QPA_PLATFORM = offscreen

.PHONY: all deps configure build run install package test test-locale tidy bench bench-startup \
	sanitize fuzz coverage format clean

all: build

deps:
	@tools/install_deps.sh

# Configuring again is cheap, and applies options given on the command line to an
# existing build folder.
configure: deps
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
		-DLOOKWRIGHT_WERROR=$(WERROR)

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

# The whole suite once more under another locale (German by default), with nothing
# built again: a user's locale must change no document and no number.
TEST_LOCALE ?= de_DE.UTF-8
test-locale: build
	cd $(BUILD_DIR) && LOOKWRIGHT_TEST_LOCALE=$(TEST_LOCALE) ctest --output-on-failure -j $(JOBS)

# clang-tidy with .clang-tidy over every translation unit of src/, orn_toolkit/ and
# tools/ in the build; any finding fails.
tidy: build
	tools/run_tidy.sh $(BUILD_DIR) $(JOBS)

# Figures for bench/README.md: the core's steps, the window's run, then the converter end to end.
bench: build
	$(BUILD_DIR)/bench/bench_core
	$(BUILD_DIR)/bench/bench_conversion_run
	bench/end_to_end.sh $(BUILD_DIR)/lookwright-convert

# How long the window takes to appear, under Xvfb, next to a bare Qt window.
bench-startup: build
	bench/startup.sh $(BUILD_DIR)

# The whole suite again, built by clang with AddressSanitizer and
# UndefinedBehaviorSanitizer.
SANITIZE_DIR ?= build-sanitize
sanitize: deps
	cmake -S . -B $(SANITIZE_DIR) -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
		-DLOOKWRIGHT_SANITIZE=ON -DLOOKWRIGHT_WERROR=$(WERROR)
	cmake --build $(SANITIZE_DIR) -j $(JOBS)
	cd $(SANITIZE_DIR) && \
	ASAN_OPTIONS=halt_on_error=1:detect_leaks=1:abort_on_error=1 \
	UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
	ctest --output-on-failure -j $(JOBS)

# Every fuzz target for SECONDS seconds, from its corpus in fuzz/corpus, the test
# presets and the shared real presets when they are there. What a run adds to the
# coverage of the checked-in corpus is kept in $(FUZZ_DIR)/found/<target>.
FUZZ_DIR ?= build-fuzz
SECONDS ?= 60
fuzz: deps
	cmake -S . -B $(FUZZ_DIR) -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
		-DLOOKWRIGHT_FUZZ=ON -DLOOKWRIGHT_TESTS=OFF -DLOOKWRIGHT_WERROR=$(WERROR)
	cmake --build $(FUZZ_DIR) -j $(JOBS) --target fuzzers
	fuzz/run.sh $(FUZZ_DIR) $(SECONDS)

# Line and branch coverage of the suite, per folder, from an unoptimised gcc build.
COVERAGE_DIR ?= build-coverage
coverage: deps
	cmake -S . -B $(COVERAGE_DIR) -DCMAKE_BUILD_TYPE=Debug -DLOOKWRIGHT_COVERAGE=ON
	cmake --build $(COVERAGE_DIR) -j $(JOBS)
	find $(COVERAGE_DIR) -name '*.gcda' -delete
	cd $(COVERAGE_DIR) && ctest --output-on-failure -j $(JOBS)
	tools/coverage_report.sh $(COVERAGE_DIR)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR)
