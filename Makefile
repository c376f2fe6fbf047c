# Two commands do everything on a fresh Debian machine: `make run` and `make test`.
BUILD_DIR ?= build
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
EXAMPLE ?= examples/building.json
SCREENSHOT ?= $(BUILD_DIR)/norvane-host.png

.PHONY: all setup configure build run test bench clean

all: build

setup:
	@scripts/bootstrap

configure: setup
	@cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=Release > /dev/null

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

test: build
	@cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure

bench: build
	@QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/norvane_bench

clean:
	@rm -rf $(BUILD_DIR)
