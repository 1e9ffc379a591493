#include "map/ValoresDeFormato.h"

#include "basico/Numeros.h"
#include "basico/Valor.h"

#include <array>

namespace varo {

namespace {

using ValoresPorCodigo = MatrizDinamica<std::string>;

constexpr const char* verdadero = "Verdadero";

std::string TextoDeLogico(bool logico) {
    return ATexto(Valor{logico});
}

std::array<ValoresPorCodigo*, 6> FuentesDeCodigos(Sesion& sesion) {
    return {&sesion.CodFuente,  &sesion.CodTamano,  &sesion.CodNegrita,
            &sesion.CodCursiva, &sesion.CodTachado, &sesion.CodSubrayado};
}

} // namespace

void RasgosDeFuente::guardar(const Fuente& fuente) const {
    for (std::string* const rasgo : {&nombre, &tamano, &negrita, &cursiva, &tachado, &subrayado}) {
        rasgo->clear();
    }
    completar(fuente);
}

void RasgosDeFuente::completar(const Fuente& fuente) const {
    const auto poner = [](std::string& rasgo, std::string valor) {
        if (rasgo.empty()) {
            rasgo = std::move(valor);
        }
    };
    poner(nombre, fuente.nombre);
    poner(tamano, ATexto(fuente.tamano));
    poner(negrita, TextoDeLogico(fuente.negrita));
    poner(cursiva, TextoDeLogico(fuente.cursiva));
    poner(tachado, TextoDeLogico(fuente.tachado));
    poner(subrayado, TextoDeLogico(fuente.subrayado));
}

Fuente RasgosDeFuente::leer() const {
    return {.nombre = nombre,
            .tamano = static_cast<float>(ANumero(tamano)),
            .negrita = negrita == verdadero,
            .cursiva = cursiva == verdadero,
            .tachado = tachado == verdadero,
            .subrayado = subrayado == verdadero};
}

RasgosDeFuente RasgosDelTitulo(Sesion& sesion) {
    return {sesion.TituloFuente,  sesion.TituloTamano,  sesion.TituloNegrita,
            sesion.TituloCursiva, sesion.TituloTachado, sesion.TituloSubrayado};
}

RasgosDeFuente RasgosDelCodigo(Sesion& sesion, int codigo) {
    return {sesion.CodFuente(codigo),  sesion.CodTamano(codigo),  sesion.CodNegrita(codigo),
            sesion.CodCursiva(codigo), sesion.CodTachado(codigo), sesion.CodSubrayado(codigo)};
}

std::string TextoDeColor(Color color) {
    return ATexto(color);
}

Color ColorDeTexto(const std::string& texto) {
    return static_cast<Color>(ANumero(texto));
}

bool FondoElegido(const Sesion& sesion, int codigo) {
    return sesion.CodFondoElegido(codigo) == verdadero;
}

void ElegirFondo(Sesion& sesion, int codigo) {
    sesion.CodFondoElegido(codigo) = verdadero;
}

void VaciarFuentesDeCodigos(Sesion& sesion) {
    for (ValoresPorCodigo* const textos : FuentesDeCodigos(sesion)) {
        textos->redimensionar(sesion.NumCodigos.valor());
    }
}

void VaciarColoresDeCodigos(Sesion& sesion) {
    sesion.CodColor.redimensionar(sesion.NumCodigos.valor());
}

void VaciarFondosDeCodigos(Sesion& sesion) {
    sesion.CodColorFondo.redimensionar(sesion.NumCodigos.valor());
    sesion.CodFondoElegido.redimensionar(sesion.NumCodigos.valor());
}

void ExtenderFormatoDeCodigos(Sesion& sesion) {
    const int limite = sesion.NumCodigos.valor();
    for (ValoresPorCodigo* const textos : FuentesDeCodigos(sesion)) {
        textos->redimensionarConservando(limite);
    }
    sesion.CodColor.redimensionarConservando(limite);
    sesion.CodColorFondo.redimensionarConservando(limite);
    sesion.CodFondoElegido.redimensionarConservando(limite);
}

} // namespace varo
