// The table of the layouts: a window without a row is a programmer's error, told by name.
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/Pantalla.h"
#include "desktop/Sonda.h"
#include "desktop/Vinculos.h"
#include "formularios/ServiciosPreparados.h"
#include "map/FrmMapa.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace varo::prueba {

namespace {

/// The words of the programmer's error that an act ends in; none when it does not.
template <class Acto>
std::string ErrorDe(const Acto& acto) {
    try {
        acto();
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return {};
}

} // namespace

class LasDisposiciones : public testing::Test {
protected:
    ServiciosPreparados servicios;
    Programa programa{servicios};
    Vinculos vinculos{programa};
};

TEST_F(LasDisposiciones, UnaVentanaSinDisposicionSeDicePorSuNombre) {
    Formulario suelta{programa, "FrmSuelta", TipoVentana::Hija, "Suelta"};
    const std::string queja = "la ventana FrmSuelta no tiene disposición";
    EXPECT_EQ(ErrorDe([&] { Disponer(suelta, vinculos); }), queja);
    EXPECT_EQ(ErrorDe([&] { SePuedeAgrandar(suelta); }), queja);
}

TEST_F(LasDisposiciones, UnaVentanaDerivadaSeDisponeComoSuBase) {
    Sonda<FrmMapa2> derivada{programa};
    const std::unique_ptr<QWidget> contenido{Disponer(derivada, vinculos)};
    EXPECT_NE(contenido, nullptr);
    EXPECT_TRUE(SePuedeAgrandar(derivada));
    vinculos.soltar();
}

} // namespace varo::prueba
