// Cut and mutated texts: a whole table or an error, never anything between. And any table that is written as
// a text comes back as it was.
#include "motor/lectores/LectorCsv.h"

#include "apoyo/Utf16DePrueba.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <random>
#include <span>
#include <string>
#include <vector>

namespace varo {
namespace {

using Celdas = std::vector<std::vector<std::string>>;

std::vector<std::byte> EnBytes(const std::string& texto) {
    const auto bytes = std::as_bytes(std::span{texto});
    return {bytes.begin(), bytes.end()};
}

std::string UnaParcela(char separador, char marca) {
    std::string texto = "Arbol" + std::string{separador} + "X" + separador + "Año\n";
    for (int i = 0; i < 40; ++i) {
        texto += std::to_string(i) + separador + std::to_string(i * 7) + marca + "25" + separador +
                 (i % 3 == 0 ? "\"un \"\"roble\"\"\nviejo\"" : "31/12/2025") + "\n";
    }
    return texto;
}

std::vector<std::vector<std::byte>> TextosBuenos() {
    std::string utf16 = "\xFF\xFE";
    for (const char16_t unidad : prueba::AUtf16(UnaParcela(';', ','))) {
        utf16 += static_cast<char>(unidad & 0xFFU);
        utf16 += static_cast<char>(unidad >> 8U);
    }
    return {EnBytes(UnaParcela(',', '.')), EnBytes(UnaParcela(';', ',')),
            EnBytes("\xEF\xBB\xBF" + UnaParcela('\t', ',')), EnBytes(utf16)};
}

TEST(LectorCsvHostil, UnTextoMutadoSeLeeEnteroODaError) {
    std::mt19937 azar{20251231}; // NOLINT(cert-msc51-cpp): the same mutations every time
    std::size_t leidos = 0;
    std::size_t conError = 0;
    for (const auto& texto : TextosBuenos()) {
        for (int vez = 0; vez < 2000; ++vez) {
            ++(prueba::TextoEnteroOError(prueba::Mutado(texto, azar)) ? leidos : conError);
        }
    }
    EXPECT_GT(leidos, 500U);
    EXPECT_GT(conError, 500U);
}

TEST(LectorCsvHostil, UnTextoCortadoEnCualquierByteSeLeeODaError) {
    std::size_t leidos = 0;
    for (const auto& texto : TextosBuenos()) {
        for (std::size_t corte = 1; corte < texto.size(); ++corte) {
            leidos += prueba::TextoEnteroOError(std::span{texto.data(), corte}) ? 1 : 0;
        }
    }
    EXPECT_GT(leidos, 1000U);
}

TEST(LectorCsvHostil, OtraCosaNoEsUnTexto) {
    std::mt19937 azar{7}; // NOLINT(cert-msc51-cpp): the same bytes every time
    for (int vez = 0; vez < 200; ++vez) {
        std::vector<std::byte> bytes(600);
        for (auto& byte : bytes) {
            byte = static_cast<std::byte>(azar());
        }
        EXPECT_FALSE(prueba::TextoEnteroOError(bytes));
    }
}

/// In quotes, so that any letter may stand in it.
std::string EntreComillas(const std::string& celda) {
    std::string texto = "\"";
    for (const char letra : celda) {
        texto += letra == '"' ? "\"\"" : std::string{letra};
    }
    return texto + "\"";
}

/// Texts that are no numbers, dates or truth values.
rc::Gen<std::string> UnTexto() {
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
                            "a", "Z", " ", "ñ", "€", "😀", "\"", ",", ";", "\t", "\n", "\r\n", ".", "7")),
                        [](const std::vector<std::string>& letras) {
                            std::string texto = "x";
                            for (const auto& letra : letras) {
                                texto += letra;
                            }
                            // Lines with separators would pass for rows that a lost quote has swallowed.
                            if (texto.find('\n') != std::string::npos) {
                                std::erase_if(texto,
                                              [](char c) { return c == ',' || c == ';' || c == '\t'; });
                            }
                            return texto;
                        });
}

RC_GTEST_PROP(LectorCsvHostil, UnaTablaVuelveComoSeEscribio, ()) {
    const auto columnas = *rc::gen::inRange<std::size_t>(2, 6);
    const auto filas =
        *rc::gen::container<Celdas>(*rc::gen::inRange<std::size_t>(1, 10),
                                    rc::gen::container<std::vector<std::string>>(columnas, UnTexto()));
    const char separador = *rc::gen::element(',', ';', '\t');
    std::string texto;
    for (std::size_t i = 0; i < columnas; ++i) {
        texto += (i == 0 ? "" : std::string{separador}) + "Campo" + std::to_string(i);
    }
    for (const auto& fila : filas) {
        texto += "\r\n";
        for (std::size_t i = 0; i < columnas; ++i) {
            texto += (i == 0 ? "" : std::string{separador}) + EntreComillas(fila[i]);
        }
    }
    const auto tablas = LeerCsv(std::as_bytes(std::span{texto}), "p.csv", "p");
    RC_ASSERT(tablas.at(0).filas.size() == filas.size());
    for (std::size_t i = 0; i < filas.size(); ++i) {
        for (std::size_t j = 0; j < columnas; ++j) {
            RC_ASSERT(tablas[0].filas[i][j] == Valor{filas[i][j]});
        }
    }
}

} // namespace
} // namespace varo
