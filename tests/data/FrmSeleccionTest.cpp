#include "data/FrmSeleccion.h"

#include "apoyo/EscritorMdb.h"
#include "apoyo/Jornada.h"
#include "apoyo/OyenteDePrueba.h"
#include "data/Hojadedatos.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace varo::prueba {
namespace {

using T = std::string;

const char* const noEncontrada = "No se ha encontrado la hoja seleccionada. Intente de nuevo";

Valor texto(const T& t) {
    return Valor{t};
}

std::vector<std::vector<std::string>> Celdas(const Rejilla& rejilla) {
    std::vector<std::vector<std::string>> celdas;
    celdas.reserve(static_cast<std::size_t>(rejilla.Rows()));
    for (int fila = 0; fila < rejilla.Rows(); ++fila) {
        auto& textos = celdas.emplace_back();
        textos.reserve(static_cast<std::size_t>(rejilla.Cols()));
        for (int columna = 0; columna < rejilla.Cols(); ++columna) {
            textos.push_back(rejilla.TextMatrix(fila, columna));
        }
    }
    return celdas;
}

struct HojaAbierta : Jornada {
    explicit HojaAbierta(const Filas& filas) { abrirParcela(filas); }
    Hojadedatos& hoja() { return programa.tocar<Hojadedatos>(); }
    Rejilla& rejilla() { return hoja().MSFlexGrid1; }
};

TEST(FrmSeleccion, LlevaSusLeyendas) {
    Jornada jornada;
    const auto& ventana = jornada.programa.tocar<FrmSeleccion>();
    EXPECT_EQ(ventana.Caption(), "Localización de los datos");
    EXPECT_EQ(ventana.Label1.Caption(), "Seleccione la hoja que contiene los datos");
    EXPECT_EQ(ventana.CmdAceptar.Caption(), "Aceptar");
    EXPECT_EQ(ventana.CmdCancelar.Caption(), "Cancelar");
    EXPECT_TRUE(ventana.CboHoja.editable());
}

TEST(FrmSeleccion, UnaHojaDeTresCamposPierdeElUltimo) {
    HojaAbierta abierta{{{texto("X"), texto("Y"), texto("CAP")}, {1.5, 2.25, 30.0}, {texto("a"), {}, 40.0}}};
    EXPECT_EQ(Celdas(abierta.rejilla()),
              (std::vector<std::vector<std::string>>{
                  {"Nº de punto", "X", "Y", "CAP"}, {"1", "1,5", "2,25", ""}, {"2", "a", "", ""}}));
    EXPECT_GT(abierta.rejilla().ColWidth(1), 0);
    EXPECT_GT(abierta.rejilla().ColWidth(2), 0);
    EXPECT_EQ(abierta.rejilla().ColWidth(3), 0) << "una columna sin datos se oculta";
}

TEST(FrmSeleccion, UnaHojaDeDosCamposMuestraElPrimeroYOcultaElSegundo) {
    HojaAbierta abierta{{{texto("A"), texto("B")}, {1.0, 2.0}}};
    EXPECT_EQ(Celdas(abierta.rejilla()),
              (std::vector<std::vector<std::string>>{{"Nº de punto", "A", "B"}, {"1", "1", ""}}));
    EXPECT_EQ(abierta.rejilla().ColWidth(2), 0);
}

TEST(FrmSeleccion, UnaHojaConUnSoloCampoDejaUnaFila) {
    HojaAbierta abierta{{{texto("A")}, {1.0}, {2.0}, {3.0}}};
    EXPECT_EQ(abierta.rejilla().Rows(), 2);
    EXPECT_EQ(abierta.rejilla().TextMatrix(0, 1), "A");
    EXPECT_EQ(abierta.rejilla().TextMatrix(1, 0), "3");
    EXPECT_EQ(abierta.rejilla().TextMatrix(1, 1), "");
}

TEST(FrmSeleccion, UnaTablaDeFilasVaciasDejaUnaFila) {
    // Only the last field holds something, and its data never arrive.
    HojaAbierta abierta{{{texto("A"), texto("B"), texto("C")}, {{}, {}, 1.0}, {{}, {}, 2.0}}};
    EXPECT_EQ(abierta.rejilla().Rows(), 2);
}

TEST(FrmSeleccion, LasFilasVaciasSeVanYLaNumeracionConservaSusHuecos) {
    HojaAbierta abierta{{{texto("A"), texto("B"), texto("Z")},
                         {1.0, 10.0, {}},
                         {{}, {}, texto("z")},
                         {{}, {}, {}},
                         {2.0, {}, {}},
                         {{}, {}, texto("z")},
                         {{}, {}, texto("z")}}};
    EXPECT_EQ(Celdas(abierta.rejilla()),
              (std::vector<std::vector<std::string>>{
                  {"Nº de punto", "A", "B", "Z"}, {"1", "1", "10", ""}, {"4", "2", "", ""}}));
}

TEST(FrmSeleccion, CadaColumnaTieneElAnchoDelTextoMasAnchoMasElMargen) {
    HojaAbierta abierta{{{texto("Nombre"), texto("Y"), texto("Z")}, {texto("ab"), texto("abcdefgh"), {}}}};
    EXPECT_EQ(abierta.rejilla().ColWidth(0), 6 * 75 + 100) << "la columna 0 se mide con el primer campo";
    EXPECT_EQ(abierta.rejilla().ColWidth(1), 6 * 75 + 100);
    EXPECT_EQ(abierta.rejilla().ColWidth(2), 8 * 75 + 100);
}

TEST(FrmSeleccion, ElAnchoDeUnaColumnaCuentaLetrasYNoBytes) {
    HojaAbierta abierta{{{texto("ñ"), texto("Y"), texto("Z")}, {texto("ñandúes"), texto("á"), {}}}};
    EXPECT_EQ(abierta.rejilla().ColWidth(0), 1 * 75 + 100);
    EXPECT_EQ(abierta.rejilla().ColWidth(1), 7 * 75 + 100);
    EXPECT_EQ(abierta.rejilla().ColWidth(2), 1 * 75 + 100);
}

TEST(FrmSeleccion, UnaNotaLargaNoImpideAbrirLaHojaYSuColumnaNoPasaDe32767) {
    const std::string corta(435, 'n');
    const std::string justa(436, 'n');
    const std::string larga(20000, 'n');
    HojaAbierta abierta{
        {{texto("A"), texto("B"), texto("C"), texto("Z")}, {texto(corta), texto(justa), texto(larga), {}}}};
    EXPECT_TRUE(abierta.hoja().Visible());
    EXPECT_EQ(abierta.rejilla().ColWidth(1), 435 * 75 + 100);
    EXPECT_EQ(abierta.rejilla().ColWidth(2), 32767);
    EXPECT_EQ(abierta.rejilla().ColWidth(3), 32767);
    EXPECT_EQ(abierta.rejilla().TextMatrix(1, 3), larga);
}

TEST(FrmSeleccion, AlAceptarSeVeLaHojaConSuTitulo) {
    HojaAbierta abierta{CuadradoConCentro()};
    EXPECT_EQ(abierta.hoja().Caption(), "Parcela1$ parcela.xls");
    EXPECT_TRUE(abierta.hoja().Visible());
    EXPECT_TRUE(abierta.rejilla().Visible());
    EXPECT_EQ(abierta.programa.activa(), &abierta.hoja());
    const auto& seleccion = abierta.programa.tocar<FrmSeleccion>();
    EXPECT_FALSE(seleccion.Visible());
    EXPECT_EQ(seleccion.CboHoja.Text(), "Parcela1$");
    EXPECT_EQ(seleccion.MousePointer(), Formulario::punteroNormal);
    EXPECT_EQ(abierta.rejilla().ColSel(), 0);
}

TEST(FrmSeleccion, AceptarConNingunaAvisaYDejaElDialogo) {
    Jornada jornada;
    jornada.abrirLibro({{"Parcela1", CuadradoConCentro()}});
    auto& seleccion = jornada.programa.tocar<FrmSeleccion>();
    jornada.servicios.esperarMensaje(noEncontrada);
    jornada.usuario.clic(seleccion.CmdAceptar);
    EXPECT_EQ(jornada.servicios.mensajes().back(),
              (ServiciosPreparados::Mensaje{noEncontrada, "Hoja no encontrada", 48}));
    EXPECT_TRUE(seleccion.Visible());
    EXPECT_EQ(seleccion.MousePointer(), Formulario::punteroNormal);
    EXPECT_EQ(jornada.programa.foco(), &seleccion.CboHoja);
    EXPECT_TRUE(jornada.marco().mnuAbrir.Enabled());
    EXPECT_FALSE(jornada.marco().mnuMapa.Enabled());
    ASSERT_TRUE(seleccion.ultimoFallo().has_value());

    jornada.aceptarHoja("Parcela1$");
    EXPECT_FALSE(seleccion.Visible());
    EXPECT_FALSE(seleccion.ultimoFallo().has_value());
}

TEST(FrmSeleccion, UnaHojaVaciaDaElMismoMensaje) {
    Jornada jornada;
    jornada.abrirLibro({{"Vacia", {}}, {"SoloCabecera", {{texto("A"), texto("B")}}}});
    auto& seleccion = jornada.programa.tocar<FrmSeleccion>();
    for (const char* const hoja : {"Vacia$", "SoloCabecera$", "Otra$"}) {
        jornada.servicios.esperarMensaje(noEncontrada);
        jornada.aceptarHoja(hoja);
        EXPECT_TRUE(seleccion.Visible()) << hoja;
    }
}

/// A database up to the choice of the table.
void AbrirBase(Jornada& jornada, const BaseMdb& base) {
    EscribirArchivoMdb(jornada.carpeta / "parcela.mdb", base);
    jornada.servicios.prepararArchivo(jornada.carpeta.archivo("parcela.mdb"));
    jornada.usuario.clic(jornada.marco().mnuAbrir);
}

TEST(FrmSeleccion, LaTablaDeUnaBaseDeDatosLlenaLaRejilla) {
    Jornada jornada;
    const std::vector<CampoMdb> campos{{"Arbol", TipoMdb::EnteroLargo}, {"Copa", TipoMdb::Simple},
                                       {"Viva", TipoMdb::Booleano},     {"Visita", TipoMdb::FechaHora},
                                       {"Precio", TipoMdb::Moneda},     {"Nota"}};
    AbrirBase(jornada, {{{"Otra", {{"a"}}, {}},
                         {"Parcela 1",
                          campos,
                          {{7.0, 12.3, true, Fecha{46022}, 12.5, texto("x")},
                           {8.0, Nulo{}, Nulo{}, Fecha{46022.25}, Nulo{}, texto("y")}}}}});
    const auto& seleccion = jornada.programa.tocar<FrmSeleccion>();
    ASSERT_EQ(seleccion.CboHoja.ListCount(), 2);
    EXPECT_EQ(seleccion.CboHoja.List(0), "Otra");
    EXPECT_EQ(seleccion.CboHoja.List(1), "Parcela 1");
    EXPECT_EQ(seleccion.CboHoja.Text(), "(ninguna)");
    jornada.aceptarHoja("Parcela 1");
    auto& hoja = jornada.programa.tocar<Hojadedatos>();
    EXPECT_EQ(hoja.Caption(), "Parcela 1 parcela.mdb");
    EXPECT_EQ(
        Celdas(hoja.MSFlexGrid1),
        (std::vector<std::vector<T>>{{"Nº de punto", "Arbol", "Copa", "Viva", "Visita", "Precio", "Nota"},
                                     {"1", "7", "12,3", "Verdadero", "31/12/2025", "12,5", ""},
                                     {"2", "8", "", "Falso", "31/12/2025 6:00:00", "", ""}}));
}

TEST(FrmSeleccion, UnaTablaQueNoSePuedeLeerGuardaElPorQue) {
    Jornada jornada;
    TablaMdb vinculada{"De otro", {}, {}};
    vinculada.vinculada = true;
    AbrirBase(jornada, {{vinculada}});
    jornada.servicios.esperarMensaje(noEncontrada);
    jornada.aceptarHoja("De otro");
    const auto& fallo = jornada.programa.tocar<FrmSeleccion>().ultimoFallo();
    ASSERT_TRUE(fallo.has_value());
    EXPECT_NE(fallo->descripcion().find("está vinculada, y sus filas están en otro archivo"), T::npos);
}

TEST(FrmSeleccion, ElNombreTecleadoNoDistingueMayusculas) {
    Jornada jornada;
    jornada.abrirLibro({{"Parcela1", CuadradoConCentro()}});
    jornada.aceptarHoja("PARCELA1$");
    EXPECT_EQ(jornada.programa.tocar<Hojadedatos>().Caption(), "PARCELA1$ parcela.xls");
}

TEST(FrmSeleccion, CancelarSueltaElArchivoYDejaLosMenus) {
    Jornada jornada;
    jornada.abrirLibro({{"Parcela1", CuadradoConCentro()}});
    jornada.usuario.clic(jornada.programa.tocar<FrmSeleccion>().CmdCancelar);
    EXPECT_EQ(jornada.programa.cargada<FrmSeleccion>(), nullptr);
    auto* const hoja = jornada.programa.cargada<Hojadedatos>();
    ASSERT_NE(hoja, nullptr);
    EXPECT_FALSE(hoja->Visible());
    EXPECT_EQ(hoja->Data1.DatabaseName(), "");
    EXPECT_EQ(hoja->Data1.RecordSource, "");
    EXPECT_TRUE(jornada.marco().mnuAbrir.Enabled());
    EXPECT_FALSE(jornada.marco().mnuCerrar.Enabled());
}

TEST(FrmSeleccion, TrasUnaHojaQueNoEstaQuedanElOrigenPuestoYLaRejillaComoEstaba) {
    HojaAbierta abierta{CuadradoConCentro()};
    const auto antes = Celdas(abierta.rejilla());
    auto& seleccion = abierta.programa.tocar<FrmSeleccion>();
    seleccion.Show();
    abierta.servicios.esperarMensaje(noEncontrada);
    abierta.aceptarHoja("Otra$");
    EXPECT_EQ(abierta.hoja().Data1.RecordSource, "Otra$");
    EXPECT_EQ(Celdas(abierta.rejilla()), antes);
}

TEST(FrmSeleccion, LaRejillaLlenaLaVentanaPorDentro) {
    HojaAbierta abierta{CuadradoConCentro()};
    EXPECT_EQ(abierta.rejilla().Width(), abierta.hoja().Width() - 50);
    EXPECT_EQ(abierta.rejilla().Height(), abierta.hoja().Height() - 400);
}

Filas FilasNumeradas(int filas) {
    Filas tabla{{texto("A"), texto("B")}};
    tabla.reserve(static_cast<std::size_t>(filas) + 1);
    for (int fila = 1; fila <= filas; ++fila) {
        tabla.push_back({static_cast<double>(fila), 0.0});
    }
    return tabla;
}

TEST(FrmSeleccion, Caben32766FilasYNiUnaMas) {
    Jornada jornada;
    jornada.abrirLibro({{"Justa", FilasNumeradas(32766)}, {"Larga", FilasNumeradas(32767)}});
    jornada.servicios.esperarMensaje(noEncontrada);
    jornada.aceptarHoja("Larga$");
    ASSERT_TRUE(jornada.programa.tocar<FrmSeleccion>().ultimoFallo().has_value());
    EXPECT_EQ(jornada.programa.tocar<FrmSeleccion>().ultimoFallo()->numero(), 6);
    EXPECT_EQ(jornada.programa.tocar<FrmSeleccion>().ultimoFallo()->causa(),
              "la hoja tiene 32.767 filas; el límite es 32.766");
    jornada.aceptarHoja("Justa$");
    const auto& rejilla = jornada.programa.tocar<Hojadedatos>().MSFlexGrid1;
    EXPECT_EQ(rejilla.Rows(), 32767);
    EXPECT_EQ(rejilla.TextMatrix(32766, 1), "32766");
}

TEST(Hojadedatos, LaRejillaSigueElTamanoDeLaVentana) {
    HojaAbierta abierta{CuadradoConCentro()};
    abierta.hoja().redimensionar(5000, 4000);
    EXPECT_EQ(abierta.rejilla().Width(), 4950);
    EXPECT_EQ(abierta.rejilla().Height(), 3600);
    abierta.hoja().redimensionar(20, 30);
    EXPECT_EQ(abierta.rejilla().Width(), -30);
    EXPECT_EQ(abierta.rejilla().Height(), -370);
}

std::vector<int> Anchos(const Rejilla& rejilla) {
    std::vector<int> anchos;
    for (int columna = 0; columna < rejilla.Cols(); ++columna) {
        anchos.push_back(rejilla.ColWidth(columna));
    }
    return anchos;
}

/// A workbook of a wide sheet, with a blank row, and a narrow one: the choice of the sheet is open.
struct DosHojas : Jornada {
    DosHojas() {
        Hoja ancha;
        ancha.nombre = "Ancha";
        ancha.celdas = {{texto("A"), texto("B"), texto("C"), texto("D"), texto("Z")},
                        {1.0, 2.0, texto("una celda larga"), 4.0, 5.0},
                        {{}, {}, {}, {}, 5.0},
                        {6.0, 7.0, 8.0, 9.0, 10.0}};
        Hoja estrecha;
        estrecha.nombre = "Estrecha";
        estrecha.celdas = {{texto("X"), texto("Y"), texto("Z")}, {1.0, 2.0, 3.0}};
        abrirLibro({ancha, estrecha});
    }
    FrmSeleccion& seleccion() { return programa.tocar<FrmSeleccion>(); }
    Hojadedatos& hoja() { return programa.tocar<Hojadedatos>(); }
    Rejilla& rejilla() { return hoja().MSFlexGrid1; }
    std::size_t oirHoja(const T& nombre, std::optional<std::size_t> cancelarEn) {
        OyenteDePrueba oyente;
        oyente.cancelarEn = cancelarEn;
        servicios.oyente = &oyente;
        aceptarHoja(nombre);
        servicios.oyente = nullptr;
        EXPECT_EQ(oyente.etapas, std::vector<T>{"Hoja «" + nombre + "»"});
        return oyente.oidos;
    }
};

TEST(FrmSeleccion, LaCopiaDeUnaHojaSePuedeCancelarEnCualquierPaso) {
    DosHojas entera;
    const std::size_t pasos = entera.oirHoja("Ancha$", std::nullopt);
    ASSERT_GE(pasos, 6U); // three rows to copy, as many to look at
    for (std::size_t paso = 1; paso <= pasos; ++paso) {
        DosHojas abierta;
        const auto celdas = Celdas(abierta.rejilla());
        const auto anchos = Anchos(abierta.rejilla());
        EXPECT_EQ(abierta.oirHoja("Ancha$", paso), paso);
        EXPECT_EQ(Celdas(abierta.rejilla()), celdas) << paso;
        EXPECT_EQ(Anchos(abierta.rejilla()), anchos) << paso;
        EXPECT_EQ(abierta.hoja().Data1.RecordSource, "") << paso;
        EXPECT_FALSE(abierta.hoja().Visible()) << paso;
        EXPECT_TRUE(abierta.seleccion().Visible()) << paso;
        EXPECT_EQ(abierta.seleccion().MousePointer(), Formulario::punteroNormal) << paso;
        EXPECT_EQ(abierta.seleccion().CboHoja.Text(), "Ancha$") << paso;
        EXPECT_FALSE(abierta.seleccion().ultimoFallo()) << paso;
        EXPECT_TRUE(abierta.servicios.mensajes().empty()) << paso;
        EXPECT_FALSE(abierta.marco().mnuMapa.Enabled()) << paso;
        // Nothing of the wide sheet shows in the narrow one, whose last column nobody writes.
        abierta.aceptarHoja("Estrecha$");
        EXPECT_EQ(Celdas(abierta.rejilla()),
                  (std::vector<std::vector<T>>{{"Nº de punto", "X", "Y", "Z"}, {"1", "1", "2", ""}}));
        EXPECT_TRUE(abierta.hoja().Visible());
    }
}

TEST(FrmSeleccion, TrasCancelarSeCopiaLaMismaHojaEntera) {
    DosHojas entera;
    entera.aceptarHoja("Ancha$");
    DosHojas abierta;
    abierta.oirHoja("Ancha$", 2);
    abierta.aceptarHoja("Ancha$");
    EXPECT_EQ(Celdas(abierta.rejilla()), Celdas(entera.rejilla()));
    EXPECT_EQ(Anchos(abierta.rejilla()), Anchos(entera.rejilla()));
    EXPECT_EQ(abierta.rejilla().Row(), entera.rejilla().Row());
    EXPECT_EQ(abierta.rejilla().Col(), entera.rejilla().Col());
}

} // namespace
} // namespace varo::prueba
