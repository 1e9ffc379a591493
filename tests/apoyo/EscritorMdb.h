// Writes minimal databases of Access, so that tests can hand any table to the program as a real `.mdb` file.
#pragma once

#include "apoyo/FilaMdb.h"
#include "basico/Valor.h"
#include "motor/Tabla.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace varo::prueba {

struct TablaMdb {
    std::string nombre;
    std::vector<CampoMdb> campos;
    std::vector<std::vector<Valor>> filas;
    std::set<std::size_t> borradas = {};    ///< rows that stand there and count no more
    std::set<std::size_t> trasladadas = {}; ///< rows that have outgrown their place and stand in another page
    /// Rows from here on have all columns; those before it were written without the last one.
    std::size_t conUltimoCampoDesde = 0;
    bool deSistema = false;
    bool vinculada = false;
    bool mapaEnPaginas = false;
    std::size_t filasPorPagina = 1000;
    int filasQueDice = -1; ///< what its definition says; the true count by default
};

struct BaseMdb {
    std::vector<TablaMdb> tablas;
    int version = 1; ///< 0 is Access 97, 1 Access 2000 to 2003, 2 and above later ones
    std::uint32_t clave = 0;
    std::string contrasena = {};
};

/// The table with a field of numbers or of texts for each column; a column that has both throws
/// std::invalid_argument.
TablaMdb EnTablaMdb(const Tabla& tabla);

/// Truth values go into columns of that type, where a null is false.
std::vector<std::byte> EscribirMdb(const BaseMdb& base);

/// Throws std::runtime_error when the file cannot be written.
void EscribirArchivoMdb(const std::filesystem::path& archivo, const BaseMdb& base);

} // namespace varo::prueba
