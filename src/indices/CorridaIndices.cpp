#include "indices/CorridaIndices.h"

#include "indices/FasesDeVecindad.h"
#include "indices/FasesIndependientes.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "shell/Programa.h"

namespace varo {

void CorrerIndices(Programa& programa) {
    CorrerFasesIndependientes(programa);
    CorrerFasesDeVecindad(programa);
    programa.tocar<FrmCrearArchivo>().Show();
}

} // namespace varo
