#include "apoyo/LibroAMano.h"

#include "apoyo/BytesDePrueba.h"
#include "apoyo/EscritorXls.h"
#include "motor/lectores/RegistrosBiff.h"

#include <utility>

namespace varo::prueba {
namespace {

using Contenido = LibroAMano::Contenido;

void AnadirBof(Contenido& flujo, int clase) {
    Contenido contenido;
    AnadirU16(contenido, biff::version8);
    AnadirU16(contenido, clase);
    AnadirU32(contenido, 0);
    AnadirRegistro(flujo, biff::bof, contenido);
}

void AnadirLetras(Contenido& bytes, const std::string& texto) {
    AnadirU8(bytes, 0); // one byte a letter
    for (const char letra : texto) {
        AnadirU8(bytes, letra);
    }
}

void AnadirHoja(Contenido& flujo, const std::string& nombre, std::size_t lugar) {
    Contenido contenido;
    AnadirU32(contenido, lugar);
    AnadirU16(contenido, 0);
    AnadirU8(contenido, nombre.size());
    AnadirLetras(contenido, nombre);
    AnadirRegistro(flujo, biff::boundSheet, contenido);
}

void AnadirTodo(Contenido& bytes, const Contenido& otros) {
    bytes.insert(bytes.end(), otros.begin(), otros.end());
}

} // namespace

LibroAMano& LibroAMano::global(int tipo, const Contenido& contenido) {
    AnadirRegistro(globales_, tipo, contenido);
    return *this;
}

LibroAMano& LibroAMano::textos(const std::vector<std::string>& textos) {
    constexpr std::size_t lleno = 8000;
    int tipo = biff::sst;
    Contenido contenido;
    AnadirU32(contenido, textos.size());
    AnadirU32(contenido, textos.size());
    for (const auto& texto : textos) {
        if (contenido.size() + texto.size() > lleno) {
            global(std::exchange(tipo, biff::continuacion), contenido);
            contenido.clear();
        }
        AnadirU16(contenido, texto.size());
        AnadirLetras(contenido, texto);
    }
    return global(tipo, contenido);
}

LibroAMano& LibroAMano::hoja(std::string nombre, Contenido registros) {
    hojas_.push_back({std::move(nombre), std::move(registros)});
    return *this;
}

LibroAMano::Contenido LibroAMano::flujo() const {
    const auto comienzo = [&](std::size_t lugar) {
        Contenido flujo;
        AnadirBof(flujo, biff::globales);
        AnadirTodo(flujo, globales_);
        for (const auto& hoja : hojas_) {
            AnadirHoja(flujo, hoja.nombre, lugar);
            lugar += 12 + hoja.registros.size() + 4; // with its BOF and its EOF
        }
        AnadirRegistro(flujo, biff::eof, {});
        return flujo;
    };
    auto flujo = comienzo(comienzo(0).size());
    for (const auto& hoja : hojas_) {
        AnadirBof(flujo, biff::hojaDeCalculo);
        AnadirTodo(flujo, hoja.registros);
        AnadirRegistro(flujo, biff::eof, {});
    }
    return flujo;
}

void AnadirMulRk(LibroAMano::Contenido& registros, std::size_t fila, std::size_t columnas) {
    constexpr std::uint32_t entero = 2;
    Contenido contenido;
    AnadirU16(contenido, fila);
    AnadirU16(contenido, 0);
    for (std::size_t i = 0; i < columnas; ++i) {
        AnadirU16(contenido, 0);
        AnadirU32(contenido, (fila + i) << 2U | entero);
    }
    AnadirU16(contenido, columnas - 1);
    AnadirRegistro(registros, biff::mulRk, contenido);
}

void AnadirLabelSst(LibroAMano::Contenido& registros, std::size_t fila, std::size_t columna,
                    std::size_t texto) {
    Contenido contenido;
    AnadirU16(contenido, fila);
    AnadirU16(contenido, columna);
    AnadirU16(contenido, 0);
    AnadirU32(contenido, texto);
    AnadirRegistro(registros, biff::labelSst, contenido);
}

} // namespace varo::prueba
