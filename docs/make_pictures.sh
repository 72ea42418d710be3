#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of the documents anew, so that they show what the program really draws.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program="$root/build/release/bin/subnode-workbench"
models="$root/models"
images="$root/docs/images"

# Neither the user's preferences nor their display may show in a picture.
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
export XDG_CONFIG_HOME="$settings" QT_QPA_PLATFORM=offscreen

cmake --build "$root/build/release" --target subnode-workbench
mkdir -p "$images"
"$program" "$models/robot.gltf" "$models/crane.gltf" --size 760x560 --select Neck --select LeftEye \
    --screenshot "$images/robot.png"
"$program" "$models/crane.gltf" --extended --size 760x560 --screenshot "$images/extended.png"
