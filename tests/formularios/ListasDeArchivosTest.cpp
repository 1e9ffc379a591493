#include "formularios/ListasDeArchivos.h"

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/ComoOtraPersona.h"
#include "apoyo/Fallos.h"
#include "formularios/Usuario.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace varo {

namespace {

std::vector<std::string> lineas(const Lista& lista) {
    std::vector<std::string> textos;
    for (int linea = 0; linea < lista.ListCount(); ++linea) {
        textos.push_back(lista.List(linea));
    }
    return textos;
}

/// A folder with the files b.txt and a.txt and the folders z and y.
struct ConCarpeta : Banco {
    prueba::CarpetaTemporal carpeta;

    ConCarpeta() {
        carpeta.Escribir("b.txt", "b");
        carpeta.Escribir("a.txt", "a");
        std::filesystem::create_directory(carpeta / "z");
        std::filesystem::create_directory(carpeta / "y");
    }
};

/// A window with a list of files in view.
struct VentanaDeArchivos : VentanaAnotada {
    explicit VentanaDeArchivos(ProgramaDePrueba& programa)
        : VentanaAnotada{programa, "Archivos", TipoVentana::Libre} {}

    ListaArchivos FilLista{*this, "FilLista"};
    ListaCarpetas DirLista{*this, "DirLista"};
};

} // namespace

TEST(ListasDeArchivos, LaDeArchivosDaSoloLosArchivosPorOrden) {
    ConCarpeta banco;
    ListaArchivos lista{banco.ventana, "FilLista"};
    lista.Path(banco.carpeta.ruta().string());
    EXPECT_EQ(lineas(lista), (std::vector<std::string>{"a.txt", "b.txt"}));
    EXPECT_EQ(lista.Path(), banco.carpeta.ruta().string());
}

TEST(ListasDeArchivos, LaDeCarpetasDaLaDeArribaYLasQueNoSeEsconden) {
    ConCarpeta banco;
    std::filesystem::create_directory(banco.carpeta / ".oculta");
    ListaCarpetas lista{banco.ventana, "DirLista"};
    lista.Change = banco.anotador("Change");
    lista.Path(banco.carpeta.ruta().string());
    EXPECT_EQ(lineas(lista), (std::vector<std::string>{"..", "y", "z"}));
    EXPECT_EQ(banco.visto(), Diario{"Change"});
    lista.Path(banco.carpeta.ruta().string());
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(ListasDeArchivos, UnaCarpetaQueNoSePuedeLeerFallaYNadaCambia) {
    ConCarpeta banco;
    ListaCarpetas carpetas{banco.ventana, "DirLista"};
    ListaArchivos archivos{banco.ventana, "FilLista"};
    const std::string ruta = banco.carpeta.ruta().string();
    carpetas.Path(ruta);
    archivos.Path(ruta);
    carpetas.Change = banco.anotador("Change");
    const std::string noHay = banco.carpeta.archivo("no-hay");
    EXPECT_EQ(FalloDe([&] { carpetas.Path(noHay); }), fallo::dispositivoNoDisponible);
    EXPECT_EQ(FalloDe([&] { archivos.Path(noHay); }), fallo::dispositivoNoDisponible);
    EXPECT_EQ(carpetas.Path(), ruta);
    EXPECT_EQ(archivos.Path(), ruta);
    EXPECT_EQ(lineas(carpetas).size(), 3U);
    EXPECT_EQ(lineas(archivos).size(), 2U);
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(ListasDeArchivos, UnaCarpetaSinPermisoFallaYSeDicePorQue) {
    ConCarpeta banco;
    ListaCarpetas carpetas{banco.ventana, "DirLista"};
    ListaArchivos archivos{banco.ventana, "FilLista"};
    const std::string cerrada = banco.carpeta.archivo("y");
    std::filesystem::permissions(cerrada, std::filesystem::perms::none);
    const auto seDice = [](const std::string& porque, const auto& sentencia) {
        EXPECT_TRUE(prueba::FallaCon<ErrorEjecucion>(fallo::dispositivoNoDisponible,
                                                     "No se puede leer la carpeta «" + porque, sentencia));
    };
    seDice("/no-hay»: no existe", [&] { carpetas.Path("/no-hay"); });
    const prueba::ComoOtraPersona otra;
    seDice(cerrada + "»: no hay permiso para leerla", [&] { carpetas.Path(cerrada); });
    seDice(cerrada + "»: no hay permiso para leerla", [&] { archivos.Path(cerrada); });
}

TEST(ListasDeArchivos, EnUnaCarpetaActualQueNoSePuedeLeerSeEmpiezaEnLaRaiz) {
    using std::filesystem::perms;
    constexpr perms deTodos = perms::others_read | perms::others_exec;
    if ((std::filesystem::status("/").permissions() & deTodos) != deTodos) {
        GTEST_SKIP() << "en este sistema la raíz tampoco es de todos";
    }
    ConCarpeta banco;
    const auto aqui = std::filesystem::current_path();
    std::filesystem::current_path(banco.carpeta / "y");
    std::filesystem::permissions(banco.carpeta / "y", std::filesystem::perms::none);
    std::string carpeta;
    {
        const prueba::ComoOtraPersona otra;
        carpeta = ListaCarpetas{banco.ventana, "DirLista"}.Path();
    }
    std::filesystem::current_path(aqui);
    EXPECT_EQ(carpeta, "/");
}

TEST(ListasDeArchivos, ElArchivoElegidoEsElUltimoQueSePulsa) {
    ConCarpeta banco;
    auto& ventana = banco.programa.tocar<VentanaDeArchivos>();
    ventana.Show();
    ventana.FilLista.Path(banco.carpeta.ruta().string());
    EXPECT_EQ(ventana.FilLista.FileName(), "");
    Usuario usuario{banco.programa};
    usuario.elegir(ventana.FilLista, 0);
    usuario.elegir(ventana.FilLista, 1);
    EXPECT_EQ(ventana.FilLista.FileName(), "b.txt");
    usuario.elegir(ventana.FilLista, 0);
    EXPECT_EQ(ventana.FilLista.FileName(), "a.txt");
}

TEST(ListasDeArchivos, ElDobleClicEntraEnLaCarpetaElegidaYVuelveASubir) {
    ConCarpeta banco;
    auto& ventana = banco.programa.tocar<VentanaDeArchivos>();
    ventana.Show();
    const std::string ruta = banco.carpeta.ruta().string();
    ventana.DirLista.Path(ruta);
    Usuario usuario{banco.programa};
    usuario.dobleClic(ventana.DirLista);
    EXPECT_EQ(ventana.DirLista.Path(), ruta) << "sin línea elegida no se va a ninguna parte";
    usuario.elegir(ventana.DirLista, 2);
    usuario.dobleClic(ventana.DirLista);
    EXPECT_EQ(ventana.DirLista.Path(), ruta + "/z");
    EXPECT_EQ(lineas(ventana.DirLista), std::vector<std::string>{".."});
    usuario.elegir(ventana.DirLista, 0);
    usuario.dobleClic(ventana.DirLista);
    EXPECT_EQ(ventana.DirLista.Path(), ruta);
}

TEST(ListasDeArchivos, UnaPersonaVaAUnaCarpetaSinPerderElFoco) {
    ConCarpeta banco;
    auto& ventana = banco.programa.tocar<VentanaDeArchivos>();
    ventana.Show();
    Usuario usuario{banco.programa};
    usuario.clic(ventana.FilLista);
    usuario.irA(ventana.DirLista, banco.carpeta.archivo("z"));
    EXPECT_EQ(ventana.DirLista.Path(), banco.carpeta.archivo("z"));
    EXPECT_EQ(banco.programa.foco(), &ventana.FilLista);
    ventana.DirLista.Enabled = false;
    EXPECT_THROW(usuario.irA(ventana.DirLista, "/"), ActoImposible);
}

TEST(ListasDeArchivos, LaRaizNoTieneCarpetaDeArriba) {
    Banco banco;
    ListaCarpetas lista{banco.ventana, "DirLista"};
    lista.Path(std::filesystem::current_path().root_path().string());
    const auto carpetas = lineas(lista);
    EXPECT_EQ(std::count(carpetas.begin(), carpetas.end(), ".."), 0);
}

TEST(ListasDeArchivos, ElegirUnaUnidadVaAElla) {
    Banco banco;
    ListaUnidades lista{banco.ventana, "DrvLista"};
    lista.Drive = "otra";
    lista.Selected(0, true);
    lista.Click();
    EXPECT_EQ(lista.Drive(), std::filesystem::current_path().root_path().string());
}

TEST(ListasDeArchivos, LaDeUnidadesOfreceLaRaizYCambiarDeUnidadLanzaChange) {
    Banco banco;
    ListaUnidades lista{banco.ventana, "DrvLista"};
    lista.Change = banco.anotador("Change");
    const std::string raiz = std::filesystem::current_path().root_path().string();
    EXPECT_EQ(lineas(lista), std::vector<std::string>{raiz});
    EXPECT_EQ(lista.Drive(), raiz);
    lista.Drive = raiz;
    EXPECT_EQ(banco.visto(), Diario{});
    lista.Drive = "otra";
    EXPECT_EQ(banco.visto(), Diario{"Change"});
}

} // namespace varo
