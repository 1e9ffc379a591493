#!/usr/bin/env bash
# clang-tidy over src and tests, or over the sources named.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset tidy >/dev/null
if (($#)); then fuentes=("$@"); else mapfile -t fuentes < <(find src tests -name '*.cpp' | sort); fi

printf '%s\0' "${fuentes[@]}" |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 -p build/tidy --quiet 2> >(grep -v 'warnings\? generated' >&2)
