#!/usr/bin/env bash
# Installs what is missing, then configures and builds with the default preset.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-debian.sh
cmake --preset default
cmake --build --preset default
