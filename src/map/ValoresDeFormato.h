// The format values of the session, as fonts and colours.
#pragma once

#include "formularios/Servicios.h"
#include "shell/Sesion.h"

#include <string>

namespace varo {

/// The six values of a font, where they are kept.
struct RasgosDeFuente {
    std::string& nombre;
    std::string& tamano;
    std::string& negrita;
    std::string& cursiva;
    std::string& tachado;
    std::string& subrayado;

    void guardar(const Fuente& fuente) const;
    /// Fills the values that are empty.
    void completar(const Fuente& fuente) const;
    /// All six are there.
    [[nodiscard]] Fuente leer() const;
};

RasgosDeFuente RasgosDelTitulo(Sesion& sesion);
/// An index outside the arrays throws 9.
RasgosDeFuente RasgosDelCodigo(Sesion& sesion, int codigo);

std::string TextoDeColor(Color color);
Color ColorDeTexto(const std::string& texto);

/// Whether somebody chose the background of a code, and that they did.
bool FondoElegido(const Sesion& sesion, int codigo);
void ElegirFondo(Sesion& sesion, int codigo);

/// Sizes the arrays of a kind to the present codes, and empties them.
void VaciarFuentesDeCodigos(Sesion& sesion);
void VaciarColoresDeCodigos(Sesion& sesion);
void VaciarFondosDeCodigos(Sesion& sesion);
/// Sizes all of them to the present codes; what still has a place stays.
void ExtenderFormatoDeCodigos(Sesion& sesion);

} // namespace varo
