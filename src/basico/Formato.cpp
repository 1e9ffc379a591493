// The number formats.
#include "basico/ErrorEjecucion.h"
#include "basico/FormaDecimal.h"
#include "basico/Numeros.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace varo {

namespace {

/// What one section asks for: "##0.0#" is one whole digit at least, one decimal at least and two at most.
struct Seccion {
    bool vacia = true;
    bool conComa = false;
    int enterasMinimas = 0;
    int decimalesMinimos = 0;
    int decimalesMaximos = 0;
};

std::vector<std::string_view> Secciones(std::string_view formato) {
    std::vector<std::string_view> secciones;
    for (auto fin = formato.find(';'); fin != std::string_view::npos; fin = formato.find(';')) {
        secciones.push_back(formato.substr(0, fin));
        formato.remove_prefix(fin + 1);
    }
    secciones.push_back(formato);
    return secciones;
}

Seccion LeerSeccion(std::string_view texto) {
    const auto punto = std::min(texto.find('.'), texto.size());
    const std::string_view enteras = texto.substr(0, punto);
    const std::string_view decimales = texto.substr(std::min(punto + 1, texto.size()));
    if (enteras.find_first_not_of("#0") != std::string_view::npos ||
        decimales.find_first_not_of("#0") != std::string_view::npos) {
        throw ErrorEjecucion{fallo::argumentoNoValido};
    }
    return {.vacia = texto.empty(),
            .conComa = punto < texto.size(),
            .enterasMinimas = static_cast<int>(enteras.size() - std::min(enteras.find('0'), enteras.size())),
            .decimalesMinimos = static_cast<int>(decimales.find_last_of('0') + 1),
            .decimalesMaximos = static_cast<int>(decimales.size())};
}

/// The digits that the section shows, without a sign.
std::string Rellenar(const FormaDecimal& forma, const Seccion& seccion) {
    const auto cifras = static_cast<int>(forma.cifras.size());
    const int enteras = std::max(seccion.enterasMinimas, cifras == 0 ? 0 : forma.punto);
    const int decimales = std::max(seccion.decimalesMinimos, cifras == 0 ? 0 : cifras - forma.punto);
    const auto cifraEn = [&](int lugar) { // place 0 is the units, place 1 the first decimal
        const int i = forma.punto - 1 + lugar;
        return i >= 0 && i < cifras ? forma.cifras[static_cast<std::size_t>(i)] : '0';
    };

    std::string texto;
    for (int lugar = 1 - enteras; lugar <= 0; ++lugar) {
        texto += cifraEn(lugar);
    }
    if (seccion.conComa) {
        texto += ',';
    }
    for (int lugar = 1; lugar <= decimales; ++lugar) {
        texto += cifraEn(lugar);
    }
    return texto;
}

std::string Formatear(FormaDecimal forma, std::string_view formato) {
    const auto secciones = Secciones(formato);
    const bool cero = forma.cifras.empty();
    const std::size_t pedida = cero ? 2 : (forma.negativo ? 1 : 0);
    const std::size_t elegida = pedida < secciones.size() ? pedida : 0;
    const Seccion seccion = LeerSeccion(secciones[elegida]);
    if (seccion.vacia) {
        return {};
    }
    forma.redondear(forma.punto + seccion.decimalesMaximos);
    // A section for negatives writes their sign itself, or leaves it out.
    const bool conSigno = forma.negativo && elegida == 0;
    return (conSigno ? "-" : "") + Rellenar(forma, seccion);
}

} // namespace

std::string Formato(double numero, std::string_view formato) {
    return Formatear(EnDecimal(numero), formato);
}

std::string Formato(float numero, std::string_view formato) {
    return Formatear(EnDecimal(numero), formato);
}

} // namespace varo
