#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tidy.sh CLANG_TIDY SOURCE_DIR BUILD_DIR: analyses the sources that the build knows of, on all
# cores. With TIDY_CHANGED=1, only those that were touched since the commit of a day ago, and, when
# a header was touched, those that include it by name.
set -euo pipefail
clang_tidy=$1 source_dir=$2 build_dir=$3
cd "$source_dir"

layers=(opensg host graphview subnodetree responder referencehost models workbench)
existing=()
for layer in "${layers[@]}"; do [[ -d $layer ]] && existing+=("$layer"); done
# In two steps, so that a failure ends the script.
found=$(git ls-files -- "${existing[@]/%//*.cpp}")
mapfile -t sources < <(sort <<<"$found")

if [[ ${TIDY_CHANGED:-0} == 1 ]]; then
    newest=$(git log -1 --format=%ct HEAD)
    base=$(git rev-list -1 --before="$((newest - 86400))" HEAD)
    if [[ -n $base ]]; then
        mapfile -t changed < <(git diff --name-only --diff-filter=d "$base" -- "${existing[@]}")
        picked=()
        for file in "${changed[@]}"; do
            case $file in
            *.cpp) picked+=("$file") ;;
            *.h) while IFS= read -r user; do picked+=("$user"); done \
                < <(grep -lF "$(basename "$file")\"" "${sources[@]}" || true) ;;
            esac
        done
        mapfile -t sources < <(printf '%s\n' "${picked[@]}" | sort -u | sed '/^$/d')
    fi
fi

if ((${#sources[@]} == 0)); then
    echo "tidy: nothing to look at"
    exit 0
fi
echo "tidy: ${#sources[@]} sources"
printf '%s\0' "${sources[@]}" \
    | xargs -0 -n 1 -P "$(nproc)" "$clang_tidy" -p "$build_dir" --quiet
