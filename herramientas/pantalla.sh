#!/usr/bin/env bash
# Runs a program at a virtual screen with a window manager: herramientas/pantalla.sh PROGRAM [arguments]
set -euo pipefail

if [[ ${1:-} != --dentro ]]; then
    exec xvfb-run --auto-servernum --server-args="-screen 0 ${VARO_PANTALLA:-1400x1000}x24 -nolisten tcp" \
        "$0" --dentro "$@"
fi

shift
openbox --sm-disable &
gestor=$!
trap 'kill "$gestor"' EXIT
until xdotool get_num_desktops >/dev/null 2>&1; do # the manager has not taken the screen over yet
    kill -0 "$gestor"
    sleep 0.05
done
"$@"
