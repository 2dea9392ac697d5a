#!/usr/bin/env bash
# Builds everything and runs every test (JUnit against the bridge and the stand-in, GoogleTest,
# the exports check).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
ctest --test-dir build --output-on-failure
