#include "motor/lectores/ArchivoJet.h"

#include "basico/ErrorEjecucion.h"
#include "motor/lectores/Rc4.h"

#include <array>
#include <string_view>

namespace varo {
namespace {

constexpr std::string_view comienzo{"\0\1\0\0", 4};
constexpr std::size_t lugarVersion = 0x14;
constexpr int ultimaVersion = 6; // 0 is Jet 3, 1 Jet 4, those from 2 to 6 are ACE

// The header from here on is ciphered with a key that all databases share.
constexpr std::size_t lugarCifrado = 0x18;
constexpr std::size_t bytesCifradosJet3 = 126;
constexpr std::size_t bytesCifradosJet4 = 128;
constexpr std::array claveDeCabecera{std::byte{0xC7}, std::byte{0xDA}, std::byte{0x39}, std::byte{0x6B}};

// Places in the deciphered header.
constexpr std::size_t lugarPaginaDeCodigos = 0x3C;
constexpr std::size_t lugarClave = 0x3E;
constexpr std::size_t lugarContrasena = 0x42;
constexpr std::size_t bytesContrasenaJet3 = 20;
constexpr std::size_t bytesContrasenaJet4 = 40;
constexpr std::size_t lugarFechaDeCreacion = 0x72;

std::array<std::byte, 4> EnBytes(std::uint32_t numero) {
    return {static_cast<std::byte>(numero), static_cast<std::byte>(numero >> 8),
            static_cast<std::byte>(numero >> 16), static_cast<std::byte>(numero >> 24)};
}

/// The days up to the creation of a Jet 4 database hide its password: they stand where it has no letters.
std::array<std::byte, 4> MascaraDeContrasena(Bytes cabecera) {
    const double dias = LeerReal(cabecera, lugarFechaDeCreacion);
    const bool cabe = dias > -2147483649.0 && dias < 2147483648.0;
    return EnBytes(cabe ? static_cast<std::uint32_t>(static_cast<std::int32_t>(dias)) : 0x80000000U);
}

std::vector<std::byte> CabeceraDescifrada(Bytes archivo, bool jet3) {
    const std::size_t cifrados = jet3 ? bytesCifradosJet3 : bytesCifradosJet4;
    const auto bytes = Trozo(archivo, 0, lugarCifrado + cifrados);
    std::vector<std::byte> cabecera{bytes.begin(), bytes.end()};
    CifrarRc4(std::span{cabecera}.subspan(lugarCifrado), claveDeCabecera);
    return cabecera;
}

} // namespace

SitioDeFila LeerSitioDeFila(Bytes bytes, std::size_t lugar) {
    const auto sitio = LeerU32(bytes, lugar);
    return {sitio >> 8, sitio & 0xFF};
}

std::string PaginaDicha(std::uint32_t numero) {
    return "la página " + std::to_string(numero);
}

bool ArchivoJet::esJet(Bytes archivo) {
    return Lleva(archivo, 0, comienzo) && (Lleva(archivo, comienzo.size(), "Standard Jet DB") ||
                                           Lleva(archivo, comienzo.size(), "Standard ACE DB"));
}

ArchivoJet::ArchivoJet(Bytes archivo) : archivo_{archivo}, version_{LeerU8(archivo, lugarVersion)} {
    if (version_ > ultimaVersion) {
        throw ErrorMotor{fallo::formatoNoReconocido,
                         "es una base de datos de una versión de Access que no se conoce: guárdela en el "
                         "formato de Access 2002-2003 (.mdb)"};
    }
    const auto cabecera = CabeceraDescifrada(archivo, esJet3());
    paginaDeCodigos_ = LeerU16(cabecera, lugarPaginaDeCodigos);
    const auto clave = LeerU32(cabecera, lugarClave);
    const bool esAce = version_ > 1;
    if (esAce && clave != 0) {
        throw ErrorMotor{fallo::archivoCifrado, "es una base de datos de Access cifrada con una contraseña: "
                                                "quítesela en Access con «Descifrar base de datos»"};
    }
    comprobarContrasena(cabecera);
    if (clave != 0) {
        descodificar(clave);
    }
}

/// A password keeps people out and leaves the pages as they are; whoever set it does not want them read.
void ArchivoJet::comprobarContrasena(Bytes cabecera) const {
    const auto contrasena =
        Trozo(cabecera, lugarContrasena, esJet3() ? bytesContrasenaJet3 : bytesContrasenaJet4);
    const auto mascara = esJet3() ? EnBytes(0) : MascaraDeContrasena(cabecera);
    for (std::size_t i = 0; i < contrasena.size(); ++i) {
        if (contrasena[i] != mascara[i % mascara.size()]) {
            throw ErrorMotor{fallo::archivoCifrado,
                             "la base de datos está protegida con una contraseña: quítesela en Access con "
                             "«Anular contraseña de la base de datos»"};
        }
    }
}

/// Each page has a key: that of the database with the number of the page in it.
void ArchivoJet::descodificar(std::uint32_t clave) {
    descodificado_.assign(archivo_.begin(), archivo_.end());
    const std::span todo{descodificado_};
    for (std::uint32_t numero = 1; numero < paginas(); ++numero) {
        CifrarRc4(todo.subspan(numero * tamanoDePagina(), tamanoDePagina()), EnBytes(clave ^ numero));
    }
    archivo_ = descodificado_;
}

std::uint32_t ArchivoJet::paginas() const {
    return static_cast<std::uint32_t>(archivo_.size() / tamanoDePagina());
}

Bytes ArchivoJet::pagina(std::uint32_t numero) const {
    if (numero >= paginas()) {
        ArchivoDanado("falta " + PaginaDicha(numero) + "; el archivo acaba tras la " +
                      std::to_string(paginas()));
    }
    return archivo_.subspan(numero * tamanoDePagina(), tamanoDePagina());
}

Bytes ArchivoJet::pagina(std::uint32_t numero, ClasePaginaJet clase) const {
    const auto bytes = pagina(numero);
    if (LeerU8(bytes, 0) != static_cast<std::uint8_t>(clase)) {
        ArchivoDanado(PaginaDicha(numero) + " no es lo que debía");
    }
    return bytes;
}

} // namespace varo
