#!/usr/bin/env bash
# Builds everything and runs every test (JUnit against the bridge and the stand-in, GoogleTest,
# the exports checks), then the same suites again on an AddressSanitizer and
# UndefinedBehaviorSanitizer build.
#   scripts/test.sh            both runs
#   scripts/test.sh plain      the normal build only (build/)
#   scripts/test.sh sanitize   the sanitizer build only (build-asan/)
set -euo pipefail
cd "$(dirname "$0")/.."
what=${1:-all}
case "$what" in
    all | plain | sanitize) ;;
    *)
        echo "usage: scripts/test.sh [all|plain|sanitize]" >&2
        exit 2
        ;;
esac
if [ "$what" != sanitize ]; then
    bash scripts/build.sh
    ctest --test-dir build --output-on-failure
fi
if [ "$what" != plain ]; then
    bash scripts/setup.sh
    cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORVEX_SANITIZE=ON
    cmake --build build-asan -j "$(nproc)"
    ctest --test-dir build-asan --output-on-failure
fi
