#include "lote/TrabajoDePrueba.h"

#include <fstream>

namespace varo::prueba {

ParcelaDePrueba::ParcelaDePrueba() : ParcelaDePrueba{CuadradoConCentro()} {}

ParcelaDePrueba::ParcelaDePrueba(const Filas& filas) {
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = filas;
    EscribirArchivoXls(ruta("parcela.xls"), {hoja});
}

std::filesystem::path ParcelaDePrueba::escribir(const std::string& nombre, const std::string& texto) const {
    auto archivo = ruta(nombre);
    std::filesystem::create_directories(archivo.parent_path());
    std::ofstream{archivo, std::ios::binary} << texto;
    return archivo;
}

FinDeTrabajo Correr(const ParcelaDePrueba& parcela, const TextoDeTrabajo& texto) {
    FinDeTrabajo fin;
    Seguimiento seguimiento;
    seguimiento.aviso = [&](const std::string& aviso) { fin.avisos.push_back(aviso); };
    seguimiento.etapa = [&](const std::string& etapa) { fin.etapas.push_back(etapa); };
    try {
        const Trabajo trabajo = InterpretarTrabajo(texto.texto(), parcela.ruta("trabajo.toml"));
        fin.informe = CorrerTrabajo(trabajo, seguimiento);
    } catch (const ErrorTrabajo& error) {
        fin.error = error.what();
        fin.estado = error.estado();
        fin.fallo = error.fallo();
    }
    return fin;
}

} // namespace varo::prueba
