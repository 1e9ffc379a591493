// What a crown map costs: a picture of the whole on a screen, a part of it, and picture files.
#include "pintura/Imagenes.h"

#include "map/DibujarCopa.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <random>
#include <string>

namespace {

void ExigirAplicacion() {
    static int argc = 1;
    static std::string nombre = "medida_pintura";
    static char* argv[] = {nombre.data(), nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication aplicacion{argc, argv};
}

/// 900 stems a hectare with crowns of 1 to 3 m, a point and a label each.
struct Mapa {
    varo::Lienzo lienzo;
    double lado;

    explicit Mapa(std::int64_t arboles) : lado{std::sqrt(static_cast<double>(arboles) / 900.0) * 100} {
        lienzo.escala({-lado * 0.2, lado * 1.2, -lado * 0.01, lado * 1.003});
        std::mt19937 azar{7};
        std::uniform_real_distribution<double> sitio{0, lado};
        std::uniform_real_distribution<double> radio{1, 3};
        for (int i = 0; i < arboles; ++i) {
            sitios.emplace_back(sitio(azar), sitio(azar));
            varo::DibujarCopa(lienzo, {sitios.back().x(), sitios.back().y(), radio(azar), radio(azar),
                                       radio(azar), radio(azar)});
            lienzo.etiqueta("Lbcodigo", i);
        }
    }
    [[nodiscard]] varo::Dibujo dibujo() const {
        return {
            lienzo, [this](const varo::EtiquetaMostrada& mostrada) {
                const QPointF& suyo = sitios[static_cast<std::size_t>(mostrada.indice)];
                return varo::AspectoDeEtiqueta{suyo.x(), suyo.y() + 2, 0, std::to_string(mostrada.indice)};
            }};
    }

    std::vector<QPointF> sitios;
};

void PintarEnPantalla(benchmark::State& estado, double aumento) {
    ExigirAplicacion();
    const Mapa mapa{estado.range(0)};
    const varo::Dibujo dibujo = mapa.dibujo();
    QImage imagen{1400, 900, QImage::Format_RGB32};
    varo::Encuadre encuadre = varo::Encuadre::entero(mapa.lienzo.escala(), imagen.size());
    encuadre.porMetro *= aumento;
    const varo::Pluma pluma{.grosor = 1, .porPunto = 1.3, .conCurvas = false, .masEtiquetas = 2500};
    for (auto _ : estado) {
        QPainter pintor{&imagen};
        varo::Pintar(pintor, dibujo, encuadre, pluma, QRectF{imagen.rect()});
    }
}

void Entero(benchmark::State& estado) {
    PintarEnPantalla(estado, 1);
}
BENCHMARK(Entero)->Arg(60)->Arg(2000)->Arg(5000)->Arg(32'766)->Unit(benchmark::kMillisecond);

void DiezVecesMayor(benchmark::State& estado) {
    PintarEnPantalla(estado, 10);
}
BENCHMARK(DiezVecesMayor)->Arg(5000)->Arg(32'766)->Unit(benchmark::kMillisecond);

void EnArchivo(benchmark::State& estado) {
    ExigirAplicacion();
    const Mapa mapa{estado.range(0)};
    const auto formato = static_cast<varo::FormatoDeImagen>(estado.range(1));
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::ImagenDe(mapa.dibujo(), formato));
    }
}
BENCHMARK(EnArchivo)
    ->ArgsProduct({{2000}, {0, 1, 2}})
    ->ArgNames({"arboles", "formato"})
    ->Unit(benchmark::kMillisecond);

} // namespace
