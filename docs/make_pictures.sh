#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of the documents anew, so that they show what the program really draws:
#   docs/make_pictures.sh            with the release build
#   BUILD=build/dev docs/make_pictures.sh
#   IMAGES=FOLDER docs/make_pictures.sh      into another folder, which is made if need be
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program="$root/${BUILD:-build/release}/bin/subnode-workbench"
images=${IMAGES:-$root/docs/images}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# The display and the settings of whoever runs this do not show in a picture.
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
unset QT_SCALE_FACTOR

mkdir -p "$images"
images=$(cd "$images" && pwd)
cp "$root"/models/*.gltf "$folder"
cd "$folder"

# picture NAME FILE... [OPTION...]
picture() {
    local name=$1
    shift
    "$program" --no-settings --size 1100x760 "$@" --screenshot "$images/$name.png"
}

picture window robot.gltf crane.gltf --select Neck --select LeftEye
picture hidden robot.gltf --select LeftUpperArm --action onActionHideNodes \
    --action onActionFrameSelected
picture isolated robot.gltf --select Head --action onActionIsolate --action onActionFrameSelected
picture every-node crane.gltf --extended
picture filter robot.gltf --filter hand --select LeftHand \
    --action onActionFrameSelected
picture dark robot.gltf --theme dark --select Torso

# Two models that take turns, and a third drawing that is not shown all the time.
cat >turns.subnodes <<'SCENE'
{
    "format": "subnode-scene",
    "version": 2,
    "name": "Turns",
    "frame": 6,
    "models": [{ "path": "robot.gltf" }, { "path": "crane.gltf" }],
    "nodes": [
        {
            "id": 1, "kind": "ELEMENT", "name": "Performer",
            "exposures": [
                { "first": 1, "last": 24, "model": 0 },
                { "first": 25, "last": 48, "model": 1 },
                { "first": 61, "last": 90, "model": 0 }
            ]
        },
        {
            "id": 2, "kind": "ELEMENT", "name": "Bystander",
            "exposures": [{ "first": 13, "last": 60, "model": 0 }]
        }
    ],
    "links": [],
    "selection": [{ "node": 1, "subnodes": [] }]
}
SCENE
picture time-line turns.subnodes
