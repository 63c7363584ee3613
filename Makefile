# Shortcuts for the most common tasks. CMake does all building; CMakePresets.json has its configurations.

.PHONY: build install uninstall demo check check-windows package installer sanitize fuzz bench docs clean

build:
	@scripts/install-dependencies.sh
	@cmake --preset release
	@cmake --build build

# Installs the command, its manual page, completions and documentation below PREFIX.
install: build
	@cmake --install build --prefix "$(or $(PREFIX),/usr/local)"

# Removes the files that the last `make install` has installed.
uninstall:
	@scripts/uninstall.sh

# Builds the command and refreshes the example workbooks into demo/. Makes pictures of them if LibreOffice is installed,
# and pictures of the wizard's pages if Qt is.
demo:
	@scripts/install-dependencies.sh
	@cmake --preset release
	@cmake --build build --target plotsmith
	@scripts/demo.sh

# Builds, and runs all tests.
check: build
	@scripts/check.sh

# Builds for Windows, and tests the command and the component under Wine.
check-windows:
	@scripts/check-windows.sh

# Makes the Debian packages plotsmith and plotsmith-wizard in build/packages.
package:
	@scripts/package.sh

# Makes build/PlotsmithSetup.exe, the installer for Windows.
installer:
	@scripts/installer.sh

# Runs all tests under the address and undefined-behaviour sanitizers, in a locale with a decimal comma.
sanitize:
	@scripts/install-dependencies.sh
	@cmake --preset sanitizers
	@cmake --build build-sanitizers
	@scripts/with-decimal-comma.sh scripts/run-tests.sh build-sanitizers/tests/plotsmith_tests \
	  $$(ls build-sanitizers/tests/qt/plotsmith_qt_tests 2>/dev/null || true)

# Runs each fuzzer for a minute, or for FUZZ_SECONDS seconds.
fuzz:
	@scripts/fuzz.sh $(or $(FUZZ_SECONDS),60)

# Runs the benchmarks; docs/performance.md explains their results.
bench:
	@scripts/bench.sh

# Builds the reference pages in build/docs/html, and names members without a comment.
docs:
	@scripts/install-dependencies.sh doxygen
	@cmake --preset release
	@cmake --build build --target docs
	@scripts/check-comments.sh

clean:
	@rm -rf build build-debug build-sanitizers build-fuzz build-windows-x64 build-windows-x86 demo
