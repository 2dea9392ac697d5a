#!/usr/bin/env bash
# Installs, from Debian's packages, whatever building and testing need and the machine lacks.
set -euo pipefail

need=()
have_jdk17() {
    command -v javac >/dev/null 2>&1 || return 1
    local v
    v=$(javac -version 2>&1 | sed -E 's/^javac ([0-9]+).*/\1/')
    [ "${v:-0}" -ge 17 ] 2>/dev/null
}
command -v cmake >/dev/null 2>&1 || need+=(cmake)
command -v g++ >/dev/null 2>&1 || need+=(g++)
command -v make >/dev/null 2>&1 || need+=(make)
command -v nm >/dev/null 2>&1 || need+=(binutils)
have_jdk17 || need+=(openjdk-17-jdk-headless)
[ -f /usr/share/java/junit-platform-console-standalone.jar ] || need+=(junit5)
[ -f /usr/include/gtest/gtest.h ] || need+=(libgtest-dev)
[ -f /usr/include/benchmark/benchmark.h ] || need+=(libbenchmark-dev)
[ -f /usr/include/nlohmann/json.hpp ] || need+=(nlohmann-json3-dev)
[ -f /usr/include/turbojpeg.h ] || need+=(libturbojpeg0-dev)
[ -f /usr/share/java/jna.jar ] || need+=(libjna-java)
[ -f /usr/share/java/picocli.jar ] || need+=(libpicocli-java)

if [ ${#need[@]} -gt 0 ]; then
    if [ "$(id -u)" -ne 0 ]; then
        echo "missing packages: ${need[*]} (run as root, or install them first)" >&2
        exit 1
    fi
    echo "installing: ${need[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q
    apt-get install -y -q --no-install-recommends "${need[@]}"
fi
