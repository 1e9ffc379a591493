#!/usr/bin/env bash
# Builds VARO on a fresh Debian 12 and runs the example plot through it, without a display and without questions.
set -euo pipefail
cd "$(dirname "$0")"

herramientas/instalar.sh construir
herramientas/preset.sh release --target varo-lote varo

salida=build/ejemplo
mkdir -p "$salida"
informe=$(build/release/src/varo-lote ejemplos/trabajo.toml --salida "$salida")
superficie=$(sed -n 's/^.*superficie de la parcela: \([0-9,]* m2\).*$/\1/p' <<<"$informe")
: "${superficie:?varo-lote no dijo la superficie de la parcela}"

# The header of the results file ends with CR LF, its rows with CR alone. Stems and basal area per hectare are those
# of the plot, the same in every row.
resultados=$salida/indices.txt
tr '\r' '\n' <"$resultados" | LC_ALL=C awk -F '\t' -v superficie="$superficie" '
    NF == 0 { next }
    !columnas { columnas = NF; for (c = 1; c <= NF; c++) columna[$c] = c; next }
    { arboles++; pies = $columna["Pies/ha"]; area = $columna["ABha"] }
    END {
        print "\nParcela de ejemplo (ejemplos/parcela.xls)"
        print "  árboles:              " arboles
        print "  superficie:           " superficie
        print "  pies por hectárea:    " pies
        print "  área basimétrica:     " area " m2/ha"
        print "  columnas escritas:    " columnas ", " columnas - 2 " de ellas índices"
    }'
# The figures of the crowns come from the plot data: a name, a tab and the text of a label a line.
for cifra in LbAreaCopas LbAreaCopasInterior LbAreaIntersecCopas LbFcc; do
    sed -n "s/^$cifra\t/  /p" "$salida/datos.txt"
done
printf '  resultados:           %s\n  datos de parcela:     %s\n  mapa:                 %s\n  trabajo:              %s\n' \
    "$PWD/$resultados" "$PWD/$salida/datos.txt" "$PWD/$salida/mapa.svg" "$PWD/ejemplos/trabajo.toml"
printf '\nLa aplicación de escritorio se abre con:  %s\n' "$PWD/build/release/src/varo"
echo '  (menú Archivo, Abrir: ejemplos/parcela.xls es la parcela de ejemplo)'
