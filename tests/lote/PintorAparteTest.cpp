#include "lote/PintorAparte.h"

#include "map/FrmMapa.h"

#include "apoyo/Jornada.h"

#include <gtest/gtest.h>

#include <map>
#include <thread>

namespace varo::prueba {

namespace {

/// A map of one crown with a title.
struct UnMapa : Jornada {
    FrmMapa& mapa = programa.tocar<FrmMapa>();

    explicit UnMapa(const std::string& fuente = "DejaVu Sans", double x = 5) {
        mapa.empezar({0, 10, 0, 7.234});
        mapa.LbTitulo.Font = Fuente{.nombre = fuente};
        mapa.LbTitulo.Caption = "Parcela";
        mapa.mostrar(mapa.LbTitulo);
        mapa.lienzo.circulo(x, 3, 2);
    }
};

TEST(PintorAparte, CadaExtensionDaSuFormato) {
    PintorAparte pintor;
    const UnMapa uno;
    EXPECT_TRUE(pintor.pintar(uno.mapa, ".png").starts_with("\x89PNG"));
    EXPECT_TRUE(pintor.pintar(uno.mapa, ".pdf").starts_with("%PDF-"));
    EXPECT_NE(pintor.pintar(uno.mapa, ".svg").find("<svg"), std::string::npos);
}

TEST(PintorAparte, DiceQueFuentesNoEstan) {
    PintorAparte pintor;
    EXPECT_EQ(pintor.fuentesQueFaltan({"DejaVu Sans", "dejavu sans", "Letra que no existe", "Otra"}),
              (std::set<std::string>{"Letra que no existe", "Otra"}));
}

TEST(PintorAparte, VariosTrabajosALaVezRecibenCadaUnoLaSuya) {
    PintorAparte pintor;
    constexpr int cuantos = 4;
    std::map<int, std::string> solas;
    for (int i = 0; i < cuantos; ++i) {
        solas[i] = pintor.pintar(UnMapa{"DejaVu Sans", 3.0 + i}.mapa, ".svg");
    }
    std::map<int, std::string> juntas;
    for (int i = 0; i < cuantos; ++i) {
        juntas[i]; // each thread writes its own
    }
    std::vector<std::thread> trabajos;
    for (int i = 0; i < cuantos; ++i) {
        trabajos.emplace_back([&pintor, &suya = juntas.at(i), i] {
            suya = pintor.pintar(UnMapa{"DejaVu Sans", 3.0 + i}.mapa, ".svg");
        });
    }
    for (std::thread& trabajo : trabajos) {
        trabajo.join();
    }
    EXPECT_EQ(juntas, solas);
    EXPECT_NE(solas[0], solas[1]);
}

} // namespace

} // namespace varo::prueba
