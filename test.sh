#!/usr/bin/env bash
# Installs what the tests need, builds the dev preset and runs every test.
set -euo pipefail
cd "$(dirname "$0")"

herramientas/instalar.sh construir probar
herramientas/preset.sh dev
ctest --preset dev --parallel "$(nproc)"
