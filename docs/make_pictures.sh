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

# picture NAME OPTION... takes a picture of the robot in the graph view.
picture() {
    local name=$1
    shift
    "$program" "$models/robot.gltf" --size 760x560 "$@" --screenshot "$images/$name.png"
}
repeated() {
    for ((i = 0; i < $1; ++i)); do printf -- '--action\n%s\n' "$2"; done
}

"$program" "$models/robot.gltf" "$models/crane.gltf" --size 1000x700 \
    --select Neck --select LeftEye --screenshot "$images/robot.png"
"$program" "$models/crane.gltf" --extended --size 760x560 --screenshot "$images/extended.png"
picture selected --select Torso --select Head
picture hidden --select Torso --select Head --action onActionHideNodes
picture others-hidden --select Head --action onActionHideAllOtherNodes
picture collapsed --select Torso --action onActionCollapseAllNodes
for corner in 0 1 2 3; do
    picture "navigator-$corner" --action "onActionMoveWorld($corner)"
done
picture navigator-hidden --action onActionShowHideWorldView
mapfile -t steps < <(repeated 22 onActionZoomOut)
picture smallest-text "${steps[@]}" --action onActionResetPan
mapfile -t steps < <(repeated 24 onActionZoomOut)
picture without-text "${steps[@]}" --action onActionResetPan
for theme in light dark; do
    picture "tree-$theme" --size 900x640 --theme "$theme" --select Torso --select LeftHand \
        --action onActionHideNodes --action onActionFrameSelected
done
picture framed --select LeftHand --action onActionFrameSelected
