#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# try-deb.sh PACKAGE.deb...: installs the packages into a fresh, minimal Debian in a folder of its
# own, uses them there without a display, purges them, and compares the files before and after. With
# the development package among them it also builds the minimal host there.
#
# Needs root and debootstrap. DEBIAN_MIRROR names the mirror; without it the first one of this
# machine is taken. A picture of the workbench is left beside the first package, as try-deb.png.
set -euo pipefail

fail() {
    echo "try-deb: $*" >&2
    exit 1
}

(($#)) || fail "which packages?"
# shellcheck disable=SC2016 # The format is for apt, not for the shell.
mirror=${DEBIAN_MIRROR:-$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' \
    | head -n 1)}
# shellcheck source=/dev/null
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
root=$(mktemp -d /var/tmp/try-deb.XXXXXX)
system=$root
log=$(mktemp)
# Programs give up their rights there, and still have to get in.
chmod 755 "$root"
trap 'umount "$root/proc" 2>/dev/null || true; rm -rf --one-file-system "$root" "$log"' EXIT

step() { echo "== $*"; }
# What a command says matters only when it fails.
quietly() {
    "$@" >"$log" 2>&1 || { tail -n 20 "$log" && fail "$* does not work here"; }
}
inside() {
    chroot "$system" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp/home LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}
# Files with mode and size; what changes with every installation of anything is left out.
files_inside() {
    inside find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /run -o -path /tmp \
        -o -path /packages -o -path /var/cache -o -path /var/log -o -path /var/lib/apt \
        -o -path /var/lib/dpkg \) -prune -o -type d -printf '%p/\n' -o -printf '%p %m %s\n' | sort
}

step "A minimal Debian"
quietly debootstrap --variant=minbase "$suite" "$root" "$mirror"
mount -t proc proc "$root/proc" 2>/dev/null || true
mkdir -p "$root/tmp/home" "$root/packages"
cp -- "$@" "$root/packages/"
mapfile -t packages < <(inside sh -c 'ls /packages/*.deb')
mapfile -t names < <(for package in "$@"; do dpkg-deb -f "$package" Package; done)

step "What they depend on, and what a desktop has"
quietly inside apt-get update
mapfile -t dependencies < <(inside apt-get install -s --no-install-recommends "${packages[@]}" \
    | awk '/^Inst/ { print $2 }' | grep -vxF -f <(printf '%s\n' "${names[@]}"))
quietly inside apt-get install -y --no-install-recommends "${dependencies[@]}" \
    bash-completion man-db shared-mime-info
files_inside >"$root/tmp/before"

step "Installing ${names[*]}"
quietly inside apt-get install -y --no-install-recommends "${packages[@]}"
inside subnode-workbench --version
models=/usr/share/doc/subnode-workbench/examples
inside subnode-workbench --no-settings --dump text "$models/robot.gltf" | sed -n 1,3p
inside subnode-workbench --no-settings --select Head --screenshot /tmp/picture.png \
    "$models/robot.gltf"
cp "$root/tmp/picture.png" "$(dirname "$1")/try-deb.png"
inside man -w subnode-workbench
inside bash -c 'source /usr/share/bash-completion/bash_completion
    _completion_loader subnode-workbench; complete -p subnode-workbench'
inside grep -F '*.subnodes' /usr/share/mime/globs2

if [[ " ${names[*]} " == *" libsubnodeviews-dev "* ]]; then
    step "Building the minimal host"
    # Compilers are no part of the comparison, so a copy of the system gets them.
    copy=$root/packages/copy
    mkdir "$copy"
    tar -C "$root" --one-file-system --exclude=./packages --exclude=./proc -cf - . \
        | tar -C "$copy" -xf -
    system=$copy
    quietly inside apt-get install -y --no-install-recommends cmake g++ make
    inside cmake -S /usr/share/doc/libsubnodeviews-dev/examples/minimal-host -B /tmp/build \
        -DCMAKE_BUILD_TYPE=Debug >/dev/null
    inside cmake --build /tmp/build | tail -n 1
    inside env QT_QPA_PLATFORM=offscreen /tmp/build/minimal-host --screenshot /tmp/host.png \
        2>/dev/null
    [[ -s $copy/tmp/host.png ]] || fail "the minimal host takes no picture"
    system=$root
fi

step "Purging them"
quietly inside apt-get purge -y "${names[@]}"
files_inside >"$root/tmp/after"
diff "$root/tmp/before" "$root/tmp/after" || fail "something was left behind, or taken away"
step "No trace is left"
