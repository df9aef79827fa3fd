# Two commands for a newcomer: `make run` and `make test`. Both install what is missing first.
.PHONY: run test deps build sanitize syntax-check bench format strings scenarios pictures clean

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
