#!/usr/bin/env bash
# clang-tidy over the sources that the tidy preset knows, those of src and tests, or over the ones named.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset tidy >/dev/null
fuentes=("$@")
if ! (($#)); then # what the build makes is nobody's to mend
    mapfile -t fuentes < <(sed -n 's/^ *"file": "\(.*\)",\?$/\1/p' build/tidy/compile_commands.json | grep -v "^$PWD/build/")
fi

printf '%s\0' "${fuentes[@]}" |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 -p build/tidy --quiet 2> >(grep -v 'warnings\? generated' >&2)
