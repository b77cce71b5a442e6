#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
exec build/bin/q4vantage "$@"
