#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds with the sanitizers and runs every test off screen: ./test.sh [options of ctest]
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$root/cmake/setup.sh"

subnode_setup "$root"
subnode_configure "$root" dev
cmake --build "$root/build/dev"
cd "$root"
ctest --preset dev "$@"
