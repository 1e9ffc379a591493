#!/usr/bin/env bash
# Checks the format of all sources; with --arreglar, mends it.
set -euo pipefail
cd "$(dirname "$0")/.."

modo=(--dry-run --Werror)
if [[ ${1:-} == --arreglar ]]; then modo=(-i); fi

find src tests bench fuzz '(' -name '*.h' -o -name '*.cpp' ')' -print0 | xargs -0 -r clang-format-14 "${modo[@]}"
