# The commands of this project. `make help` lists them.
.DEFAULT_GOAL := help
.PHONY: help run test fuzz sanitize endurance package package-test bench picture pictures format check mutate tidy hooks clean

help: ## this list
	@awk -F ':.*## ' '/^[a-z-]+:.*## / { printf "make %-12s %s\n", $$1, $$2 }' $(MAKEFILE_LIST)

run: ## build and start Orlamo; without a display, show it on one of its own
	@scripts/setup build run
	@cmake --preset release
	@cmake --build --preset release --target orlamo
	@scripts/run

test: ## build everything and run all tests
	@scripts/setup build run demo test
	@cmake --preset release
	@cmake --build --preset release
	@ctest --preset release -j $$(nproc)

fuzz: ## run each fuzzer for a minute; FUZZ_SECONDS=10, TARGETS="menus panel" say otherwise
	@scripts/setup build fuzz
	@cmake --preset fuzz > /dev/null
	@cmake --build --preset fuzz
	@scripts/fuzz $(TARGETS)

sanitize: ## run all tests under AddressSanitizer, LeakSanitizer and UndefinedBehaviorSanitizer
	@scripts/setup build run demo test
	@cmake --preset sanitize
	@cmake --build --preset sanitize
	@ctest --preset sanitize -j $$(nproc)

endurance: ## an hour of showings, thousands of keys, services killed again and again; MINUTES=10 for a shorter hour
	@scripts/setup build run demo test
	@cmake --preset release
	@cmake --build --preset release --target orlamo orlamo_resources orlamo_typing
	@cd tests/desktop && ORLAMO_ENDURANCE=1 PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 -m unittest -v test_typing test_recovery
	@bench/endurance --minutes $(or $(MINUTES),60)

package: ## build the Debian package, and have it judged
	@scripts/setup build package
	@scripts/package

package-test: package ## install, start and remove the package in a Debian with nothing on it (as root)
	@scripts/setup package-test
	@tests/package/fresh_system

bench: ## run the measurements of docs/performance.md
	@scripts/setup build run demo test bench
	@cmake --preset release
	@cmake --build --preset release --target orlamo
	@cmake --preset bench
	@cmake --build --preset bench
	@bench/run

picture: ## show a window, or the panel over a program: make picture SHOW="panel --over geany"; --help lists what can be said
	@scripts/setup build run demo
	@cmake --preset release > /dev/null
	@cmake --build --preset release --target orlamo orlamo_resources
	@scripts/picture $(SHOW)

pictures: ## take the pictures of docs/images anew
	@scripts/setup build run demo bench
	@cmake --preset release
	@cmake --build --preset release --target orlamo orlamo_resources
	@scripts/picture all --to docs/images
	@scripts/picture panel --over "geany --new-instance" --maximized --hold Ctrl --screen --to docs/images/geany.png
	@scripts/picture panel --over "kate --startanon" --display 1600x1080 --maximized --screen --to docs/images/kate.png

format: ## format all C++ files
	@scripts/setup test
	@scripts/check --fix

mutate: ## seed single faults and see which the unit tests catch
	@scripts/setup build test
	@scripts/mutate

check: ## formatting and house rules, as the pre-commit hook does
	@scripts/check

tidy: ## clang-tidy over all C++ files
	@scripts/setup build tidy
	@cmake --preset release > /dev/null
	@cmake --build --preset release
	@scripts/tidy

hooks: ## check every commit before it is made
	@git config core.hooksPath scripts/hooks

clean: ## remove everything that was built
	@rm -rf build
