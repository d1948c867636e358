# The one entrance: `make help` lists the targets. Each works on a fresh Debian machine.

BUILD_PACKAGES = cmake ninja-build g++ g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest zip \
  nlohmann-json3-dev libcli11-dev libstb-dev libutfcpp-dev
WINDOW_PACKAGES = wine wine64 fonts-wine fonts-liberation xvfb openbox xdotool imagemagick x11-utils librsvg2-bin
DIST_PACKAGES = nsis pandoc
BENCH_PACKAGES = pkgconf libboost-regex-dev libpcre2-dev libre2-dev
FUZZ_PACKAGES = clang libclang-rt-14-dev pkgconf libpcre2-dev
X86_PACKAGES = debootstrap
LINT_PACKAGES = clang-format-16 clang-tidy cppcheck shellcheck python3-yaml

MUTANT_PACKAGES = python3

.PHONY: help build check test test-x86 run screenshots gallery lint coverage mutants bench fuzz soak rules dist packages
.DEFAULT_GOAL := help

help:
	@echo "make run      DevHost with the sample items (without a display: unattended, from choosing a door"
	@echo "              to its drawing; the results printed, screenshots in out/)"
	@echo "make gallery  open the property grid with every kind of value (without a display: unattended,"
	@echo "              screenshots of its modes and editors in out/)"
	@echo "make screenshots  make the pictures of the documentation from the running programs"
	@echo "make check    build and run the native tests: the quick loop while writing code without windows"
	@echo "make test     build and run every test"
	@echo "make test-x86 build the 32-bit programs and run their tests, SOAK_SECONDS=60 of random calls among them; takes"
	@echo "              root, and makes a Debian for i386 under build/ once; the figures go to docs/reliability.md"
	@echo "make fuzz     fuzz what has no windows, FUZZ_SECONDS=60 for each target; the figures go to"
	@echo "              docs/reliability.md"
	@echo "make soak     random calls with random input, SOAK_SECONDS=60; SOAK_SEED repeats a run"
	@echo "make lint     the format of all sources, compiler warnings, clang-tidy, cppcheck, shellcheck, the one-definition rule"
	@echo "make coverage what the tests run of the code; the figures go to docs/reliability.md"
	@echo "make mutants  plant small faults one at a time, and see that a test notices each; the figures go to"
	@echo "              docs/reliability.md"
	@echo "make bench    measure, beside other libraries; the figures go to docs/performance.md"
	@echo "make rules    write what tavrincheck says of its rules into docs/tavrincheck.md"
	@echo "make build    build/x64/bin, build/x86/bin (the module and the stand-in host), build/native/bin"
	@echo "make dist     dist/TavrinWnd-VERSION-x64.zip and -x86.zip and their setup programs: what users install, the same"
	@echo "              bytes each time"
	@echo "make help     this list"

packages:
	@scripts/install-packages $(BUILD_PACKAGES) $(WINDOW_PACKAGES)

build: packages
	@scripts/build native
	@scripts/build x64
	@scripts/build x86 programs

check:
	@scripts/install-packages $(BUILD_PACKAGES)
	@scripts/build native
	@ctest --test-dir build/native --output-on-failure --parallel $$(nproc) --tests-regex '^unit\.' \
	    --label-exclude exhaustive --progress

test: build
	@scripts/install-packages $(FUZZ_PACKAGES) $(DIST_PACKAGES)
	@scripts/build fuzz
	@printf 'subdirs("x64" "native" "fuzz")\n' > build/CTestTestfile.cmake
	@scripts/with-wine ctest --test-dir build --output-on-failure --parallel $$(nproc)

test-x86: packages
	@scripts/x86-root --possible
	@scripts/install-packages $(X86_PACKAGES) $(DIST_PACKAGES)
	@scripts/test-x86

run: packages
	@scripts/build x64 DevHost TavrinWnd TavrinRes_it TavrinRes_en TD_Alloc TD_Alloc_checked
	@scripts/run-door

screenshots: packages
	@scripts/build x64 DevHost TavrinWnd TavrinRes_it TavrinRes_en TD_Alloc TD_Alloc_checked
	@scripts/make-screenshots

gallery: packages
	@scripts/build x64 GridGallery TD_Alloc TD_Alloc_checked
	@scripts/run-gallery

dist: packages
	@scripts/install-packages $(DIST_PACKAGES)
	@scripts/make-dist

bench: packages
	@scripts/install-packages $(BENCH_PACKAGES)
	@scripts/bench

fuzz: packages
	@scripts/install-packages $(FUZZ_PACKAGES)
	@FUZZ_SECONDS=$(FUZZ_SECONDS) scripts/fuzz

lint: packages
	@scripts/install-packages $(FUZZ_PACKAGES) $(LINT_PACKAGES)
	@scripts/lint

soak: packages
	@scripts/soak

rules: packages
	@scripts/write-rules

coverage: packages
	@scripts/install-packages $(FUZZ_PACKAGES) llvm
	@scripts/coverage
	@scripts/coverage-windows

mutants: packages
	@scripts/install-packages $(MUTANT_PACKAGES)
	@scripts/mutants
