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

    LibroBiff Leer() {
        if (globales_.clase() != biff::globales) {
            throw ErrorMotor{fallo::formatoNoReconocido, "no es un libro de Excel sino una hoja suelta"};
        }
        while (const auto registro = globales_.Siguiente()) {
            Atender(*registro);
        }
        for (const int formato : formatosDeCelda_) {
            libro_.formatoEsFecha.push_back(EsFecha(formato));
        }
        libro_.nombres = nombres_.Zonas(biff8_);
        return std::move(libro_);
    }

private:
    void Atender(const Registro& registro) {
        switch (registro.tipo) {
        case biff::filePass:
            throw ErrorMotor{fallo::archivoCifrado, "el libro está protegido con una contraseña"};
        case biff::codePage:
            libro_.cadenas.PonerPagina(LeerU16(registro.datos, 0));
            break;
        case biff::dateMode:
            libro_.calendario1904 = LeerU16(registro.datos, 0) != 0;
            break;
        case biff::boundSheet:
            LeerHoja(registro.datos);
            break;
        case biff::formato:
            LeerFormato(registro.datos);
            break;
        case biff::xf:
            formatosDeCelda_.push_back(LeerU16(registro.datos, 2));
            break;
        case biff::sst:
            LeerTextos(Continuo(registro));
            break;
        case biff::supBook:
            nombres_.AnadirLibroExterno(registro.datos);
            break;
        case biff::externSheet:
            if (biff8_) {
                nombres_.AnadirReferencias(Continuo(registro));
            }
            break;
        case biff::nombre:
            nombres_.AnadirNombre(Continuo(registro), libro_.cadenas);
            break;
        default:
            break;
        }
    }

    LectorContinuo Continuo(const Registro& registro) {
        return LectorContinuo{globales_.ConContinuaciones(registro)};
    }

    void LeerHoja(Bytes datos) {
        LectorContinuo nombre{{Trozo(datos, 6, datos.size() - 6)}};
        libro_.hojas.push_back(
            {libro_.cadenas.LeerCorta(nombre), LeerU32(datos, 0), LeerU8(datos, 5) == hojaDeCalculo});
    }

    void LeerFormato(Bytes datos) {
        const int numero = LeerU16(datos, 0);
        LectorContinuo texto{{datos.subspan(2)}};
        const auto formato = biff8_ ? libro_.cadenas.LeerLarga(texto) : libro_.cadenas.LeerCorta(texto);
        formatos_[numero] = EsFormatoDeFecha(formato);
    }

    void LeerTextos(LectorContinuo tabla) {
        tabla.Saltar(4);
        const std::size_t cuantos = tabla.U32();
        while (libro_.textos.size() < cuantos) {
            libro_.textos.push_back(libro_.cadenas.LeerLarga(tabla));
        }
    }

    /// A format that the workbook spells out is what its text says, a built-in number too. Number 0 is always
    /// the general format, whatever its name in the language of the workbook.
    [[nodiscard]] bool EsFecha(int formato) const {
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
    return LectorDeLibro{flujo}.Leer();
}

} // namespace varo
