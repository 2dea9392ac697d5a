#!/usr/bin/env bash
# Builds everything and runs the example program against the stand-in client library.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
root=$PWD
# The stand-in is found through the loader's search path; point it elsewhere for a real library.
LD_LIBRARY_PATH="$root/build/sim${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
    java -Dorvex.jni.library="$root/build/lib/libOrvexCoreJni.so" \
    -cp "$root/build/orvexcore.jar:$root/build/orvex-examples.jar" \
    QuickStart "${1:-$root/build/orvex-quickstart.log}"
