#include "indices/CorridaIndices.h"

#include "basico/Avance.h"
#include "indices/FasesDeVecindad.h"
#include "indices/FasesIndependientes.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "map/FrmMapa.h"
#include "shell/Programa.h"

namespace varo {

void CorrerIndices(Programa& programa) {
    const ResultadosIndices anteriores = programa.resultados;
    const auto dejarlosDeAntes = [&] {
        programa.resultados = anteriores;
        programa.tocar<FrmMapa>().MousePointer = Formulario::punteroNormal;
    };
    AlCancelar(dejarlosDeAntes, [&] {
        CorrerFasesIndependientes(programa);
        CorrerFasesDeVecindad(programa);
    });
    programa.tocar<FrmCrearArchivo>().Show();
}

} // namespace varo
