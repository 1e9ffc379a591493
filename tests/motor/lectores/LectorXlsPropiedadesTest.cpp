// Any table written as a workbook comes back as it was.
#include "apoyo/EscritorCompuesto.h"
#include "apoyo/EscritorXls.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/LectorXls.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace varo {
namespace {

using Filas = std::vector<std::vector<Valor>>;

/// Characters of one to four bytes in UTF-8.
rc::Gen<std::string> UnTexto(int longitudMaxima) {
    return rc::gen::mapcat(rc::gen::inRange(0, longitudMaxima), [](int longitud) {
        const auto letra = rc::gen::weightedElement<std::string>(
            {{40, "a"}, {20, "Z"}, {10, " "}, {10, "ñ"}, {10, "é"}, {2, "€"}, {2, "漢"}, {1, "😀"}});
        return rc::gen::map(
            rc::gen::container<std::vector<std::string>>(static_cast<std::size_t>(longitud), letra),
            [](const std::vector<std::string>& letras) {
                std::string texto;
                for (const auto& una : letras) {
                    texto += una;
                }
                return texto;
            });
    });
}

rc::Gen<double> UnNumeroFinito() {
    return rc::gen::suchThat(rc::gen::arbitrary<double>(),
                             [](double numero) { return std::isfinite(numero); });
}

/// Dates from 1 March 1900 on, with hours, and times of day alone.
rc::Gen<Valor> UnaFecha() {
    return rc::gen::map(rc::gen::pair(rc::gen::inRange(61, 2958466), rc::gen::inRange(0, 24)),
                        [](std::pair<int, int> diaYHora) {
                            const double hora = diaYHora.second / 24.0;
                            return Valor{Fecha{diaYHora.first % 7 == 0 ? hora : diaYHora.first + hora}};
                        });
}

template <class Tipo>
rc::Gen<Valor> Como(rc::Gen<Tipo> generador) {
    return rc::gen::map(std::move(generador), [](Tipo valor) { return Valor{std::move(valor)}; });
}

rc::Gen<Valor> UnValor() {
    return rc::gen::weightedOneOf<Valor>({{4, rc::gen::just(Valor{})},
                                          {6, Como(UnNumeroFinito())},
                                          {4, Como(UnTexto(30))},
                                          {1, Como(UnTexto(9000))},
                                          {2, UnaFecha()},
                                          {2, Como(rc::gen::arbitrary<bool>())}});
}

/// Rows of one length; the first and the last cell of the last row hold something, so that the used rectangle
/// is all of them.
Filas UnasFilas() {
    const auto columnas = *rc::gen::inRange<std::size_t>(1, 8);
    const auto cuantas = *rc::gen::inRange<std::size_t>(1, 12);
    auto filas =
        *rc::gen::container<Filas>(cuantas, rc::gen::container<std::vector<Valor>>(columnas, UnValor()));
    filas.back().front() = 1.0;
    filas.back().back() = 2.0;
    return filas;
}

prueba::Hoja ConCabecera(const std::string& nombre, const Filas& filas) {
    prueba::Hoja hoja{nombre, filas};
    std::vector<Valor> cabecera;
    for (std::size_t i = 0; i < filas.front().size(); ++i) {
        cabecera.emplace_back("Campo " + std::to_string(i));
    }
    hoja.celdas.insert(hoja.celdas.begin(), cabecera);
    return hoja;
}

RC_GTEST_PROP(LectorXlsPropiedades, UnaTablaVuelveComoSeEscribio, ()) {
    const auto filas = UnasFilas();
    auto hoja = ConCabecera("Hoja", filas);
    hoja.comoFormulas = *rc::gen::arbitrary<bool>();
    const auto tablas = LeerXls(prueba::EscribirXls({hoja}), "libro.xls");
    RC_ASSERT(tablas.size() == 1U);
    RC_ASSERT(tablas[0].Name == "Hoja$");
    RC_ASSERT(tablas[0].filas == filas);
    RC_ASSERT(tablas[0].Fields(0).Name == "Campo 0");
}

RC_GTEST_PROP(LectorXlsPropiedades, LasHojasVuelvenEnSuOrden, ()) {
    const auto cuantas = *rc::gen::inRange(1, 5);
    std::vector<prueba::Hoja> hojas;
    for (int i = 0; i < cuantas; ++i) {
        hojas.push_back(ConCabecera(*UnTexto(31) + std::to_string(i), UnasFilas()));
        hojas.back().oculta = *rc::gen::arbitrary<bool>();
    }
    const auto tamanoSector = *rc::gen::element<std::size_t>(512, 4096);
    const auto flujo = prueba::EscribirFlujoXls(hojas);
    const auto tablas = LeerXls(prueba::EscribirCompuesto({{"Workbook", flujo}}, tamanoSector), "libro.xls");
    RC_ASSERT(tablas.size() == hojas.size());
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        RC_ASSERT(tablas[i].Name == hojas[i].nombre + "$");
        RC_ASSERT(tablas[i].filas == Filas(hojas[i].celdas.begin() + 1, hojas[i].celdas.end()));
    }
}

TEST(LectorXlsPropiedades, UnaHojaEnteraDeColumnasVuelve) {
    Filas filas;
    for (int i = 0; i < 3000; ++i) {
        filas.emplace_back();
        for (int j = 0; j < 256; ++j) {
            filas.back().emplace_back(i * 256.0 + j);
        }
    }
    const auto tablas = LeerXls(prueba::EscribirXls({ConCabecera("Hoja", filas)}), "libro.xls");
    EXPECT_EQ(filas, tablas.at(0).filas);
}

} // namespace
} // namespace varo
