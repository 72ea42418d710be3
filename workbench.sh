#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the workbench and opens it: ./workbench.sh [MODEL...] [options of subnode-workbench]
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$root/cmake/setup.sh"

subnode_setup "$root"
subnode_configure "$root" release
cmake --build "$root/build/release" --target subnode-workbench >&2

arguments=("$@")
((${#arguments[@]})) || arguments=("$root/models/robot.gltf")

# Without a display the window is rendered off screen, and the picture is what is left of it.
# Where the arguments already ask for output of their own, that is enough.
if [[ -z ${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-} ]]; then
    export QT_QPA_PLATFORM=offscreen
    if [[ ! " ${arguments[*]} " =~ \ --(screenshot|dump|save|quit|help|version|formats)[=\ ] ]]; then
        echo "No display: rendering the window off screen into workbench.png" >&2
        arguments+=(--screenshot workbench.png)
    fi
fi
exec "$root/build/release/bin/subnode-workbench" "${arguments[@]}"
