#include "motor/lectores/PaginaDeDatosJet.h"

#include "apoyo/Fallos.h"
#include "apoyo/PaginasMdb.h"

#include <gtest/gtest.h>

#include <vector>

namespace varo {
namespace {

using prueba::FallaCon;
using prueba::MarcaDeFila;
using prueba::PaginasMdb;

std::vector<std::byte> FilaDe(std::size_t cuantos, int valor) {
    return std::vector<std::byte>(cuantos, static_cast<std::byte>(valor));
}

class DePagina : public testing::TestWithParam<int> {
protected:
    PaginasMdb paginas{GetParam()};
    std::uint32_t numero = paginas.nuevaDeFilas(9);

    /// Sets two bytes of the page, from `lugar` on.
    void poner(std::size_t lugar, unsigned valor) {
        paginas[numero][lugar] = static_cast<std::byte>(valor);
        paginas[numero][lugar + 1] = static_cast<std::byte>(valor >> 8U);
    }
    [[nodiscard]] std::size_t cuenta() const { return GetParam() == 0 ? 8 : 12; }

    void fallaCon(const char* texto, std::size_t fila = 0) {
        const auto bytes = paginas.cerrar();
        const ArchivoJet archivo{bytes};
        EXPECT_TRUE(FallaCon(fallo::archivoDanado, texto, [&] {
            (void)PaginaDeDatosJet{archivo, numero}.fila(fila);
        }));
    }
};

INSTANTIATE_TEST_SUITE_P(PaginaDeDatosJet, DePagina, testing::Values(0, 1));

TEST_P(DePagina, LasFilasVienenEnteras) {
    paginas.anadirFila(numero, FilaDe(3, 1));
    paginas.anadirFila(numero, FilaDe(0, 0));
    paginas.anadirFila(numero, FilaDe(100, 2));
    const auto bytes = paginas.cerrar();
    const ArchivoJet archivo{bytes};
    const PaginaDeDatosJet pagina{archivo, numero};
    EXPECT_EQ(9U, pagina.duena());
    EXPECT_FALSE(pagina.deValoresLargos());
    ASSERT_EQ(3U, pagina.filas());
    EXPECT_EQ(3U, pagina.fila(0).bytes.size());
    EXPECT_EQ(0U, pagina.fila(1).bytes.size());
    EXPECT_EQ(100U, pagina.fila(2).bytes.size());
    EXPECT_EQ(std::byte{2}, pagina.fila(2).bytes.front());
    EXPECT_EQ(std::byte{1}, FilaSenalada(archivo, {numero, 0}).bytes.back());
}

TEST_P(DePagina, LasMarcasDicenElEstado) {
    paginas.anadirFila(numero, FilaDe(1, 1));
    paginas.anadirFila(numero, FilaDe(1, 1), MarcaDeFila::Trasladada);
    paginas.anadirFila(numero, FilaDe(1, 1), MarcaDeFila::Acogida);
    paginas.anadirFila(numero, FilaDe(1, 1), MarcaDeFila::Borrada);
    const auto bytes = paginas.cerrar();
    const PaginaDeDatosJet pagina{ArchivoJet{bytes}, numero};
    EXPECT_EQ(EstadoDeFila::Presente, pagina.fila(0).estado);
    EXPECT_EQ(EstadoDeFila::Trasladada, pagina.fila(1).estado);
    EXPECT_EQ(EstadoDeFila::Acogida, pagina.fila(2).estado);
    EXPECT_EQ(EstadoDeFila::Borrada, pagina.fila(3).estado);
}

TEST_P(DePagina, LasDeValoresLargosLoDicen) {
    const auto larga = paginas.nuevaDeValoresLargos();
    const auto bytes = paginas.cerrar();
    EXPECT_TRUE((PaginaDeDatosJet{ArchivoJet{bytes}, larga}.deValoresLargos()));
}

TEST_P(DePagina, UnaFilaQueNoEstaSeDice) {
    paginas.anadirFila(numero, FilaDe(1, 1));
    fallaCon("no tiene la fila 1", 1);
}

TEST_P(DePagina, MasFilasDeLasQueCabenEstanDanadas) {
    poner(cuenta(), 0xFFFF);
    fallaCon("más filas de las que caben");
}

TEST_P(DePagina, UnaFilaQuePisaAOtraEstaDanada) {
    paginas.anadirFila(numero, FilaDe(8, 1));
    paginas.anadirFila(numero, FilaDe(8, 2));
    poner(cuenta() + 4, static_cast<unsigned>(paginas.tamano() - 2));
    fallaCon("una fila pisa a otra", 1);
}

TEST_P(DePagina, UnaFilaSobreLaListaDeLugaresEstaDanada) {
    paginas.anadirFila(numero, FilaDe(8, 1));
    poner(cuenta() + 2, 4);
    fallaCon("una fila pisa a otra");
}

} // namespace
} // namespace varo
