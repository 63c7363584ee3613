# The newcomer's commands. All building is done by CMake; see CMakePresets.json for the ways to build.

.PHONY: build install uninstall demo check check-windows package installer sanitize fuzz bench docs clean

build:
	@scripts/install-dependencies.sh
	@cmake --preset release
	@cmake --build build

# Puts the command, its manual page, completions and documentation into their places below PREFIX.
install: build
	@cmake --install build --prefix "$(or $(PREFIX),/usr/local)"

# Removes what the last `make install` put in place.
uninstall:
	@scripts/uninstall.sh

# Builds the command, refreshes the example workbooks into demo/ and makes pictures of them where LibreOffice is present,
# and of the pages of the wizard.
demo:
	@scripts/install-dependencies.sh
	@cmake --preset release
	@cmake --build build --target plotsmith
	@scripts/demo.sh

# Builds, then runs all tests, as they are and under a locale with a decimal comma.
check: build
	@scripts/check.sh

# Builds for Windows, and tries the command and the component under Wine.
check-windows:
	@scripts/check-windows.sh

# Makes the Debian packages in build/packages: plotsmith, and plotsmith-wizard.
package:
	@scripts/package.sh

# Makes the installer for Windows, build/PlotsmithSetup.exe.
installer:
	@scripts/installer.sh

# All tests under the address and undefined-behaviour sanitizers.
sanitize:
	@scripts/install-dependencies.sh
	@cmake --preset sanitizers
	@cmake --build build-sanitizers
	@scripts/run-tests.sh build-sanitizers/tests/plotsmith_tests \
	  $$(ls build-sanitizers/tests/qt/plotsmith_qt_tests 2>/dev/null || true)

# Runs each fuzzer for a minute, or for FUZZ_SECONDS.
fuzz:
	@scripts/fuzz.sh $(or $(FUZZ_SECONDS),60)

# Measures whole runs and the parts; docs/performance.md says what comes out and why.
bench:
	@scripts/bench.sh

# Builds pages of the interfaces into build/docs/html.
docs:
	@scripts/install-dependencies.sh doxygen
	@cmake --preset release
	@cmake --build build --target docs

clean:
	@rm -rf build build-debug build-sanitizers build-fuzz build-windows-x64 build-windows-x86 demo
