#include "libros/ApoyoLibros.h"

#include "apoyo/Fallos.h"
#include "apoyo/Lugares.h"
#include "libros/LectorDeLibros.h"
#include "motor/lectores/ApoyoLectores.h"

#include <algorithm>
#include <stdexcept>

namespace varo::prueba {

LineasDeTablas LineasDelLibro(const std::vector<std::byte>& libro) {
    return Lineas(LeerLibroComprimido(libro, "libro"));
}

LineasDeTablas LineasDeFilas(const std::string& filas) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", filas}};
    return LineasDelLibro(EscribirXlsx(libro));
}

std::vector<ParteZip> Cambiada(std::vector<ParteZip> partes, const std::string& nombre,
                               const std::string& contenido) {
    const auto parte = std::ranges::find(partes, nombre, &ParteZip::nombre);
    if (parte == partes.end()) {
        throw std::logic_error{"no hay parte " + nombre};
    }
    parte->contenido = contenido;
    return partes;
}

testing::AssertionResult NoSeLee(const std::vector<std::byte>& libro, int numero, std::string_view texto) {
    const auto conNombre =
        FallaCon(numero, "No se puede leer «libro.xyz»: ", [&] { LeerLibroComprimido(libro, "libro.xyz"); });
    return conNombre ? FallaCon(numero, texto, [&] { LeerLibroComprimido(libro, "libro.xyz"); }) : conNombre;
}

testing::AssertionResult TieneDefecto(const std::vector<std::byte>& libro, const std::string& tabla,
                                      int numero, std::string_view texto) {
    const auto nombrado = [&] {
        for (const auto& leida : LeerLibroComprimido(libro, "libro.xyz")) {
            if (leida.Name == tabla && leida.defecto) {
                EXPECT_NE(leida.defecto->descripcion().find("«libro.xyz»"), std::string::npos);
                throw ErrorMotor{*leida.defecto};
            }
        }
    };
    return FallaCon(numero, texto, nombrado);
}

std::vector<std::byte> BytesDeComprimido(const std::string& nombre) {
    return BytesDe(DatosDePrueba() / "datos" / "comprimidos" / nombre);
}

} // namespace varo::prueba
