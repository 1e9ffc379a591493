#include "apoyo/EscritorMdb.h"

#include "apoyo/ArchivoDePrueba.h"
#include "apoyo/BytesDePrueba.h"
#include "apoyo/Utf16DePrueba.h"
#include "basico/Texto.h"

#include <algorithm>
#include <stdexcept>

namespace varo::prueba {
namespace {

using Contenido = PaginasMdb::Contenido;

constexpr std::uint32_t paginaDelCatalogo = 2;
constexpr std::uint32_t paginasEnUnaFila = 500; // of a map that is a row of bits

void AnadirCeros(Contenido& bytes, std::size_t cuantos) {
    bytes.resize(bytes.size() + cuantos);
}

void AnadirBytes(Contenido& bytes, const Contenido& otros) {
    bytes.insert(bytes.end(), otros.begin(), otros.end());
}

/// The columns of the catalogue that a reader needs.
const std::vector<CampoMdb> camposDelCatalogo{
    {"Id", TipoMdb::EnteroLargo}, {"ParentId", TipoMdb::EnteroLargo}, {"Name", TipoMdb::Texto},
    {"Type", TipoMdb::Entero},    {"Flags", TipoMdb::EnteroLargo},    {"LvProp", TipoMdb::Ole}};

class Escritor {
public:
    explicit Escritor(const BaseMdb& base) : base_{base}, paginas_{base.version} {
        paginas_.clave = base.clave;
        for (const char letra : base.contrasena) {
            AnadirEntero(paginas_.contrasena, static_cast<unsigned char>(letra), paginas_.jet3() ? 1 : 2);
        }
    }

    Contenido escribir() {
        if (paginas_.nueva(2) != paginaDelCatalogo) {
            throw std::logic_error{"el catálogo no está en su página"};
        }
        TablaMdb catalogo{"MSysObjects", camposDelCatalogo, {}};
        catalogo.deSistema = true;
        catalogo.filas.push_back(entradaDe(catalogo, paginaDelCatalogo));
        for (const auto& tabla : base_.tablas) {
            const auto pagina = tabla.vinculada ? 0 : paginas_.nueva(2);
            catalogo.filas.push_back(entradaDe(tabla, pagina));
            if (!tabla.vinculada) {
                escribirTabla(tabla, pagina);
            }
        }
        escribirTabla(catalogo, paginaDelCatalogo);
        return paginas_.cerrar();
    }

private:
    static std::vector<Valor> entradaDe(const TablaMdb& tabla, std::uint32_t pagina) {
        return {static_cast<double>(pagina),           0.0,   tabla.nombre, tabla.vinculada ? 6.0 : 1.0,
                tabla.deSistema ? -2147483648.0 : 0.0, Nulo{}};
    }

    void escribirTabla(const TablaMdb& tabla, std::uint32_t pagina) {
        const auto deFilas = escribirFilas(tabla, pagina);
        const auto mapas = paginas_.nuevaDeFilas(pagina);
        const bool caben = deFilas.empty() || deFilas.back() - deFilas.front() < paginasEnUnaFila;
        const auto usadas = paginas_.anadirFila(mapas, paginas_.mapa(deFilas, tabla.mapaEnPaginas || !caben));
        const auto libres = paginas_.anadirFila(mapas, paginas_.mapa({}, false));
        escribirDefinicion(pagina, definicion(tabla, usadas, libres));
    }

    std::vector<std::uint32_t> escribirFilas(const TablaMdb& tabla, std::uint32_t definicion) {
        std::vector<std::uint32_t> usadas;
        std::size_t enEsta = tabla.filasPorPagina;
        for (std::size_t i = 0; i < tabla.filas.size(); ++i) {
            const bool todos = i >= tabla.conUltimoCampoDesde;
            const auto fila =
                FilaMdb(paginas_, tabla.campos, tabla.filas[i], tabla.campos.size() - (todos ? 0 : 1));
            if (enEsta == tabla.filasPorPagina || !paginas_.cabe(usadas.back(), fila.size())) {
                usadas.push_back(paginas_.nuevaDeFilas(definicion));
                enEsta = 0;
            }
            ++enEsta;
            if (tabla.trasladadas.contains(i)) {
                const auto otra = paginas_.nuevaDeFilas(definicion);
                Contenido enlace;
                AnadirU32(enlace, EnlaceMdb(paginas_.anadirFila(otra, fila, MarcaDeFila::Acogida)));
                paginas_.anadirFila(usadas.back(), enlace, MarcaDeFila::Trasladada);
                trasladadas_.push_back(otra);
            } else {
                const bool borrada = tabla.borradas.contains(i);
                paginas_.anadirFila(usadas.back(), fila,
                                    borrada ? MarcaDeFila::Borrada : MarcaDeFila::Ninguna);
            }
        }
        anadirTrasladadas(usadas);
        return usadas;
    }

    /// The pages that hold outgrown rows belong to the table too.
    void anadirTrasladadas(std::vector<std::uint32_t>& usadas) {
        usadas.insert(usadas.end(), trasladadas_.begin(), trasladadas_.end());
        trasladadas_.clear();
        std::ranges::sort(usadas);
    }

    [[nodiscard]] Contenido definicion(const TablaMdb& tabla, SitioMdb usadas, SitioMdb libres) const {
        const auto variables = static_cast<std::size_t>(
            std::ranges::count_if(tabla.campos, [](const CampoMdb& campo) { return !EsFijo(campo.tipo); }));
        const auto columnas =
            tabla.campos.empty() ? 0 : NumeroDeCampo(tabla.campos, tabla.campos.size() - 1) + 1;
        const bool jet3 = paginas_.jet3();
        Contenido bytes;
        AnadirU32(bytes, 0); // its length, which is not known yet
        AnadirCeros(bytes, jet3 ? 0 : 4);
        AnadirU32(bytes, tabla.filasQueDice >= 0 ? static_cast<std::size_t>(tabla.filasQueDice)
                                                 : tabla.filas.size() - tabla.borradas.size());
        AnadirCeros(bytes, jet3 ? 4 : 20);
        AnadirU8(bytes, tabla.deSistema ? 'S' : 'N');
        AnadirU16(bytes, columnas);
        AnadirU16(bytes, variables);
        AnadirU16(bytes, tabla.campos.size());
        AnadirCeros(bytes, 8); // no indices
        AnadirU32(bytes, EnlaceMdb(usadas));
        AnadirU32(bytes, EnlaceMdb(libres));
        anadirColumnas(bytes, tabla.campos);
        for (const auto& campo : tabla.campos) {
            const auto nombre = nombreEscrito(campo.nombre);
            AnadirEntero(bytes, nombre.size(), jet3 ? 1 : 2);
            AnadirBytes(bytes, nombre);
        }
        AnadirU16(bytes, 0xFFFF); // no maps of columns
        return bytes;
    }

    /// What the entry of a column says, one after the other; Jet 3 says less.
    void anadirColumnas(Contenido& bytes, const std::vector<CampoMdb>& campos) const {
        std::size_t fijo = 0;
        std::size_t variable = 0;
        for (std::size_t i = 0; i < campos.size(); ++i) {
            const auto& campo = campos[i];
            const auto numero = NumeroDeCampo(campos, i);
            const auto orden = campo.orden < 0 ? numero : static_cast<std::size_t>(campo.orden);
            AnadirU8(bytes, campo.tipo);
            AnadirCeros(bytes, paginas_.jet3() ? 0 : 4);
            AnadirU16(bytes, numero);
            AnadirU16(bytes, EsFijo(campo.tipo) ? 0 : variable++);
            AnadirU16(bytes, orden);
            anadirClase(bytes, campo);
            AnadirU16(bytes, EsFijo(campo.tipo) ? fijo : 0);
            AnadirU16(bytes, longitudDe(campo));
            fijo += TamanoFijo(campo.tipo);
        }
    }

    /// Letters or decimals, flags, and what has no meaning.
    void anadirClase(Contenido& bytes, const CampoMdb& campo) const {
        const int banderas = EsFijo(campo.tipo) ? 3 : 2;
        if (paginas_.jet3()) {
            AnadirCeros(bytes, 6);
            AnadirU8(bytes, banderas);
            return;
        }
        const bool decimal = campo.tipo == TipoMdb::Decimal;
        AnadirU8(bytes, decimal ? 18 : 9);
        AnadirU8(bytes, decimal ? campo.decimales : 4);
        AnadirCeros(bytes, 2);
        AnadirU8(bytes, banderas);
        AnadirU8(bytes, campo.calculado ? 0xC0 : 0);
        AnadirCeros(bytes, 4);
    }

    static std::size_t longitudDe(const CampoMdb& campo) {
        switch (campo.tipo) {
        case TipoMdb::Texto:
        case TipoMdb::Binario:
            return 510;
        case TipoMdb::Decimal:
            return 17;
        case TipoMdb::Booleano:
            return 1;
        default:
            return TamanoFijo(campo.tipo);
        }
    }

    [[nodiscard]] Contenido nombreEscrito(const std::string& nombre) const {
        if (paginas_.jet3()) {
            return TextoMdb(nombre, true);
        }
        Contenido bytes;
        for (const auto unidad : AUtf16(nombre)) {
            AnadirU16(bytes, unidad);
        }
        return bytes;
    }

    /// Each page of a definition has eight bytes in front: what it is, and the next one.
    void escribirDefinicion(std::uint32_t pagina, Contenido bytes) {
        Contenido longitud;
        AnadirU32(longitud, bytes.size() + 8);
        std::ranges::copy(longitud, bytes.begin());
        const std::size_t porPagina = paginas_.tamano() - 8;
        for (std::size_t lugar = 0;;) {
            const auto cuantos = std::min(porPagina, bytes.size() - lugar);
            std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(lugar), cuantos,
                        paginas_[pagina].begin() + 8);
            lugar += cuantos;
            if (lugar == bytes.size()) {
                return;
            }
            const auto siguiente = paginas_.nueva(2);
            Contenido enlace;
            AnadirU32(enlace, siguiente);
            std::ranges::copy(enlace, paginas_[pagina].begin() + 4);
            pagina = siguiente;
        }
    }

    const BaseMdb& base_;
    PaginasMdb paginas_;
    std::vector<std::uint32_t> trasladadas_;
};

} // namespace

TablaMdb EnTablaMdb(const Tabla& tabla) {
    TablaMdb copia{tabla.Name, {}, {}};
    for (const auto& campo : tabla.Fields) {
        copia.campos.push_back({campo.Name, TipoMdb::Doble});
    }
    std::vector<bool> conNumeros(copia.campos.size());
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        auto& valores = copia.filas.emplace_back(copia.campos.size());
        for (std::size_t i = 0; i < tabla.filas[fila].celdas(); ++i) {
            const auto celda = tabla.filas[fila].celda(i);
            const auto columna = celda.columna;
            const Valor valor = celda.valor;
            const bool texto = std::holds_alternative<std::string>(valor);
            if (!texto && !std::holds_alternative<double>(valor)) {
                throw std::invalid_argument{"solo números y textos"};
            }
            valores[columna] = valor;
            copia.campos[columna].tipo = texto ? TipoMdb::Texto : copia.campos[columna].tipo;
            conNumeros[columna] = conNumeros[columna] || !texto;
        }
    }
    for (std::size_t i = 0; i < copia.campos.size(); ++i) {
        if (conNumeros[i] && copia.campos[i].tipo == TipoMdb::Texto) {
            throw std::invalid_argument{"«" + copia.campos[i].nombre + "» tiene números y textos"};
        }
    }
    return copia;
}

std::vector<std::byte> EscribirMdb(const BaseMdb& base) {
    return Escritor{base}.escribir();
}

void EscribirArchivoMdb(const std::filesystem::path& archivo, const BaseMdb& base) {
    EscribirBytes(archivo, EscribirMdb(base));
}

} // namespace varo::prueba
