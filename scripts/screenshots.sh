#!/usr/bin/env bash
# Pictures of every window in every language, taken on a virtual X display
# (Xvfb) with a simulated fleet listed: build/screenshots/<locale>/*.png.
#   scripts/screenshots.sh [--readme] [LANGUAGE_INDEX...]
# --readme also refreshes docs/screenshot.png (the English (UK) main window).
set -euo pipefail
cd "$(dirname "$0")/.."
readme=0
if [ "${1:-}" = "--readme" ]; then
    readme=1
    shift
fi
scripts/build.sh
out=build/screenshots
rm -rf "$out"
xvfb-run -a -s "-screen 0 1920x1080x24" build/bin/q4vantage-shots "$out" "$@"
if [ "$readme" = 1 ]; then
    if [ ! -f "$out/en_GB/main-servers.png" ]; then
        xvfb-run -a -s "-screen 0 1920x1080x24" build/bin/q4vantage-shots "$out" 0
    fi
    cp "$out/en_GB/main-servers.png" docs/screenshot.png
    echo "refreshed docs/screenshot.png"
fi
