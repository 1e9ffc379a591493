#!/usr/bin/env bash
# Fails when a static library calls the number formatting or reading of C or of the streams, which follow the
# locale and round their own way: printf and scanf families (std::to_string of a float is one of them), strtod,
# localeconv, setlocale, and << or >> of a floating point number.
set -euo pipefail

biblioteca=$1
prohibidos='v?(f|s|sn|as|d)?printf|(__isoc[0-9]+_)?v?(f|s)?scanf|strto(d|f|ld)(_l)?|ato[fil]|localeconv|setlocale'
prohibidos+='|_ZNSo(9_M_insertI[def]|lsE[def]).*|_ZNSi(10_M_extractI[def]|rsER[def]).*'

simbolos=$(nm --undefined-only --print-file-name "$biblioteca")
if hallados=$(grep -E " U ($prohibidos)(@.*)?\$" <<<"$simbolos"); then
    printf 'La biblioteca usa números ajenos a basico/Numeros.h:\n%s\n' "$hallados" >&2
    exit 1
fi
