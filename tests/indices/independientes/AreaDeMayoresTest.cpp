#include "indices/independientes/AreaDeMayores.h"

#include "basico/Aritmetica.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include "apoyo/Fallos.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace varo {
namespace {

BaseDatos Tallos(const std::vector<Valor>& tamanos) {
    std::vector<std::vector<Valor>> filas;
    filas.reserve(tamanos.size());
    for (const auto& tamano : tamanos) {
        filas.push_back({tamano});
    }
    return BaseDatos{{Tabla{"P$", Coleccion<Campo>{{Campo{"CAP"}}}, std::move(filas)}}};
}

/// The literal way: one query for each tree.
std::vector<double> ABjPorConsultas(const BaseDatos& base, const UnidadesTallo& unidades,
                                    const std::vector<std::string>& celdas, double supPoligono) {
    std::vector<double> indices;
    indices.reserve(celdas.size());
    for (const auto& celda : celdas) {
        double& indice = indices.emplace_back();
        const std::string texto = Reemplazar(celda, ",", ".");
        if (!EsNumerico(texto) || ANumero(texto) == 0) {
            continue;
        }
        const auto suma = base.OpenRecordset(ConsultaMayores("CAP", "P$", unidades, texto));
        if (!EsNulo(suma.Fields(0).Value)) {
            indice = Dividir(ANumero(suma.Fields(0).Value), supPoligono) * 10000;
        }
    }
    return indices;
}

std::string Celda(const Valor& valor) {
    return EsNulo(valor) ? std::string{} : ATexto(valor);
}

std::vector<std::string> CeldasDe(const std::vector<Valor>& tamanos) {
    std::vector<std::string> celdas;
    celdas.reserve(tamanos.size());
    for (const auto& tamano : tamanos) {
        celdas.push_back(Celda(tamano));
    }
    return celdas;
}

constexpr UnidadesTallo capCm{true, UnidadLongitud::Centimetros};

TEST(AreaDeMayores, LaConsultaPegaElTextoComoEsta) {
    EXPECT_EQ(ConsultaMayores("CAP", "P$", capCm, "12.5"),
              "SELECT Sum ( [CAP]^2/(4*3.1415927*10000) ) as [AB] FROM [P$] WHERE [CAP] > 12.5");
}

TEST(AreaDeMayores, SumaLosEstrictamenteMayores) {
    const std::vector<Valor> tamanos{100.0, 50.0, 100.0, 20.0};
    const double grande = 10000 / (4 * 3.1415927 * 10000);
    const double mediano = 2500 / (4 * 3.1415927 * 10000);
    const auto indices = CalcularABj(Tallos(tamanos), "CAP", "P$", capCm, CeldasDe(tamanos), 200);
    EXPECT_EQ(indices, (std::vector<double>{0, (grande + grande) / 200 * 10000, 0,
                                            ((grande + mediano) + grande) / 200 * 10000}));
}

TEST(AreaDeMayores, UnaCeldaVaciaCeroOSinNumeroDaCero) {
    const std::vector<Valor> tamanos{Valor{}, 0.0, Valor{std::string{"seco"}}, 10.0, 20.0};
    const auto indices = CalcularABj(Tallos(tamanos), "CAP", "P$", capCm, CeldasDe(tamanos), 200);
    EXPECT_EQ(indices[0], 0);
    EXPECT_EQ(indices[1], 0);
    EXPECT_EQ(indices[2], 0);
    EXPECT_GT(indices[3], 0);
}

TEST(AreaDeMayores, UnTextoQueSeLeeComoNumeroCuenta) {
    const std::vector<Valor> tamanos{Valor{std::string{"12,5"}}, 10.0, 20.0};
    const auto base = Tallos(tamanos);
    const auto indices = CalcularABj(base, "CAP", "P$", capCm, CeldasDe(tamanos), 100);
    const auto area = [](double cap) { return cap * cap / (4 * 3.1415927 * 10000); };
    EXPECT_EQ(indices[0], area(20) / 100 * 10000);
    EXPECT_EQ(indices[1], (area(12.5) + area(20)) / 100 * 10000);
}

TEST(AreaDeMayores, UnTamanoConDosPuntosRompeLaConsulta) {
    const std::vector<Valor> tamanos{Valor{std::string{"1.234.5"}}, 10.0};
    EXPECT_EQ(FalloDe([&] { CalcularABj(Tallos(tamanos), "CAP", "P$", capCm, CeldasDe(tamanos), 100); }),
              3075);
}

TEST(AreaDeMayores, UnaParcelaSinSuperficieDivideEntreCeroYDiceLaFila) {
    const std::vector<Valor> tamanos{20.0, 10.0};
    try {
        CalcularABj(Tallos(tamanos), "CAP", "P$", capCm, CeldasDe(tamanos), 0);
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 11);
        EXPECT_EQ(error.lugar(), "fila 2");
    }
}

rc::Gen<Valor> TamanoCualquiera() {
    return rc::gen::weightedOneOf<Valor>({
        {12, rc::gen::map(rc::gen::inRange(0, 40), [](int n) { return Valor{n / 8.0}; })},
        {8, rc::gen::map(rc::gen::inRange(1, 100000), [](int n) { return Valor{n / 7.0}; })},
        {2, rc::gen::just(Valor{})},
        {1, rc::gen::just(Valor{-3.5})},
        {1, rc::gen::just(Valor{true})},
        {1, rc::gen::just(Valor{1e-7})},
        {1, rc::gen::just(Valor{2e17})},
        {1, rc::gen::map(rc::gen::element<std::string>("12,5", "seco", "3", ",5", "7,", "1E3"),
                         [](const std::string& t) { return Valor{t}; })},
    });
}

RC_GTEST_PROP(AreaDeMayores, ElCaminoRapidoDaLosMismosBitsQueLasConsultas, ()) {
    const auto tamanos = *rc::gen::container<std::vector<Valor>>(TamanoCualquiera());
    const UnidadesTallo unidades{
        *rc::gen::arbitrary<bool>(),
        *rc::gen::element(UnidadLongitud::Centimetros, UnidadLongitud::Decimetros, UnidadLongitud::Metros)};
    const double supPoligono = *rc::gen::element(0.0, 123.456, 1e4);
    const auto base = Tallos(tamanos);
    const auto celdas = CeldasDe(tamanos);
    std::vector<double> rapido;
    std::vector<double> literal;
    const int falloRapido =
        FalloDe([&] { rapido = CalcularABj(base, "CAP", "P$", unidades, celdas, supPoligono); });
    const int falloLiteral = FalloDe([&] { literal = ABjPorConsultas(base, unidades, celdas, supPoligono); });
    RC_ASSERT(falloRapido == falloLiteral);
    RC_ASSERT(rapido == literal);
}

RC_GTEST_PROP(AreaDeMayores, LosTamanosDesmedidosFallanComoEnLasConsultas, ()) {
    const auto tamanos = *rc::gen::container<std::vector<Valor>>(
        rc::gen::element(Valor{1e160}, Valor{2e160}, Valor{1e150}, Valor{5.0}, Valor{7.0}, Valor{}));
    const auto base = Tallos(tamanos);
    const auto celdas = CeldasDe(tamanos);
    std::vector<double> rapido;
    std::vector<double> literal;
    const int falloRapido = FalloDe([&] { rapido = CalcularABj(base, "CAP", "P$", capCm, celdas, 100); });
    const int falloLiteral = FalloDe([&] { literal = ABjPorConsultas(base, capCm, celdas, 100); });
    RC_ASSERT(falloRapido == falloLiteral);
    RC_ASSERT(rapido == literal);
}

} // namespace
} // namespace varo
