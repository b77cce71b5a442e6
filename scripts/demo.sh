#!/usr/bin/env bash
# Installs what is missing, builds, then starts a simulated master server
# with a few hundred game servers on 127.0.0.1 and the program pointed at
# it. Your own settings are not touched; the simulator stops when the
# program ends.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh

demo_home=$(mktemp -d)
cleanup() {
    [ -n "${sim_pid:-}" ] && kill "$sim_pid" 2>/dev/null || true
    rm -rf "$demo_home"
}
trap cleanup EXIT

mkdir -p "$demo_home/Quake 4 Vantage"
printf '[Settings]\nMasterServer=127.0.0.1:27950\nServerListUrls=\nAutoUpdate=0\n' >"$demo_home/Quake 4 Vantage/Quake 4 Vantage.ini"

# Servers answer as patch 1.4.2 does, and the master splits its list as the
# community master does.
build/bin/q4vantage-sim --servers 300 --master-port 27950 --first-port 28000 \
    --silent 0.1 --delay 20 --jitter 60 --players 12 --churn 5 --master-split 198 &
sim_pid=$!

echo "Click \"Query Masters\" to query the simulated servers."
XDG_CONFIG_HOME="$demo_home" build/bin/q4vantage "$@"
