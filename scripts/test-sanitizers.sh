#!/usr/bin/env bash
# The whole test suite built with AddressSanitizer (leaks included) and
# UndefinedBehaviorSanitizer; the first report fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-debian.sh
cmake --preset sanitize >/dev/null
cmake --build --preset sanitize
ctest --preset sanitize
