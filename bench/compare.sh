#!/usr/bin/env bash
# Builds in Release and measures the query engine side by side with the
# query tool of Debian's qstat package on the same simulated fleets, plus
# the window's figures, and writes bench/RESULTS.md.
#
#   bench/compare.sh            # about 5 minutes after the build
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-debian.sh
for package in qstat python3; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        sudo=()
        [ "$(id -u)" -ne 0 ] && sudo=(sudo)
        "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$package"
    fi
done
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build-release --target q4vantage-query q4vantage-sim q4vantage-bench
exec python3 bench/compare.py build-release/bin bench/RESULTS.md
