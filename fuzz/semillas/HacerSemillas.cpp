// Makes the workbooks and the databases of fuzz/corpus: HacerSemillas FOLDER
#include "apoyo/ArchivoDePrueba.h"
#include "apoyo/BytesDePrueba.h"
#include "apoyo/EscritorCompuesto.h"
#include "apoyo/EscritorMdb.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/LibroAMano.h"
#include "motor/lectores/RegistrosBiff.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {
namespace {

using Contenido = std::vector<std::byte>;
using Semillas = std::vector<std::pair<std::string, Contenido>>;

Contenido Palabras(const std::vector<int>& palabras) {
    Contenido contenido;
    for (const int palabra : palabras) {
        AnadirU16(contenido, palabra);
    }
    return contenido;
}

Contenido Letras(Contenido contenido, const std::string& letras) {
    for (const char letra : letras) {
        AnadirU8(contenido, letra);
    }
    return contenido;
}

/// Row, column and format, and a number of some bytes.
Contenido Celda(int fila, int columna, std::uint64_t valor, int bytes) {
    auto contenido = Palabras({fila, columna, 0});
    AnadirEntero(contenido, valor, bytes);
    return contenido;
}

Contenido Hoja(const std::vector<std::pair<int, Contenido>>& registros) {
    Contenido hoja;
    for (const auto& [tipo, contenido] : registros) {
        AnadirRegistro(hoja, tipo, contenido);
    }
    return hoja;
}

Contenido HojaConMulRk() {
    Contenido hoja;
    for (std::size_t fila = 0; fila < 4; ++fila) {
        AnadirMulRk(hoja, fila, 5);
    }
    return hoja;
}

Contenido HojaConFormulas() {
    constexpr std::uint64_t texto = 0xFFFF'0000'0000'0000;
    constexpr std::uint64_t verdad = 0xFFFF'0000'0001'0001;
    constexpr std::uint64_t error = 0xFFFF'0000'0007'0002;
    constexpr std::uint64_t vacio = 0xFFFF'0000'0000'0003;
    Contenido hoja;
    int fila = 0;
    for (const auto resultado : {texto, verdad, error, vacio, std::uint64_t{0x3FF0'0000'0000'0000}}) {
        auto formula = Celda(fila++, 0, resultado, 8);
        formula.resize(22);
        AnadirRegistro(hoja, biff::formula, formula);
        if (resultado == texto) {
            AnadirRegistro(hoja, biff::shrFmla, Contenido(10));
            AnadirRegistro(hoja, biff::cadena, Letras(Palabras({4, 0x7000}), "ino"));
        }
    }
    return hoja;
}

/// A text that goes on in a second record, where its letters have two bytes.
Contenido LibroConCadenasContinuadas() {
    auto sst = Palabras({1, 0, 1, 0, 6});
    AnadirU8(sst, 0);
    auto sigue = Contenido{std::byte{1}};
    for (const int letra : {0x20AC, 0x00F1, 0xD83C, 0xDF32}) {
        AnadirU16(sigue, letra);
    }
    return LibroAMano{}
        .global(biff::sst, Letras(sst, "pi"))
        .global(biff::continuacion, sigue)
        .hoja("H", Hoja({{biff::labelSst, Celda(0, 0, 0, 4)}}))
        .flujo();
}

/// A text with letters of several fonts and with the way to say it.
Contenido LibroConTextosRicos() {
    auto sst = Palabras({1, 0, 1, 0, 3});
    AnadirU8(sst, 0x0C);
    AnadirU16(sst, 1);
    AnadirU32(sst, 2);
    sst = Letras(sst, "pino");
    sst.resize(sst.size() + 5);
    return LibroAMano{}.global(biff::sst, sst).hoja("H", Hoja({{biff::labelSst, Celda(0, 0, 0, 4)}})).flujo();
}

Contenido LibroConFechas() {
    auto formato = Palabras({164, 10});
    AnadirU8(formato, 0);
    LibroAMano libro;
    libro.global(biff::dateMode, Palabras({1})).global(biff::formato, Letras(formato, "dd/mm/yyyy"));
    for (const int numero : {0, 14, 164}) {
        libro.global(biff::xf, Palabras({0, numero, 0, 0, 0, 0, 0, 0, 0, 0}));
    }
    Contenido hoja;
    for (int formatoDeCelda = 0; formatoDeCelda < 3; ++formatoDeCelda) {
        auto fecha = Palabras({formatoDeCelda, 0, formatoDeCelda});
        AnadirReal(fecha, 40'000.75);
        AnadirRegistro(hoja, biff::numero, fecha);
    }
    return libro.hoja("H", hoja).flujo();
}

Contenido LibroConNombre() {
    auto nombre = Palabras({0});
    AnadirU8(nombre, 0);
    AnadirU8(nombre, 1);
    AnadirU16(nombre, 11);
    nombre.resize(nombre.size() + 9);
    nombre = Letras(nombre, "n;");
    const auto zona = Palabras({0, 0, 2, 0, 1});
    nombre.insert(nombre.end(), zona.begin(), zona.end());
    return LibroAMano{}
        .global(biff::supBook, Palabras({1, 0x0401}))
        .global(biff::externSheet, Palabras({1, 0, 0, 0}))
        .global(biff::nombre, nombre)
        .hoja("H", HojaConMulRk())
        .flujo();
}

/// A chart inside a sheet has records of its own.
Contenido LibroConGrafico() {
    auto hoja = HojaConMulRk();
    AnadirRegistro(hoja, biff::bof, Palabras({biff::version8, 0x0020, 0, 0}));
    AnadirMulRk(hoja, 9, 2);
    AnadirRegistro(hoja, biff::eof, {});
    AnadirMulRk(hoja, 5, 2);
    return LibroAMano{}.hoja("H", hoja).flujo();
}

Contenido LibroDe95() {
    Contenido hoja;
    AnadirRegistro(hoja, biff::bof, Palabras({biff::version5, biff::hojaDeCalculo}));
    AnadirRegistro(hoja, biff::label, Letras(Palabras({0, 0, 0, 3}), "A\xF1o"));
    AnadirRegistro(hoja, biff::rString, Letras(Palabras({1, 0, 0, 4}), "pino"));
    AnadirRegistro(hoja, biff::eof, {});
    const auto globales = [&](std::size_t lugar) {
        Contenido flujo;
        AnadirRegistro(flujo, biff::bof, Palabras({biff::version5, biff::globales}));
        AnadirRegistro(flujo, biff::codePage, Palabras({1252}));
        Contenido referencia;
        AnadirU32(referencia, lugar);
        AnadirU16(referencia, 0);
        AnadirRegistro(flujo, biff::boundSheet, Letras(referencia, "\x01H"));
        AnadirRegistro(flujo, biff::eof, {});
        return flujo;
    };
    auto libro = globales(globales(0).size());
    libro.insert(libro.end(), hoja.begin(), hoja.end());
    return libro;
}

Semillas Libros() {
    const std::vector<std::vector<Valor>> celdas{
        {"X", "Y", "Especie"}, {1.5, 2.0, "Pinus sylvestris €"}, {Nulo{}, Fecha{43831.5}, true}};
    const auto oculta = EscribirFlujoXls({{"Ñ", celdas, true}, {"Vacía", {}}});
    return {
        {"mulrk.xls", LibroAMano{}.hoja("H", HojaConMulRk()).flujo()},
        {"rk_numero_y_error.xls", LibroAMano{}
                                      .hoja("H", Hoja({{biff::rk, Celda(0, 0, 0x40000003, 4)},
                                                       {biff::numero, Celda(0, 1, ~0ULL, 8)},
                                                       {biff::boolErr, Celda(1, 0, 0x0001, 2)},
                                                       {biff::boolErr, Celda(1, 1, 0x0107, 2)}}))
                                      .flujo()},
        {"resultados_de_formulas.xls", LibroAMano{}.hoja("H", HojaConFormulas()).flujo()},
        {"formulas_con_texto.xls", EscribirFlujoXls({{"H", celdas, false, true}})},
        {"cadenas_continuadas.xls", LibroConCadenasContinuadas()},
        {"textos_ricos.xls", LibroConTextosRicos()},
        {"fechas_de_1904.xls", LibroConFechas()},
        {"nombre_de_zona.xls", LibroConNombre()},
        {"grafico_en_la_hoja.xls", LibroConGrafico()},
        {"excel_95.xls", LibroDe95()},
        {"con_contrasena.xls", LibroAMano{}.global(biff::filePass, Contenido(6)).flujo()},
        {"hoja_oculta_y_hoja_vacia.xls", oculta},
        {"compuesto_en_mini_sectores.xls", EscribirCompuesto({{"Workbook", oculta}})},
        {"compuesto_con_dos_libros.xls", EscribirCompuesto({{"Book", LibroDe95()}, {"Workbook", oculta}})},
        {"compuesto_sin_libro.xls", EscribirCompuesto({{"WordDocument", Contenido(10)}})}};
}

TablaMdb TablaDeTodo() {
    TablaMdb tabla{"Árboles",
                   {{"Id", TipoMdb::EnteroLargo},
                    {"Especie", TipoMdb::Texto},
                    {"CAP", TipoMdb::Doble},
                    {"Viva", TipoMdb::Booleano},
                    {.nombre = "Notas", .tipo = TipoMdb::Memo, .borradosDelante = 1},
                    {"Precio", TipoMdb::Moneda},
                    {.nombre = "Decimal", .tipo = TipoMdb::Decimal, .decimales = 2},
                    {"Fecha", TipoMdb::FechaHora}},
                   {}};
    tabla.filas = {{1.0, "piñón", 12.5, true, "corta", 1.25, -3.5, Fecha{43831.5}},
                   {2.0, Nulo{}, Nulo{}, false, Nulo{}, Nulo{}, Nulo{}, Nulo{}}};
    return tabla;
}

TablaMdb TablaDeNotas(std::size_t letras) {
    return {"T", {{"Notas", TipoMdb::Memo}}, {{std::string(letras, 'm')}}};
}

TablaMdb TablaDeNumeros() {
    return {"T", {{"x", TipoMdb::Doble}}, {{1.0}, {2.0}, {3.0}}};
}

Semillas Bases() {
    auto cambiada = TablaDeNumeros();
    cambiada.borradas = {0};
    cambiada.trasladadas = {1};
    auto enPaginas = TablaDeNumeros();
    enPaginas.mapaEnPaginas = true;
    auto conUltimo = TablaDeTodo();
    conUltimo.conUltimoCampoDesde = 1;
    TablaMdb vinculada{"De fuera", {}, {}};
    vinculada.vinculada = true;
    auto calculada = TablaDeNumeros();
    calculada.campos.front().calculado = true;
    auto deOtraClase = TablaDeNumeros();
    deOtraClase.campos.front().tipo = TipoMdb::EnteroGrande;
    return {{"jet3_memo.mdb", EscribirMdb({{TablaDeNotas(50)}, 0})},
            {"jet3_memo_en_cadena.mdb", EscribirMdb({{TablaDeNotas(3'000)}, 0})},
            {"jet3_cada_tipo.mdb", EscribirMdb({{TablaDeTodo()}, 0})},
            {"jet3_filas_borradas_y_trasladadas.mdb", EscribirMdb({{cambiada}, 0})},
            {"jet3_mapa_en_paginas.mdb", EscribirMdb({{enPaginas}, 0})},
            {"jet3_columna_nueva.mdb", EscribirMdb({{conUltimo}, 0})},
            {"jet3_tabla_vinculada.mdb", EscribirMdb({{vinculada, TablaDeNumeros()}, 0})},
            {"jet3_cifrada.mdb", EscribirMdb({{TablaDeNumeros()}, 0, 0x1234567})},
            {"jet3_con_contrasena.mdb", EscribirMdb({{TablaDeNumeros()}, 0, 0, "secreto"})},
            {"jet4_cada_tipo.mdb", EscribirMdb({{TablaDeTodo()}, 1})},
            {"jet4_cifrada.mdb", EscribirMdb({{TablaDeNumeros()}, 1, 0x89ABCDE})},
            {"ace_campo_calculado.accdb", EscribirMdb({{calculada}, 3})},
            {"ace_entero_grande.accdb", EscribirMdb({{deOtraClase}, 3})}};
}

void Escribir(const std::filesystem::path& carpeta, const Semillas& semillas) {
    std::filesystem::create_directories(carpeta);
    for (const auto& [nombre, bytes] : semillas) {
        EscribirBytes(carpeta / nombre, bytes);
    }
}

} // namespace
} // namespace varo::prueba

int main(int cuantos, char** palabras) {
    try {
        const std::filesystem::path carpeta{cuantos == 2 ? palabras[1] : "."};
        varo::prueba::Escribir(carpeta / "LectorXlsFuzz", varo::prueba::Libros());
        varo::prueba::Escribir(carpeta / "LectorMdbFuzz", varo::prueba::Bases());
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
