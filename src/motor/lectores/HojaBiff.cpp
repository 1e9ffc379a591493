#include "motor/lectores/HojaBiff.h"

#include "motor/lectores/FechasBiff.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace varo {
namespace {

constexpr std::size_t columnasDeUnaHoja = 256;
/// Row, column and format come first in every cell record.
constexpr std::size_t tamanoComienzo = 6;

/// A number in 32 bits: 30 bits of a whole number or the upper bits of a float, and whether it counts
/// hundredths.
double NumeroRk(std::uint32_t rk) {
    constexpr std::uint32_t enCentesimas = 1;
    constexpr std::uint32_t entero = 2;
    const double valor = (rk & entero) != 0
                             ? static_cast<std::int32_t>(rk) >> 2
                             : std::bit_cast<double>(static_cast<std::uint64_t>(rk & 0xFFFFFFFCU) << 32);
    return (rk & enCentesimas) != 0 ? valor / 100 : valor;
}

class LectorDeHoja {
public:
    LectorDeHoja(Subflujo& registros, const LibroBiff& libro, LimitesDeLectura& limites, const Avance& avance)
        : registros_{registros}, libro_{libro}, limites_{limites}, avance_{avance} {}

    HojaDeCalculo leer() {
        if (registros_.clase() != biff::hojaDeCalculo) {
            ArchivoDanado("una hoja no es de la clase que el libro dice");
        }
        while (const auto registro = registros_.siguiente()) {
            comprobarTextoPendiente(registro->tipo);
            atender(*registro);
            avance_.paso(registro->datos.size());
        }
        comprobarTextoPendiente(biff::eof);
        hoja_.cerrar();
        return std::move(hoja_);
    }

private:
    void atender(const Registro& registro) {
        const auto datos = registro.datos;
        switch (registro.tipo) {
        case biff::numero:
            anadirNumero(datos, LeerReal(datos, tamanoComienzo));
            break;
        case biff::rk:
            anadirNumero(datos, NumeroRk(LeerU32(datos, tamanoComienzo)));
            break;
        case biff::mulRk:
            leerMulRk(datos);
            break;
        case biff::labelSst:
            leerTextoCompartido(datos);
            break;
        case biff::label:
        case biff::rString:
            anadir(datos, ValorDeCelda{leerTexto(registro, tamanoComienzo)});
            break;
        case biff::boolErr:
            anadir(datos, verdadOError(LeerU8(datos, 6), LeerU8(datos, 7) != 0));
            break;
        case biff::formula:
            leerFormula(datos);
            break;
        case biff::cadena:
            leerTextoDeFormula(registro);
            break;
        default:
            break;
        }
    }

    void anadir(Bytes comienzo, const ValorDeCelda& valor) {
        anadirEn(LeerU16(comienzo, 2), comienzo, valor);
    }

    void anadirEn(std::size_t columna, Bytes comienzo, const ValorDeCelda& valor) {
        if (columna >= columnasDeUnaHoja) {
            ArchivoDanado("una celda está fuera de la hoja");
        }
        hoja_.celdas.anadir(LeerU16(comienzo, 0), columna, valor);
    }

    void anadirNumero(Bytes datos, double numero) { anadir(datos, valorNumerico(numero, LeerU16(datos, 4))); }

    /// What is no finite number shows as an error in a sheet, and is null like one.
    [[nodiscard]] ValorDeCelda valorNumerico(double numero, std::size_t formato) const {
        if (!std::isfinite(numero)) {
            return {};
        }
        const bool esFecha = formato < libro_.formatoEsFecha.size() && libro_.formatoEsFecha[formato];
        return esFecha ? ValorDeCelda{FechaDeSerie(numero, libro_.calendario1904)}
                       : ValorDeCelda{ValorDeCelda::Clase::Numero, numero};
    }

    static ValorDeCelda verdadOError(int valor, bool esError) {
        return esError ? ValorDeCelda{} : ValorDeCelda{ValorDeCelda::Clase::Verdad, valor != 0 ? 1.0 : 0.0};
    }

    /// Row and first column, a format and a number for each column, and the last column.
    void leerMulRk(Bytes datos) {
        constexpr std::size_t tamanoNumero = 6;
        const std::size_t primera = LeerU16(datos, 2);
        const std::size_t cuantas = datos.size() < 6 ? 0 : (datos.size() - 6) / tamanoNumero;
        if (cuantas == 0 || datos.size() != 6 + cuantas * tamanoNumero ||
            LeerU16(datos, datos.size() - 2) != primera + cuantas - 1) {
            ArchivoDanado("una fila de números no es válida");
        }
        for (std::size_t i = 0; i < cuantas; ++i) {
            const std::size_t lugar = 4 + i * tamanoNumero;
            anadirEn(primera + i, datos,
                     valorNumerico(NumeroRk(LeerU32(datos, lugar + 2)), LeerU16(datos, lugar)));
        }
    }

    void leerTextoCompartido(Bytes datos) {
        const std::size_t numero = LeerU32(datos, tamanoComienzo);
        if (numero >= libro_.textos.size()) {
            ArchivoDanado("una celda pide un texto que no hay");
        }
        limites_.contarTextoDeCelda(libro_.textos[numero].size());
        anadir(datos, ValorDeCelda{libro_.textos[numero]});
    }

    std::string leerTexto(const Registro& registro, std::size_t lugar) {
        auto fragmentos = registros_.conContinuaciones(registro);
        fragmentos.front() = Trozo(registro.datos, lugar, registro.datos.size() - lugar);
        LectorContinuo lector{std::move(fragmentos)};
        return libro_.cadenas.leerLarga(lector);
    }

    /// A result that is no number has all bits of its last two bytes set and tells its kind in the first.
    void leerFormula(Bytes datos) {
        const auto resultado = Trozo(datos, tamanoComienzo, 8);
        if (LeerU16(resultado, 6) != 0xFFFF) {
            anadirNumero(datos, LeerReal(resultado, 0));
            return;
        }
        enum { texto, verdad, error, textoVacio };
        switch (LeerU8(resultado, 0)) {
        case texto:
            anadir(datos, ValorDeCelda{std::string_view{}});
            faltaTexto_ = true;
            break;
        case verdad:
            anadir(datos, verdadOError(LeerU8(resultado, 2), false));
            break;
        case error:
            anadir(datos, ValorDeCelda{});
            break;
        case textoVacio:
            anadir(datos, ValorDeCelda{std::string_view{}});
            break;
        default:
            ArchivoDanado("el resultado de una fórmula no es válido");
        }
    }

    void leerTextoDeFormula(const Registro& registro) {
        if (faltaTexto_) {
            hoja_.celdas.cambiarUltima(ValorDeCelda{leerTexto(registro, 0)});
            faltaTexto_ = false;
        }
    }

    /// The text of a formula follows it, behind the record of a shared or array formula at most.
    void comprobarTextoPendiente(int tipo) const {
        const bool puedeSeguir = tipo == biff::cadena || tipo == biff::shrFmla || tipo == biff::array ||
                                 tipo == biff::table || tipo == biff::continuacion;
        if (faltaTexto_ && !puedeSeguir) {
            ArchivoDanado("falta el resultado de una fórmula");
        }
    }

    Subflujo& registros_;
    const LibroBiff& libro_;
    LimitesDeLectura& limites_;
    const Avance& avance_;
    HojaDeCalculo hoja_;
    bool faltaTexto_ = false;
};

} // namespace

HojaDeCalculo LeerHoja(Subflujo& registros, const LibroBiff& libro, LimitesDeLectura& limites,
                       const Avance& avance) {
    return LectorDeHoja{registros, libro, limites, avance}.leer();
}

} // namespace varo
