#!/usr/bin/env bash
# Builds everything and tours the simulated platform of the stand-in client library: log in, the
# organisation tree, live video (one frame saved as a picture), playback, PTZ, talk, alarms, a
# video wall and a door. The first argument names the picture (default build/orvex-frame.jpg).
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build
echo "Building into build/ (the log is build/build.log) ..."
if ! bash scripts/build.sh >build/build.log 2>&1; then
    tail -n 40 build/build.log >&2
    exit 1
fi
root=$PWD
# The stand-in is found through the loader's search path; point it elsewhere for a real library.
# ORVEX_SIM_SCENARIO may name a scenario file for the simulated site.
LD_LIBRARY_PATH="$root/build/sim${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
    java -Dorvex.jni.library="$root/build/lib/libOrvexCoreJni.so" \
    -cp "$root/build/orvexcore.jar:$root/build/orvex-examples.jar" \
    SiteTour "${1:-$root/build/orvex-frame.jpg}"
