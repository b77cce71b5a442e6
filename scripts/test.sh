#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. Exits non-zero when
# any test fails. The tests use Qt's offscreen platform: no display needed.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
export QT_QPA_PLATFORM=offscreen
ctest --preset default
