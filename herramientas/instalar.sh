#!/usr/bin/env bash
# Installs what is missing of the Debian 12 packages for the purposes named: construir, medir, probar, revisar.
# Does nothing, and needs neither root nor a network, when all is there.
set -euo pipefail

declare -rA paquetes=(
    [construir]="g++ cmake ninja-build ccache libcli11-dev libtomlplusplus-dev libzip-dev libxml2-dev qt6-base-dev qt6-svg-dev qt6-translations-l10n fonts-dejavu-core fonts-liberation"
    [medir]="libbenchmark-dev"
    [probar]="libgtest-dev librapidcheck-dev binutils locales xvfb xauth xdotool openbox fonts-dejavu-extra mdbtools"
    [revisar]="clang libclang-rt-14-dev clang-format-14 clang-tidy-14 lld python3"
)

como_root() {
    if ((EUID == 0)); then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Para instalar lo que falta hay que ser root o tener sudo." >&2
        exit 1
    fi
}

instalado() {
    [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# The tests of the decimal comma run under it.
generar_es_ES() {
    if ! locale -a | grep -ix 'es_ES\.utf-\?8' >/dev/null; then
        como_root localedef -i es_ES -f UTF-8 es_ES.UTF-8
    fi
}

faltan=()
for proposito in "$@"; do
    for paquete in ${paquetes[$proposito]}; do
        instalado "$paquete" || faltan+=("$paquete")
    done
done
if ((${#faltan[@]})); then
    echo "Se instalan: ${faltan[*]}"
    como_root apt-get -qq update
    como_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "${faltan[@]}" \
        </dev/null
fi
[[ " $* " != *" probar "* ]] || generar_es_ES
