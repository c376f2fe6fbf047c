# Two commands do everything on a fresh Debian machine: `make run` and `make test`.
BUILD_DIR ?= build
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
EXAMPLE ?= examples/building.json
SCREENSHOT ?= $(BUILD_DIR)/norvane-host.png

.PHONY: all setup configure build run test bench package clean fuzz sanitize

all: build

setup:
	@scripts/bootstrap

# Installs under /usr, as the Debian packages do (`cmake --install build --prefix DIR` for elsewhere).
# `make test` also turns warnings into errors; a plain build leaves them warnings.
configure: setup
	@cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr $(CMAKE_OPTIONS) > /dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

# Without a display the host renders its main window to a PNG instead of failing.
run: build
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  $(BUILD_DIR)/norvane-host $(EXAMPLE); \
	else \
	  echo "No display found (DISPLAY and WAYLAND_DISPLAY are unset)."; \
	  echo "Rendering the main window with the example model to $(SCREENSHOT) instead."; \
	  QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/norvane-host $(EXAMPLE) --screenshot $(SCREENSHOT); \
	fi

test: CMAKE_OPTIONS += -DNORVANE_WERROR=ON
test: build
	@cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# The Debian packages norvane and norvane-dev, in the build folder.
package: build
	@cd $(BUILD_DIR) && cpack -G DEB

# The fuzz targets of tests/fuzz, each for FUZZ_SECONDS, in a sanitized clang build (build-fuzz).
FUZZ_SECONDS ?= 60
fuzz:
	@scripts/fuzz build && scripts/fuzz run $(FUZZ_SECONDS)

# The Qt-free tests in that same build, under AddressSanitizer and UndefinedBehaviorSanitizer.
sanitize:
	@scripts/fuzz build && scripts/fuzz test

bench: build
	@QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/norvane_bench

clean:
	@rm -rf $(BUILD_DIR) build-fuzz
