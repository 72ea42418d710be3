#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the .ts files up to date with the sources: new texts come in, without a translation yet,
# and texts that are gone go out.
#   translations/update.sh [FOLDER]     those of FOLDER; those beside this script unless it is given
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(dirname "$here")
out=$(cd "${1:-$here}" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

lupdate=$(command -v lupdate6 || command -v "$(qtpaths6 --query QT_INSTALL_BINS)/lupdate" \
    || command -v lupdate) || { echo "lupdate is not installed" >&2; exit 1; }

# The texts of actions, menus and tool bars stand in XML, which lupdate does not read.
actions_source() {
    echo '#include <QtGlobal>'
    echo 'const char* const texts[] = {'
    grep -o '[[:space:]]text="[^"]*"' "$root/workbench/resources/actions.xml" \
        | sed -e 's/^[^"]*"//' -e 's/"$//' -e 's/\\/\\\\/g' -e 's/&quot;/\\"/g' -e 's/&apos;/'\''/g' \
            -e 's/&lt;/</g' -e 's/&gt;/>/g' -e 's/&amp;/\&/g' \
            -e 's/.*/    QT_TRANSLATE_NOOP("Actions", "&"),/' \
        | awk '!seen[$0]++'
    echo '};'
}

# update NAME: takes the sources' names from standard input. Sorted, as the texts come in their
# order; without places in the sources, which change more often than the texts.
update() {
    LC_ALL=C sort >"$work/$1.files"
    "$lupdate" -silent -locations none -no-obsolete -I "$root" "@$work/$1.files" \
        -ts "$out/$1"_*.ts
}

sources() {
    (cd "$root" && find "$@" -name '*.cpp' -o -name '*.h') | sed "s|^|$root/|"
}

actions_source >"$work/actions.cpp"
sources graphview host opensg referencehost responder subnodetree | update subnodeviews
{ sources workbench; echo "$work/actions.cpp"; } | update workbench
