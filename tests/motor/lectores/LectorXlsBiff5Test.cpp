#include "apoyo/BytesDePrueba.h"
#include "apoyo/EscritorCompuesto.h"
#include "apoyo/EscritorXls.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/LectorXls.h"
#include "motor/lectores/RegistrosBiff.h"

#include <gtest/gtest.h>

#include <string_view>

namespace varo {
namespace {

using prueba::AnadirRegistro;
using prueba::AnadirU16;
using prueba::AnadirU32;
using prueba::AnadirU8;
using Contenido = std::vector<std::byte>;
using Texto = std::vector<std::string>;

void AnadirBytes(Contenido& contenido, std::string_view bytes) {
    for (const char letra : bytes) {
        AnadirU8(contenido, letra);
    }
}

Contenido Palabras(const std::vector<int>& palabras) {
    Contenido contenido;
    for (const int palabra : palabras) {
        AnadirU16(contenido, palabra);
    }
    return contenido;
}

/// A cell with a text of bytes behind its 16-bit length.
Contenido Celda(int fila, int columna, std::string_view texto) {
    auto contenido = Palabras({fila, columna, 0, static_cast<int>(texto.size())});
    AnadirBytes(contenido, texto);
    return contenido;
}

/// A name for rows 0 to `ultimaFila` and columns 0 to 1 of one sheet or of several.
Contenido Nombre(std::string_view texto, int externo, int primeraHoja, int ultimaHoja, int ultimaFila) {
    Contenido contenido = Palabras({0});
    AnadirU8(contenido, 0);
    AnadirU8(contenido, texto.size());
    const auto medio = Palabras({21, 0, 0, 0, 0});
    contenido.insert(contenido.end(), medio.begin(), medio.end());
    AnadirBytes(contenido, texto);
    AnadirU8(contenido, 0x3B);
    const auto zona = Palabras({externo, 0, 0, 0, 0, primeraHoja, ultimaHoja, 0, ultimaFila});
    contenido.insert(contenido.end(), zona.begin(), zona.end());
    AnadirU8(contenido, 0);
    AnadirU8(contenido, 1);
    return contenido;
}

/// A workbook for Excel 5.0 with one sheet and these names.
std::vector<std::byte> Libro(const std::vector<Contenido>& nombres) {
    Contenido hoja;
    AnadirRegistro(hoja, biff::bof, Palabras({biff::version5, biff::hojaDeCalculo}));
    AnadirRegistro(hoja, biff::label, Celda(0, 0, "A\xF1o"));
    AnadirRegistro(hoja, biff::rString, Celda(0, 1, "Nota \x80"));
    auto formula = Palabras({1, 0, 0, 0, 0, 0, 0xFFFF});
    formula.resize(22);
    AnadirRegistro(hoja, biff::formula, formula);
    auto texto = Palabras({6});
    AnadirBytes(texto, "pi\xF1"
                       "on");
    AnadirRegistro(hoja, biff::cadena, texto);
    AnadirRegistro(hoja, biff::continuacion, {std::byte{'!'}});
    auto fecha = Palabras({2, 1, 1});
    AnadirU32(fecha, 36526U << 2 | 2);
    AnadirRegistro(hoja, biff::rk, fecha);
    AnadirRegistro(hoja, biff::eof, {});

    Contenido globales;
    AnadirRegistro(globales, biff::bof, Palabras({biff::version5, biff::globales}));
    AnadirRegistro(globales, biff::codePage, Palabras({1252}));
    for (const auto& nombre : nombres) {
        AnadirRegistro(globales, biff::nombre, nombre);
    }
    auto formato = Palabras({200});
    AnadirU8(formato, 8);
    AnadirBytes(formato, "dd/mm/yy");
    AnadirRegistro(globales, biff::formato, formato);
    AnadirRegistro(globales, biff::xf, Palabras({0, 0, 0, 0, 0, 0, 0, 0}));
    AnadirRegistro(globales, biff::xf, Palabras({0, 200, 0, 0, 0, 0, 0, 0}));
    const std::string_view nombreDeHoja = "\xC1rboles";
    Contenido referencia;
    AnadirU32(referencia, globales.size() + 4 + 7 + nombreDeHoja.size() + 4);
    AnadirU16(referencia, 0);
    AnadirU8(referencia, nombreDeHoja.size());
    AnadirBytes(referencia, nombreDeHoja);
    AnadirRegistro(globales, biff::boundSheet, referencia);
    AnadirRegistro(globales, biff::eof, {});
    globales.insert(globales.end(), hoja.begin(), hoja.end());
    return prueba::EscribirCompuesto({{"Book", globales}});
}

TEST(LectorXlsBiff5, LeeLosTextosDeBytesYLasFechas) {
    EXPECT_EQ((Texto{"[Árboles$]", "Año | Nota €", "'piñon!' | -", "- | #36526"}),
              prueba::Lineas(LeerXls(Libro({}), "libro.xls")));
}

TEST(LectorXlsBiff5, LosNombresDelPropioLibroSonTablas) {
    const int propio = 0xFFFF;
    EXPECT_EQ((Texto{"[Árboles$]", "Año | Nota €", "'piñon!' | -", "- | #36526", //
                     "[Pi\u00F1ar]", "Año | Nota €", "'piñon!' | -"}),
              prueba::Lineas(LeerXls(Libro({
                                         Nombre("Pi\xF1"
                                                "ar",
                                                propio, 0, 0, 1),
                                         Nombre("Externo", 1, 0, 0, 1),
                                         Nombre("Borrado", propio, 0xFFFF, 0xFFFF, 1),
                                         Nombre("DosHojas", propio, 0, 1, 1),
                                         Nombre("Relativo", propio, 0, 0, 0x8001),
                                     }),
                                     "libro.xls")));
}

} // namespace
} // namespace varo
