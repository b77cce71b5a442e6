#!/usr/bin/env bash
# Builds the Debian package from a built tree, unpacks it into a throw-away
# root and checks it as a user's system would: the menu entry and the
# AppStream metadata validate, the manual pages read, the programs start
# (the browser offscreen, keeping its data with the user, not beside
# itself), and the package names its Qt dependencies.
#
#   scripts/test-package.sh [BUILD_FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

(cd "$build" && cpack -G DEB -B "$work/package" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; exit 1; }
deb=$(ls "$work"/package/q4vantage_*.deb)
root=$work/root
dpkg-deb -x "$deb" "$root"

depends=$(dpkg-deb -f "$deb" Depends)
echo "package: $(basename "$deb"), depends: $depends"
grep -q libqt6widgets6 <<<"$depends"
grep -q libqt6keychain1 <<<"$depends"
grep -q libloc1 <<<"$depends"
grep -q libzip4 <<<"$depends"
grep -q libicu72 <<<"$depends"
dpkg-deb -f "$deb" Recommends | grep -q libloc-database

desktop-file-validate "$root/usr/share/applications/q4vantage.desktop"
appstreamcli validate --no-net "$root/usr/share/metainfo/org.q4vantage.Q4Vantage.metainfo.xml" >/dev/null
for size in 16 32 48 256; do
    test -s "$root/usr/share/icons/hicolor/${size}x${size}/apps/q4vantage.png"
done
test -s "$root/usr/share/icons/hicolor/scalable/apps/q4vantage.svg"
for page in man1/q4vantage-query.1 man1/q4vantage-sim.1 man6/q4vantage.6; do
    zcat "$root/usr/share/man/$page.gz" | grep -q '^\.TH'
done
test -s "$root/usr/share/doc/q4vantage/copyright"
zcat "$root/usr/share/doc/q4vantage/changelog.gz" | grep -q '^q4vantage '

# Debian's own checker: no error and no warning.
if ! report=$(lintian --fail-on error,warning "$deb" 2>&1); then
    echo "lintian:"
    echo "$report"
    exit 1
fi

export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_DATA_HOME=$work/home/data
"$root/usr/bin/q4vantage" --version | grep -q "$(sed -n 's/^project(Q4Vantage VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)"
"$root/usr/bin/q4vantage-query" --help | grep -q -- --list-url
"$root/usr/bin/q4vantage-sim" --help | grep -q -- --servers

# The browser runs until it is closed: still running after a few seconds is
# a start. Its data folder is the user's, even though root could write bin/.
set +e
QT_QPA_PLATFORM=offscreen timeout 4 "$root/usr/bin/q4vantage" >"$work/run.log" 2>&1
status=$?
set -e
if [ "$status" -ne 124 ]; then
    echo "q4vantage ended with status $status:"
    cat "$work/run.log"
    exit 1
fi
test -d "$XDG_DATA_HOME/Quake 4 Vantage/Quake 4 Vantage"
if ls "$root/usr/bin" | grep -qv '^q4vantage'; then
    echo "the browser wrote beside itself: $(ls "$root/usr/bin")"
    exit 1
fi
echo "package checks passed"
