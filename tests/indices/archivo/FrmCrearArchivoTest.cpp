#include "indices/archivo/FrmCrearArchivo.h"

#include "apoyo/Jornada.h"
#include "data/Hojadedatos.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <fstream>

namespace varo::prueba {
namespace {

/// A run over the square with ChN and ChDmax, and the dialog on show in the test's folder.
struct Guardado : Jornada {
    Guardado() {
        abrirParcela(CuadradoConCentro());
        cambiarOpciones([this](OpcionesPrograma& opciones) {
            usuario.clic(opciones.ChN);
            usuario.clic(opciones.ChDmax);
        });
        dibujarCuadrado();
        pedir();
    }
    void pedir() {
        usuario.clic(programa.tocar<FrmMapa>().mnuIndices);
        dialogo().DirLista.Path(carpeta.ruta().string());
    }
    FrmCrearArchivo& dialogo() { return programa.tocar<FrmCrearArchivo>(); }
    void guardarComo(const std::string& nombre) {
        usuario.escribir(dialogo().TxtLista, nombre);
        servicios.esperarMensaje(carpeta.archivo(nombre) + " fue creado correctamente");
        usuario.clic(dialogo().CmdAceptar);
    }
};

const std::string cabecera = "N\xBAOrden\tN\xBA"
                             "Arbol\tPies/ha\tdi/dmax\r\n";
const std::string cincoFilas = "1\t1\t300,00\t1,00\r2\t2\t300,00\t0,80\r3\t3\t300,00\t0,60\r"
                               "4\t4\t300,00\t0,40\r5\t5\t300,00\t0,50\r\r\n";

TEST(FrmCrearArchivo, EmpiezaConElComodin) {
    Guardado guardado;
    EXPECT_EQ(guardado.dialogo().TxtLista.Text(), "*.txt");
}

TEST(FrmCrearArchivo, EscribeCabeceraYFilasByteAByte) {
    Guardado guardado;
    guardado.guardarComo("indices.txt");
    EXPECT_EQ(LeerArchivo(guardado.carpeta.archivo("indices.txt")), cabecera + cincoFilas);
    EXPECT_EQ(guardado.servicios.mensajes().back().titulo, "Creado archivo");
    EXPECT_EQ(guardado.programa.cargada<FrmCrearArchivo>(), nullptr);
    EXPECT_TRUE(guardado.programa.fallosAlGuardar.empty());
}

TEST(FrmCrearArchivo, SinFilasQuedanLaCabeceraYUnaLineaVacia) {
    Guardado guardado;
    guardado.programa.tocar<Hojadedatos>().MSFlexGrid1.Rows(1);
    guardado.guardarComo("indices.txt");
    EXPECT_EQ(LeerArchivo(guardado.carpeta.archivo("indices.txt")), cabecera + "\r\n");
}

TEST(FrmCrearArchivo, CancelarNoEscribeNada) {
    Guardado guardado;
    guardado.usuario.clic(guardado.dialogo().CmdCancelar);
    EXPECT_EQ(guardado.programa.cargada<FrmCrearArchivo>(), nullptr);
    EXPECT_FALSE(std::filesystem::exists(guardado.carpeta.archivo("*.txt")));
}

struct Existente : Guardado {
    Existente() { std::ofstream{carpeta.archivo("viejo.txt")} << "viejo"; }
    void responder(int respuesta) {
        usuario.escribir(dialogo().TxtLista, "viejo.txt");
        servicios.esperarMensaje("viejo.txt ya existe. ¿Desea escribir sobre él?", respuesta);
        if (respuesta != mensaje::respondeNo) {
            servicios.esperarMensaje(carpeta.archivo("viejo.txt") + " fue creado correctamente");
        }
        usuario.clic(dialogo().CmdAceptar);
    }
    std::string contenido() { return LeerArchivo(carpeta.archivo("viejo.txt")); }
};

TEST(FrmCrearArchivo, DecirQueNoDejaElArchivoComoEstaba) {
    Existente existente;
    existente.responder(mensaje::respondeNo);
    EXPECT_EQ(existente.contenido(), "viejo");
    EXPECT_TRUE(existente.dialogo().Visible());
    EXPECT_EQ(existente.servicios.mensajes().back().titulo, "El archivo ya existe");
    EXPECT_EQ(existente.servicios.mensajes().back().opciones, 67);
}

TEST(FrmCrearArchivo, CancelarLaPreguntaSobrescribeComoElSi) {
    Existente si;
    si.responder(mensaje::respondeSi);
    EXPECT_EQ(si.contenido(), cabecera + cincoFilas);
    Existente cancelar;
    cancelar.responder(mensaje::respondeCancelar);
    EXPECT_EQ(cancelar.contenido(), cabecera + cincoFilas);
}

TEST(FrmCrearArchivo, ElComodinEsUnMalNombreYAunAsiSeDespide) {
    Guardado guardado;
    const char* const malo = "*.txt no es un nombre correcto";
    // The opening and both prints fail, each one is told, and the farewell comes all the same.
    for (int sentencia = 0; sentencia < 3; ++sentencia) {
        guardado.servicios.esperarMensaje(malo);
    }
    guardado.servicios.esperarMensaje(guardado.carpeta.archivo("*.txt") + " fue creado correctamente");
    guardado.servicios.esperarMensaje("No se ha escrito «" + guardado.carpeta.archivo("*.txt") +
                                      "»: su nombre no puede llevar * ? \" < > |.");
    guardado.usuario.clic(guardado.dialogo().CmdAceptar);
    EXPECT_TRUE(guardado.servicios.todoPedido());
    EXPECT_EQ(guardado.programa.fallosAlGuardar.size(), 3U);
    EXPECT_FALSE(std::filesystem::exists(guardado.carpeta.archivo("*.txt")));
}

// --- What was not written ---

/// A name under which no file can be opened: both prints fail for want of one.
void EsperarSinAbrir(Guardado& guardado, const std::string& nombre, const std::string& porque) {
    guardado.usuario.escribir(guardado.dialogo().TxtLista, nombre);
    if (std::filesystem::exists(guardado.carpeta.archivo(nombre)) && !nombre.empty()) {
        guardado.servicios.esperarMensaje(nombre + " ya existe. ¿Desea escribir sobre él?",
                                          mensaje::respondeSi);
    }
    guardado.servicios.esperarMensaje(nombre + " no es un nombre correcto");
    guardado.servicios.esperarMensaje(nombre + " no es un nombre correcto");
    guardado.servicios.esperarMensaje(guardado.carpeta.archivo(nombre) + " fue creado correctamente");
    guardado.servicios.esperarMensaje("No se ha escrito «" + guardado.carpeta.archivo(nombre) +
                                      "»: " + porque);
    guardado.usuario.clic(guardado.dialogo().CmdAceptar);
    EXPECT_TRUE(guardado.servicios.todoPedido());
    EXPECT_EQ(guardado.servicios.mensajes().back().titulo, "Archivo no escrito");
    EXPECT_EQ(guardado.servicios.mensajes().back().opciones, mensaje::critico);
}

TEST(FrmCrearArchivo, SinNombreLaUltimaCajaDiceQueNoSeHaEscrito) {
    Guardado guardado;
    EsperarSinAbrir(guardado, "", "falta el nombre del archivo.");
}

TEST(FrmCrearArchivo, ConElNombreDeUnaCarpetaLaUltimaCajaLoDice) {
    Guardado guardado;
    std::filesystem::create_directory(guardado.carpeta.archivo("sub"));
    EsperarSinAbrir(guardado, "sub", "es una carpeta.");
}

TEST(FrmCrearArchivo, EnUnaCarpetaQueYaNoEstaLaUltimaCajaLoDice) {
    Guardado guardado;
    EsperarSinAbrir(guardado, "no_esta/indices.txt", "no existe su carpeta.");
    EXPECT_EQ(guardado.programa.fallosAlGuardar.front().numero(), 76);
}

TEST(FrmCrearArchivo, UnArchivoDeSoloLecturaQuedaComoEstaba) {
    Guardado guardado;
    const std::string fijo = guardado.carpeta.archivo("fijo.txt");
    std::ofstream{fijo} << "fijo";
    std::filesystem::permissions(fijo, std::filesystem::perms::owner_read);
    EsperarSinAbrir(guardado, "fijo.txt", "es de solo lectura. El archivo anterior queda como estaba.");
    EXPECT_EQ(guardado.programa.fallosAlGuardar.front().numero(), 75);
    EXPECT_EQ(LeerArchivo(fijo), "fijo");
}

TEST(FrmCrearArchivo, LaParcelaAbiertaNoPuedeSerElArchivoDeResultados) {
    Guardado guardado;
    const std::string antes = LeerArchivo(guardado.carpeta.archivo("parcela.xls"));
    EsperarSinAbrir(guardado, "parcela.xls",
                    "es la parcela que está abierta. El archivo anterior queda como estaba.");
    EXPECT_EQ(guardado.programa.fallosAlGuardar.front().numero(), 70);
    EXPECT_EQ(LeerArchivo(guardado.carpeta.archivo("parcela.xls")), antes);
    // By another of its names neither.
    guardado.pedir();
    std::filesystem::create_symlink("parcela.xls", guardado.carpeta.archivo("enlace.txt"));
    EsperarSinAbrir(guardado, "enlace.txt",
                    "es la parcela que está abierta. El archivo anterior queda como estaba.");
    EXPECT_EQ(guardado.programa.fallosAlGuardar.front().numero(), 70);
    EXPECT_EQ(LeerArchivo(guardado.carpeta.archivo("parcela.xls")), antes);
}

/// A file on a disk that is full from a byte on; one that is full when all is to be put on it, too.
class ArchivoEnDiscoLleno : public ArchivoNuevo {
public:
    ArchivoEnDiscoLleno(std::string ruta, std::size_t caben) : ruta_{std::move(ruta)}, caben_{caben} {}
    void escribir(const std::string& bytes) override {
        escritos_ += bytes.size();
        if (escritos_ > caben_) {
            lleno();
        }
    }
    void publicar() override { lleno(); }

private:
    [[noreturn]] void lleno() const {
        throw ErrorEjecucion{fallo::discoLleno, "No se ha escrito «" + ruta_ + "»: disco lleno"};
    }
    std::string ruta_;
    std::size_t caben_;
    std::size_t escritos_ = 0;
};

TEST(FrmCrearArchivo, ConElDiscoLlenoSeDespideYLaUltimaCajaDiceLaVerdad) {
    const std::vector<std::pair<std::size_t, std::size_t>> casos{{0, 2}, {40, 1}, {1000, 1}};
    for (const auto& [caben, fallos] : casos) {
        Guardado guardado;
        guardado.servicios.crear = [cuantos = caben](const std::string& ruta) {
            return std::make_unique<ArchivoEnDiscoLleno>(ruta, cuantos);
        };
        guardado.servicios.esperarMensaje(guardado.carpeta.archivo("indices.txt") +
                                          " fue creado correctamente");
        guardado.servicios.esperarMensaje("No se ha escrito «" + guardado.carpeta.archivo("indices.txt") +
                                          "»: disco lleno.");
        guardado.usuario.escribir(guardado.dialogo().TxtLista, "indices.txt");
        guardado.usuario.clic(guardado.dialogo().CmdAceptar);
        EXPECT_TRUE(guardado.servicios.todoPedido());
        EXPECT_EQ(guardado.programa.fallosAlGuardar.size(), fallos) << caben;
        EXPECT_FALSE(std::filesystem::exists(guardado.carpeta.archivo("indices.txt")));
    }
}

TEST(FrmCrearArchivo, UnaCasillaEncendidaTrasLaCorridaNoTieneVectorYSePasaPorAlto) {
    Guardado guardado;
    guardado.opciones().ChAB.Value = 1;
    guardado.guardarComo("indices.txt");
    const std::string texto = LeerArchivo(guardado.carpeta.archivo("indices.txt"));
    EXPECT_EQ(texto.substr(0, texto.find('\r')), "N\xBAOrden\tN\xBA"
                                                 "Arbol\tPies/ha\tABha\tdi/dmax");
    EXPECT_EQ(texto.substr(texto.find('\n') + 1), cincoFilas) << "sus celdas no están";
    EXPECT_EQ(guardado.programa.fallosAlGuardar.size(), 5U);
}

TEST(FrmCrearArchivo, UnVectorDeUnaCorridaMasCortaSeLeeHastaDondeLlega) {
    Guardado guardado;
    guardado.programa.resultados.IndDmax.redimensionar(2);
    guardado.guardarComo("indices.txt");
    const std::string texto = LeerArchivo(guardado.carpeta.archivo("indices.txt"));
    EXPECT_EQ(texto.substr(texto.find('\n') + 1),
              "1\t1\t300,00\t0,00\r2\t2\t300,00\t0,00\r3\t3\t300,00\t0,00\r4\t4\t300,00\r5\t5\t300,00\r\r\n");
}

TEST(FrmCrearArchivo, LosNumerosDeArbolSonLosDeSuColumnaYFueraDeLaPaginaDeCodigosVaUnaInterrogacion) {
    Guardado guardado;
    guardado.programa.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(2, 1, "ñ→");
    guardado.guardarComo("indices.txt");
    const std::string texto = LeerArchivo(guardado.carpeta.archivo("indices.txt"));
    EXPECT_NE(texto.find("\r2\t\xF1?\t300,00"), std::string::npos);
}

TEST(FrmCrearArchivo, CambiarDeCarpetaCambiaLaListaDeArchivosYElClicTomaElNombre) {
    Guardado guardado;
    std::ofstream{guardado.carpeta.archivo("otro.txt")} << "x";
    const auto otra = guardado.carpeta.ruta() / "sub";
    std::filesystem::create_directory(otra);
    std::ofstream{otra / "dentro.txt"} << "x";
    auto& dialogo = guardado.dialogo();
    dialogo.DirLista.Path(otra.string());
    EXPECT_EQ(dialogo.FilLista.Path(), otra.string());
    ASSERT_EQ(dialogo.FilLista.ListCount(), 1);
    guardado.usuario.elegir(dialogo.FilLista, 0);
    EXPECT_EQ(dialogo.TxtLista.Text(), "dentro.txt");
}

TEST(FrmCrearArchivo, UnaUnidadQueFallaSeReintentaOSeDeja) {
    Guardado guardado;
    auto& dialogo = guardado.dialogo();
    const std::string antes = dialogo.DirLista.Path();
    guardado.servicios.esperarMensaje("Cierra la puerta de la unidad", mensaje::respondeReintentar);
    guardado.servicios.esperarMensaje("Cierra la puerta de la unidad", mensaje::respondeCancelar);
    dialogo.DrvLista.Drive = guardado.carpeta.archivo("no-hay");
    EXPECT_TRUE(guardado.servicios.todoPedido());
    EXPECT_EQ(guardado.servicios.mensajes().back(),
              (ServiciosPreparados::Mensaje{"Cierra la puerta de la unidad", "Disco no preparado", 21}));
    EXPECT_EQ(dialogo.DirLista.Path(), antes);
    dialogo.DrvLista.Drive = guardado.carpeta.ruta().root_path().string();
    EXPECT_EQ(dialogo.DirLista.Path(), guardado.carpeta.ruta().root_path().string());
}

} // namespace
} // namespace varo::prueba
