#include "libros/RegistrarLibros.h"

#include "libros/LectorDeLibros.h"
#include "motor/FormatosDeArchivo.h"

namespace varo {

void RegistrarLibros() {
    RegistrarFormato({".xlsx, .ods", PareceLibroComprimido, LeerLibroComprimido});
}

} // namespace varo
