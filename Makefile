# A thin front over CMake: sets a Debian machine up when something is missing, then builds, runs or tests.

PRESET ?= release
WERROR ?= OFF
JOBS ?= 2
FUZZ_SECONDS ?= 600
FUZZ_SEED ?= 0
COUNT ?= 60
SEED ?= 1
FOLDER ?= src
TIDY ?= src tools
TESTS ?= check
OPTIONS ?=
BUILD = build/$(PRESET)
PACKAGES = ccache cmake g++ libqpdf-dev librsvg2-bin libxml2-utils ninja-build poppler-utils qtbase5-dev qttools5-dev \
    qttools5-dev-tools tzdata
CLANG = clang libclang-rt-14-dev
DOXYGEN = doxygen qhelpgenerator-qt5 qtbase5-doc-dev
# Builds of the same flags share what the cache has, whatever their folder in build.
export CCACHE_BASEDIR = $(CURDIR)
ROOT = $(if $(filter 0,$(shell id -u)),,sudo)

.PHONY: help demo proof browser pictures check quick mutants platform bench benchmarks fuzz valgrind clang tidy docs \
    build setup clean licences abi abi-store release-check reproducible packages

help:
	@echo "make demo       set up, build, and show what the library answers about the sample catalogue, and draw a book"
	@echo "make proof      set up, build, and write the sample catalogue as pages for a browser"
	@echo "make browser    set up, build, and test these pages in Chromium"
	@echo "make pictures   write the pictures of README.md again, into docs/pictures"
	@echo "make check      set up, build, and run every test (PRESET=debug|release|asan|tsan, WERROR=ON)"
	@echo "make quick      the same without the tests that take long (hostile files, headers alone)"
	@echo "make mutants    put COUNT=60 small faults into the code, and list those that no test notices (SEED=1, FOLDER=src)"
	@echo "make platform   the same tests against the platform as a package of its own, all built with clang (TESTS=check|quick|build)"
	@echo "make packages   make packages for Debian, and install, use and remove them in a folder of their own"
	@echo "make reproducible  build the last commit in two folders, which must give the same bits (OPTIONS= for CMake)"
	@echo "make valgrind   the demo under valgrind, which must find nothing"
	@echo "make bench      build Release and print what start-up and answers cost, beside what they may cost"
	@echo "make fuzz       set up, build with clang, and run every fuzzer (FUZZ_SECONDS=600, all together)"
	@echo "make clang      set up, and build all with clang, as C++17 and as C++20 (WERROR=ON)"
	@echo "make tidy       set up, and run clang-tidy over TIDY=\"src tools\", which must find nothing"
	@echo "make docs       write the reference of the public headers into build/docs, for a browser and as .qch"
	@echo "make abi        see whether programs that use the last release can run with the libraries as they are now"
	@echo "make abi-store  make the ABI as it is now the one to compare with, for a release"
	@echo "make licences   see whether each file has copyright and licence (REUSE)"
	@echo "make release-check  what a release has to pass beside the gate, .ci/run"
	@echo "make clean      remove everything that was built"

demo: build
	$(RUN) $(BUILD)/bin/pxcatalogue list --resources data/sample
	@echo
	$(RUN) $(BUILD)/bin/pxcatalogue show BOOK_A4_PORTRAIT --pages 26 --resources data/sample
	@echo
	$(RUN) $(BUILD)/bin/pxcatalogue themes --resources data/sample
	@echo
	$(RUN) $(BUILD)/bin/pxcatalogue show BOOK_A4_PORTRAIT --pages 26 --theme hochzeit --resources data/sample
	@echo
	$(RUN) $(BUILD)/bin/pxcatalogue draw BOOK_A4_PORTRAIT --pages 26 --resources data/sample --output $(BUILD)/book.svg
	@echo "The drawing of the book: $(BUILD)/book.svg"

proof: build
	$(BUILD)/bin/pxcatalogue proof --resources data/sample --output $(BUILD)/proof
	@echo "Open this in a browser: file://$(CURDIR)/$(BUILD)/proof/index.html"

# The tests write the proofs that they open. A nodejs from elsewhere brings its own npm, with which Debian's conflicts.
browser pictures: PACKAGES += chromium tidy $(if $(shell command -v npm),,nodejs npm)
browser: build
	cd tests/browser && npm ci --no-audit --no-fund && \
	    PROGRAM=$(CURDIR)/$(BUILD)/bin/pxcatalogue SAMPLE=$(CURDIR)/data/sample node --test

pictures: build
	$(BUILD)/bin/pxcatalogue draw BOOK_A4_PORTRAIT --pages 26 --sheet cover --lang en --resources data/sample --output docs/pictures/cover.svg
	$(BUILD)/bin/pxcatalogue draw CALENDAR_WALL_A4 --sheet 1 --lang en --resources data/sample --output docs/pictures/calendar.svg
	$(BUILD)/bin/pxcatalogue proof --lang en --title "Sample catalogue" --resources data/sample --output $(BUILD)/proof-en
	cd tests/browser && npm ci --no-audit --no-fund && node pictures.js $(CURDIR)/$(BUILD)/proof-en $(CURDIR)/docs/pictures

# What the design keeps until exit is still reachable then, and no leak.
valgrind: PACKAGES += valgrind
valgrind: RUN = valgrind --quiet --leak-check=full --error-exitcode=1
valgrind: demo

# PxShellTest lints the manual page, and tries completion in each shell.
check quick: PACKAGES += fish mandoc pkgconf python3-jsonschema zsh
check quick: PACKAGES += $(if $(filter asan,$(PRESET)),$(CLANG))
check: build
	ctest --preset $(PRESET) -j $(JOBS)

quick: build
	ctest --preset $(PRESET) -j $(JOBS) --label-exclude '^slow$$'

mutants: PACKAGES += python3
mutants: setup
	JOBS=$(JOBS) tests/mutants/mutants.py $(COUNT) $(SEED) $(FOLDER)

# What is built here sees of the editions only what they install. With clang, as C++20, so that this is tried as well.
platform: PACKAGES += clang libbenchmark-dev
platform: setup
	cmake -S src/platform -B build/PxPlatform -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_STANDARD=20 \
	    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DPX_WARNINGS_AS_ERRORS=$(WERROR)
	cmake --build build/PxPlatform -j $(JOBS)
	rm -rf build/PxPlatform/installed
	cmake --install build/PxPlatform --prefix build/PxPlatform/installed
	$(MAKE) $(TESTS) PRESET=platform

# What is made from one commit is the same, whenever it is made.
packages: PACKAGES += dpkg-dev file lintian pkgconf $(DOXYGEN)
packages: setup
	SOURCE_DATE_EPOCH=$(shell git log -1 --format=%ct) cmake --preset packages -DPX_WARNINGS_AS_ERRORS=$(WERROR)
	cmake --build --preset packages -j $(JOBS)
	cd build/packages && rm -f *.deb && SOURCE_DATE_EPOCH=$(shell git log -1 --format=%ct) cpack
	tests/install/packages build/packages

reproducible: setup
	JOBS=$(JOBS) tests/install/reproducible $(OPTIONS)

# Both sides of each ratio take turns, so that other work on the machine troubles both alike.
bench: benchmarks
	status=0; build/release/bin/PxColdStarts || status=1; \
	build/release/bin/PxBenchmarks --benchmark_enable_random_interleaving=true --benchmark_min_time=0.2 || status=1; exit $$status

benchmarks: PACKAGES += libbenchmark-dev
benchmarks: setup
	cmake --preset release -DPX_BUILD_BENCHMARKS=ON
	cmake --build --preset release -j $(JOBS) --target PxBenchmarks PxColdStarts

fuzz: PACKAGES += $(CLANG)
fuzz: setup
	cmake --preset asan -DPX_WARNINGS_AS_ERRORS=$(WERROR)
	cmake --build --preset asan -j $(JOBS) --target PxFuzzers
	fuzz/run $(FUZZ_SECONDS) $(FUZZ_SEED)

clang tidy: PACKAGES += $(CLANG) clang-tidy libbenchmark-dev
clang: setup
	$(MAKE) build PRESET=clang
	$(MAKE) build PRESET=clang20

# The headers that it needs are all generated when CMake configures. It cannot be cached.
tidy: setup
	cmake --preset clang
	find $(TIDY) -name '*.cpp' | xargs -P $(JOBS) -n 1 clang-tidy -quiet -p build/clang

# A tree of its own: nothing has to be compiled for it.
docs: PACKAGES += $(DOXYGEN)
docs: setup
	cmake -S . -B build/docs -G Ninja -DPX_BUILD_TESTS=OFF
	cmake --build build/docs --target PxReference
	@echo "Open this in a browser: file://$(CURDIR)/build/docs/reference/html/index.html"

abi abi-store: PRESET = abi
abi abi-store: PACKAGES += abigail-tools
abi: build
	abi/run compare $(BUILD)

abi-store: build
	abi/run store $(BUILD)

licences: PACKAGES = reuse
licences: setup
	reuse lint

# Each in a make of its own, since presets and packages differ.
release-check:
	$(MAKE) tidy
	$(MAKE) reproducible
	$(MAKE) platform WERROR=ON
	$(MAKE) check PRESET=asan WERROR=ON
	$(MAKE) check PRESET=tsan WERROR=ON
	$(MAKE) fuzz

build: setup
	cmake --preset $(PRESET) -DPX_WARNINGS_AS_ERRORS=$(WERROR) $(OPTIONS)
	cmake --build --preset $(PRESET) -j $(JOBS)

# apt is asked for what dpkg does not know as installed, and so for nothing on a machine that is set up.
setup:
	@missing=; for package in $(PACKAGES); do \
	    dpkg-query -W -f '$${Status}' $$package 2>/dev/null | grep -q 'ok installed' || missing="$$missing $$package"; \
	done; \
	if [ -n "$$missing" ]; then \
	    $(ROOT) apt-get update && \
	    $(ROOT) env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $$missing; \
	fi

clean:
	rm -rf build
