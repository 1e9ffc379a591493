#include "motor/lectores/LibroBiff.h"

#include "basico/ErrorEjecucion.h"
#include "motor/lectores/FechasBiff.h"
#include "motor/lectores/RegistrosBiff.h"

#include <map>
#include <utility>

namespace varo {
namespace {

constexpr int hojaDeCalculo = 0;

class LectorDeLibro {
public:
    explicit LectorDeLibro(Bytes flujo)
        : globales_{flujo, 0}, biff8_{globales_.version() == biff::version8},
          libro_{CadenasBiff{biff8_}, false, {}, {}, {}, {}} {}

    LibroBiff leer() {
        if (globales_.clase() != biff::globales) {
            throw ErrorMotor{fallo::formatoNoReconocido, "no es un libro de Excel sino una hoja suelta"};
        }
        while (const auto registro = globales_.siguiente()) {
            atender(*registro);
        }
        for (const int formato : formatosDeCelda_) {
            libro_.formatoEsFecha.push_back(esFecha(formato));
        }
        libro_.nombres = nombres_.zonas(biff8_);
        return std::move(libro_);
    }

private:
    void atender(const Registro& registro) {
        switch (registro.tipo) {
        case biff::filePass:
            throw ErrorMotor{fallo::archivoCifrado, "el libro está protegido con una contraseña"};
        case biff::codePage:
            libro_.cadenas.ponerPagina(LeerU16(registro.datos, 0));
            break;
        case biff::dateMode:
            libro_.calendario1904 = LeerU16(registro.datos, 0) != 0;
            break;
        case biff::boundSheet:
            leerHoja(registro.datos);
            break;
        case biff::formato:
            leerFormato(registro.datos);
            break;
        case biff::xf:
            formatosDeCelda_.push_back(LeerU16(registro.datos, 2));
            break;
        case biff::sst:
            leerTextos(continuo(registro));
            break;
        case biff::supBook:
            nombres_.anadirLibroExterno(registro.datos);
            break;
        case biff::externSheet:
            if (biff8_) {
                nombres_.anadirReferencias(continuo(registro));
            }
            break;
        case biff::nombre:
            nombres_.anadirNombre(continuo(registro), libro_.cadenas);
            break;
        default:
            break;
        }
    }

    LectorContinuo continuo(const Registro& registro) {
        return LectorContinuo{globales_.conContinuaciones(registro)};
    }

    void leerHoja(Bytes datos) {
        if (libro_.hojas.size() == biff::cuantosPuedeHaber) {
            ArchivoDanado("tiene demasiadas hojas");
        }
        LectorContinuo nombre{{Trozo(datos, 6, datos.size() - 6)}};
        libro_.hojas.push_back(
            {libro_.cadenas.leerCorta(nombre), LeerU32(datos, 0), LeerU8(datos, 5) == hojaDeCalculo});
    }

    void leerFormato(Bytes datos) {
        const int numero = LeerU16(datos, 0);
        LectorContinuo texto{{datos.subspan(2)}};
        const auto formato = biff8_ ? libro_.cadenas.leerLarga(texto) : libro_.cadenas.leerCorta(texto);
        formatos_[numero] = EsFormatoDeFecha(formato);
    }

    void leerTextos(LectorContinuo tabla) {
        tabla.saltar(4);
        const std::size_t cuantos = tabla.u32();
        while (libro_.textos.size() < cuantos) {
            libro_.textos.anadir(libro_.cadenas.leerLarga(tabla));
        }
    }

    /// A format that the workbook spells out is what its text says, a built-in number too. Number 0 is always
    /// the general format, whatever its name in the language of the workbook.
    [[nodiscard]] bool esFecha(int formato) const {
        const auto propio = formatos_.find(formato);
        return formato != 0 && (propio != formatos_.end() ? propio->second : EsFormatoDeFecha(formato));
    }

    Subflujo globales_;
    bool biff8_;
    LibroBiff libro_;
    NombresBiff nombres_;
    std::vector<int> formatosDeCelda_;
    std::map<int, bool> formatos_;
};

} // namespace

LibroBiff LeerLibro(Bytes flujo) {
    return LectorDeLibro{flujo}.leer();
}

} // namespace varo
