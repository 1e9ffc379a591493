#!/usr/bin/env bash
# Configures and builds a preset: herramientas/preset.sh PRESET [arguments of cmake --build]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$(nproc)" "$@"
