#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what packages.txt lists and this machine lacks. Sourced by the scripts at the top.

subnode_setup() {
    local root=$1 missing=()
    command -v dpkg-query >/dev/null 2>&1 || return 0
    local package
    while read -r package; do
        [[ -z $package || $package == \#* ]] && continue
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' \
            || missing+=("$package")
    done <"$root/packages.txt"
    ((${#missing[@]})) || return 0

    local as_root=()
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing and only root can install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}" >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 \
        && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# Configures the preset only where it was not yet, so that a second run starts at once; the build
# tool configures again by itself when a CMake file changed.
subnode_configure() {
    local root=$1 preset=$2
    [[ -f $root/build/$preset/build.ninja ]] || (cd "$root" && cmake --preset "$preset") >&2
}
