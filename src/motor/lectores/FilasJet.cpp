#include "motor/lectores/FilasJet.h"

#include "motor/lectores/MapaDePaginasJet.h"
#include "motor/lectores/PaginaDeDatosJet.h"

namespace varo {
namespace {

void ComprobarDuena(const PaginaDeDatosJet& pagina, std::uint32_t numero, const DefinicionJet& definicion) {
    if (pagina.duena() != definicion.pagina) {
        ArchivoDanado(PaginaDicha(numero) + " es de otra tabla");
    }
}

Bytes FilaTrasladada(const ArchivoJet& archivo, const DefinicionJet& definicion, Bytes senal) {
    const auto sitio = LeerSitioDeFila(senal, 0);
    const PaginaDeDatosJet pagina{archivo, sitio.pagina};
    ComprobarDuena(pagina, sitio.pagina, definicion);
    const auto fila = pagina.fila(sitio.fila);
    if (fila.estado != EstadoDeFila::Acogida) {
        ArchivoDanado("una fila no está donde debía");
    }
    return fila.bytes;
}

} // namespace

void EnCadaFilaJet(const ArchivoJet& archivo, const DefinicionJet& definicion, const Avance& avance,
                   const std::function<void(const FilaJet&)>& accion) {
    for (const auto numero : PaginasDelMapa(archivo, definicion.mapa)) {
        const PaginaDeDatosJet pagina{archivo, numero};
        ComprobarDuena(pagina, numero, definicion);
        for (std::size_t i = 0; i < pagina.filas(); ++i) {
            const auto fila = pagina.fila(i);
            if (fila.estado == EstadoDeFila::Presente) {
                accion(FilaJet{fila.bytes, definicion, archivo.esJet3()});
            } else if (fila.estado == EstadoDeFila::Trasladada) {
                const auto bytes = FilaTrasladada(archivo, definicion, fila.bytes);
                accion(FilaJet{bytes, definicion, archivo.esJet3()});
            }
        }
        avance.paso(archivo.tamanoDePagina());
    }
}

} // namespace varo
