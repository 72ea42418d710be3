#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check_completion.sh PREFIX WORK_DIR: completes command lines as bash does, in a folder of files.
set -uo pipefail
prefix=$1 work=$2
program=$prefix/bin/subnode-workbench
# shellcheck source=/dev/null
source "$prefix/share/bash-completion/completions/subnode-workbench"

rm -rf "$work"
mkdir -p "$work/some folder"
cd "$work" || exit 1
touch robot.gltf 'old robot.GLB' scene.subnodes picture.png notes.txt

failures=0
# expect 'a|b|c' WORD...: completing the last of the words offers exactly these.
expect() {
    local wanted=$1 offered
    COMP_WORDS=(subnode-workbench "${@:2}")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _subnode_workbench "$program" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    offered=$(printf '%s\n' ${COMPREPLY[@]+"${COMPREPLY[@]}"} | LC_ALL=C sort | paste -sd '|')
    if [[ $offered != "$wanted" ]]; then
        echo "Completing '${*:2}' offers '$offered', not '$wanted'"
        failures=1
    fi
}

expect '--save|--screenshot|--select|--size' --s
expect '--theme' --th
expect 'json|text' --dump ''
expect 'dark' --theme d
expect 'dark' --theme = d
expect 'dark|light|system' --theme =
expect 'onActionHideAllOtherNodes' --action onActionHideA
expect '' --frame ''
expect 'picture.png|some folder' --screenshot ''
expect 'scene.subnodes|some folder' --save ''
expect 'old robot.GLB|robot.gltf|scene.subnodes|some folder' ''
expect 'robot.gltf' --extended robot
exit $failures
