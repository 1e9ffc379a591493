#!/usr/bin/env bash
# Builds the fuzz targets with the sanitizers and feeds them for some minutes in all, on all cores. What they learn
# stays under build/fuzz/aprendido; what breaks them, and the log, under build/fuzz/hallazgos.
set -euo pipefail
cd "$(dirname "$0")"

mapfile -t todos < <(find fuzz -maxdepth 1 -name '*.cpp' -printf '%f\n' | sort | sed 's/\.cpp$//')

decir_el_uso() {
    cat >&2 <<USO
$1
Uso: ./fuzz.sh MINUTOS [OBJETIVO…]
  MINUTOS    lo que dura todo, sin contar la compilación; se reparte entre los objetivos
  OBJETIVO   uno o varios de estos; sin ninguno, todos:
$(printf '               %s\n' "${todos[@]}")
USO
    exit 2
}

(($#)) || decir_el_uso 'Falta cuántos minutos.'
[[ $1 =~ ^[1-9][0-9]{0,4}$ ]] || decir_el_uso "«$1» no es un número de minutos."
segundos=$(($1 * 60))
shift
for objetivo in "$@"; do
    [[ " ${todos[*]} " == *" $objetivo "* ]] || decir_el_uso "No hay ningún objetivo «$objetivo»."
done
objetivos=("$@")
(($#)) || objetivos=("${todos[@]}")

herramientas/instalar.sh construir revisar
herramientas/preset.sh fuzz --target "${objetivos[@]}"

hallazgos=build/fuzz/hallazgos/$(date +%Y-%m-%d_%H%M%S)
export LSAN_OPTIONS="suppressions=$PWD/herramientas/fugas.supp:print_suppressions=0"
export UBSAN_OPTIONS=print_stacktrace=1

# One input may take ten seconds and 2 GB. A target that breaks goes on with other inputs. The first folder is where
# it keeps what it learns; the others are read.
dar_de_comer() {
    local objetivo=$1 aprendido=build/fuzz/aprendido/$1
    local opciones=(-fork="$(nproc)" -max_total_time="$((segundos / ${#objetivos[@]}))" -timeout=10 -rss_limit_mb=2048
        -ignore_crashes=1 -ignore_ooms=1 -ignore_timeouts=1 -artifact_prefix="$hallazgos/$objetivo/")
    local carpetas=("$aprendido")
    mkdir -p "$aprendido" "$hallazgos/$objetivo"
    for carpeta in fuzz/corpus fuzz/regresiones; do
        [[ ! -d $carpeta/$objetivo ]] || carpetas+=("$carpeta/$objetivo")
    done
    [[ ! -f fuzz/diccionarios/$objetivo.dict ]] || opciones+=(-dict="fuzz/diccionarios/$objetivo.dict")
    "build/fuzz/fuzz/$objetivo" "${opciones[@]}" "${carpetas[@]}" >"$hallazgos/$objetivo.log" 2>&1
}

# The last line about the progress begins with the number of executions: "#12345: cov: 1071 ft: 3561 ...".
ejecuciones() {
    sed -n 's/^#\([0-9]*\): cov: .*/\1/p' "$hallazgos/$1.log" | tail -1
}

fallan=()
for objetivo in "${objetivos[@]}"; do
    echo "$objetivo: $((segundos / ${#objetivos[@]})) segundos en $(nproc) procesos"
    dar_de_comer "$objetivo" || fallan+=("$objetivo")
    hechas=$(ejecuciones "$objetivo")
    : "${hechas:=0}"
    ((hechas)) || fallan+=("$objetivo")
    echo "  ejecuciones: $hechas, hallazgos: $(find "$hallazgos/$objetivo" -type f | wc -l)"
done

mapfile -t hallados < <(find "$hallazgos" -mindepth 2 -type f | sort)
if ((${#hallados[@]})); then
    echo "Hay ${#hallados[@]} hallazgos. Cada uno se repite con  build/fuzz/fuzz/OBJETIVO ARCHIVO:"
    printf '  %s\n' "${hallados[@]}"
    exit 1
fi
if ((${#fallan[@]})); then
    mapfile -t fallan < <(printf '%s\n' "${fallan[@]}" | sort -u)
    echo "No han acabado bien: ${fallan[*]}. Lo que dijeron está en $hallazgos"
    exit 1
fi
echo 'Ningún hallazgo.'
