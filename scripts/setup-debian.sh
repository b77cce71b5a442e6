#!/usr/bin/env bash
# Installs the Debian 12 packages needed to build, run and test the program.
# Idempotent and quick when everything is already there; uses sudo when not
# run as root.
set -euo pipefail

packages=(
    build-essential cmake ninja-build
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    qtkeychain-qt6-dev
    pkg-config libloc-dev libloc-database famfamfam-flag-png
    libzip-dev libicu-dev
    libssl3
    xvfb xauth
    iproute2 util-linux
    clang libclang-rt-14-dev
    desktop-file-utils appstream dpkg-dev lintian
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo=()
if [ "$(id -u)" -ne 0 ]; then
    sudo=(sudo)
fi
"${sudo[@]}" apt-get update -q
"${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}"
