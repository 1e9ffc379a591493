// Texts that are no queries, or hardly: whatever comes in, there are rows or one of the faults of a query.
#include "apoyo/Fallos.h"
#include "motor/BaseDatos.h"
#include "motor/TablasDePrueba.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace varo {

namespace {

using prueba::TablaCon;

rc::Gen<std::string> Retales() {
    const auto retal = rc::gen::elementOf(std::vector<std::string>{
        "SELECT ", "TOP ", "3 ",  "FROM ", "[t] ",   "t ",   "WHERE ",    "ORDER ", "BY ",
        "DESC ",   "AS ",  "c0 ", "[c1] ", "Sum(",   "Max(", "Count(*) ", ")",      "(",
        "+ ",      "- ",   "* ",  "/ ",    "^ ",     "= ",   "<> ",       ", ",     "'x' ",
        "'",       "[",    "]",   "1.5 ",  "1e308 ", "NOT ", "AND ",      "ñ ",     "\xC3"});
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(retal), [](const auto& retales) {
        std::string texto;
        for (const auto& trozo : retales) {
            texto += trozo;
        }
        return texto;
    });
}

/// Whatever the text is, there are rows or one of the faults of a query, never anything else.
void NoSeHunde(const std::string& texto) {
    const BaseDatos base{{TablaCon("t", {"c0", "c1"}, {{1.0, std::string{"x"}}, {Nulo{}, 0.0}})}};
    const int numero = FalloDe([&] {
        for (auto filas = base.OpenRecordset(texto); !filas.Eof(); filas.MoveNext()) {
            RC_ASSERT(filas.campos().Count() > 0);
        }
    });
    const std::set<int> previstos{0,
                                  fallo::argumentoNoValido,
                                  fallo::desbordamiento,
                                  fallo::divisionPorCero,
                                  fallo::nombreDesconocido,
                                  fallo::tablaDesconocida,
                                  fallo::sintaxisDeConsulta,
                                  fallo::tiposDistintosEnConsulta};
    RC_ASSERT(previstos.contains(numero));
}

RC_GTEST_PROP(RetalesDeConsulta, CualquierTextoDaFilasOUnFallo, ()) {
    NoSeHunde(*rc::gen::string<std::string>());
}

RC_GTEST_PROP(RetalesDeConsulta, CualquierMontonDeRetalesDaFilasOUnFallo, ()) {
    NoSeHunde(*Retales());
    NoSeHunde("SELECT " + *Retales() + " FROM t");
    NoSeHunde("SELECT c0 FROM t WHERE " + *Retales());
}

/// A good query with one byte that is another one.
RC_GTEST_PROP(RetalesDeConsulta, UnaConsultaConUnaErrataDaFilasOUnFallo, ()) {
    std::string texto =
        "SELECT top 2 ([c0]^2 + c1)/4.5 as [AB] FROM [t] WHERE NOT [c1] <> 'x' order by c0 desc";
    const auto lugar = *rc::gen::inRange<std::size_t>(0, texto.size());
    texto[lugar] = *rc::gen::arbitrary<char>();
    NoSeHunde(texto);
}

} // namespace

} // namespace varo
