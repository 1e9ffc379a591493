#include "motor/lectores/CatalogoJet.h"

#include "basico/Texto.h"
#include "motor/lectores/FilasJet.h"
#include "motor/lectores/ValoresJet.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace varo {
namespace {

constexpr std::uint32_t paginaDelCatalogo = 2;

// Kinds of objects.
constexpr double tablaPropia = 1;
constexpr double tablaDeOtroServidor = 4;
constexpr double tablaDeOtroArchivo = 6;

constexpr std::uint32_t banderasDeSistema = 0x80000002;
constexpr std::uint32_t mascaraDePagina = 0x00FFFFFF;

class LectorDeCatalogo {
public:
    LectorDeCatalogo(const ArchivoJet& archivo, LimitesDeLectura& limites)
        : archivo_{archivo}, limites_{limites},
          definicion_{LeerDefinicion(archivo, paginaDelCatalogo)}, valores_{archivo, limites} {}

    std::vector<TablaDeCatalogo> leer() {
        const auto& id = columna("Id", TipoJet::EnteroLargo);
        const auto& nombre = columna("Name", TipoJet::Texto);
        const auto& clase = columna("Type", TipoJet::Entero);
        const auto& banderas = columna("Flags", TipoJet::EnteroLargo);
        EnCadaFilaJet(archivo_, definicion_, {}, [&](const FilaJet& fila) {
            limites_.contarCeldas(1);
            anadir(valores_.leer(fila, id), valores_.leer(fila, nombre), numero(valores_.leer(fila, clase)),
                   bits(valores_.leer(fila, banderas)));
        });
        return std::move(tablas_);
    }

private:
    [[nodiscard]] const ColumnaJet& columna(std::string_view nombre, TipoJet tipo) const {
        const auto hallada = std::ranges::find(definicion_.columnas, nombre, &ColumnaJet::nombre);
        if (hallada == definicion_.columnas.end() || hallada->tipo != tipo) {
            ArchivoDanado("no tiene la lista de sus tablas");
        }
        return *hallada;
    }

    void anadir(const Valor& id, const Valor& nombre, double clase, std::uint32_t banderas) {
        const bool vinculada = clase == tablaDeOtroServidor || clase == tablaDeOtroArchivo;
        if (clase != tablaPropia && !vinculada) {
            return;
        }
        const auto* texto = std::get_if<std::string>(&nombre);
        if (texto == nullptr || texto->empty()) {
            ArchivoDanado("una tabla no tiene nombre");
        }
        if ((banderas & banderasDeSistema) != 0 || MismoNombre(Izquierda(*texto, 4), "MSys")) {
            return;
        }
        const auto pagina = bits(id) & mascaraDePagina;
        if (!vinculada && !paginas_.insert(pagina).second) {
            ArchivoDanado("dos tablas son la misma");
        }
        limites_.contarTablas(1);
        tablas_.push_back({*texto, pagina, vinculada});
    }

    static double numero(const Valor& valor) { return EsNulo(valor) ? 0 : ANumero(valor); }

    static std::uint32_t bits(const Valor& entero) {
        return static_cast<std::uint32_t>(static_cast<std::int32_t>(numero(entero)));
    }

    const ArchivoJet& archivo_;
    LimitesDeLectura& limites_;
    DefinicionJet definicion_;
    ValoresJet valores_;
    std::vector<TablaDeCatalogo> tablas_;
    std::set<std::uint32_t> paginas_; // of the definitions seen: no table is read twice
};

} // namespace

std::vector<TablaDeCatalogo> LeerCatalogo(const ArchivoJet& archivo, LimitesDeLectura& limites) {
    return LectorDeCatalogo{archivo, limites}.leer();
}

} // namespace varo
