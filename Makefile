# Two commands for a newcomer: `make run` and `make test`. Both install what is missing first.
.PHONY: run test app deps build sanitize syntax-check bench format strings scenarios pictures clean

PRESET ?= release
BUILD_DIR := build/$(PRESET)
QUENBYCTL := $(BUILD_DIR)/quenbyctl

deps:
	@scripts/install-deps

build: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET)

run: build
ifeq ($(shell uname -s),Darwin)
	open $(BUILD_DIR)/Quenby.app
else
	@$(QUENBYCTL) simulate --narrate examples/tour.qsim
endif

test: build
	@ctest --preset $(PRESET)

# Quenby.app, signed: ad hoc by default, or with a certificate's identity, e.g.
#   make app IDENTITY="Developer ID Application: Jane Doe (TEAMID)"
# Off a Mac the app is cross-built against Apple's SDK where one is unpacked beside this checkout,
# and only checked (nothing can sign or run it there).
IDENTITY ?= -
CROSS_BUILD := ../shared/tools/macos-cross-build
SDK_CHECK := ../shared/tools/macos-sdk-check

app: deps
ifeq ($(shell uname -s),Darwin)
	@cmake --preset $(PRESET) -DQUENBY_CODESIGN_IDENTITY="$(IDENTITY)" >/dev/null
	@cmake --build --preset $(PRESET) --target Quenby
	@codesign --verify --deep --strict --verbose=1 $(BUILD_DIR)/Quenby.app
	@echo "$(abspath $(BUILD_DIR))/Quenby.app"
else
	@if [ -x $(CROSS_BUILD) ] && [ -x $(SDK_CHECK) ] && $(SDK_CHECK) --available >/dev/null 2>&1; then \
	  $(CROSS_BUILD); \
	else \
	  echo "Quenby.app is built on a Mac: run make app there (no macOS SDK to cross-build against here)." >&2; \
	  exit 1; \
	fi
endif

# The suite again with AddressSanitizer and UndefinedBehaviorSanitizer.
sanitize:
	@$(MAKE) --no-print-directory test PRESET=dev

syntax-check: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET) --target macos_syntax_check

bench: build
	@$(BUILD_DIR)/bench/quenby_bench

format:
	@git ls-files '*.cpp' '*.hpp' '*.mm' '*.h' | xargs clang-format -i

# Regenerates resources/en.lproj/Localizable.strings from the texts declared in the sources.
strings:
	@scripts/update-strings

# Regenerates the expected output of every scenario under tests/scenarios/ (review the diff).
scenarios: build
	@scripts/update-scenarios $(QUENBYCTL)

# Redraws docs/hud.svg and docs/usage.svg from the examples.
pictures: build
	@scripts/make-pictures $(QUENBYCTL)

clean:
	rm -rf build
