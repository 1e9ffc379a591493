#include "lote/recorrido/ArchivoEntero.h"

#include "apoyo/Fallos.h"
#include "apoyo/Jornada.h"

#include <gtest/gtest.h>

#include <fstream>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

void Escribir(const fs::path& archivo, const std::string& texto) {
    std::ofstream{archivo, std::ios::binary} << texto;
}

std::ptrdiff_t Entradas(const fs::path& carpeta) {
    return std::distance(fs::directory_iterator{carpeta}, fs::directory_iterator{});
}

TEST(ArchivoEntero, ElArchivoApareceAlPublicarlo) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    {
        ArchivoEntero archivo{destino};
        EXPECT_EQ(archivo.provisional(), archivo.carpeta() / "salida.txt");
        Escribir(archivo.provisional(), "nuevo");
        EXPECT_FALSE(fs::exists(destino));
        archivo.publicar();
        EXPECT_EQ(LeerArchivo(destino), "nuevo");
    }
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

TEST(ArchivoEntero, SinPublicarNoQuedaNadaYLoQueHabiaSigue) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    Escribir(destino, "viejo");
    {
        ArchivoEntero archivo{destino};
        Escribir(archivo.provisional(), "a medias");
        EXPECT_EQ(LeerArchivo(destino), "viejo");
    }
    EXPECT_EQ(LeerArchivo(destino), "viejo");
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

TEST(ArchivoEntero, DosALaVezNoSeEstorban) {
    const CarpetaTemporal carpeta;
    ArchivoEntero uno{carpeta.ruta() / "salida.txt"};
    ArchivoEntero otro{carpeta.ruta() / "salida.txt"};
    EXPECT_NE(uno.provisional(), otro.provisional());
}

TEST(ArchivoEntero, UnDestinoQueNoEsUnArchivoOQueNoPuedeTenerCarpetaSeRechaza) {
    const CarpetaTemporal carpeta;
    fs::create_directory(carpeta.ruta() / "ocupado");
    Escribir(carpeta.ruta() / "archivo", "");
    for (const fs::path& destino :
         {carpeta.ruta() / "ocupado", carpeta.ruta() / "archivo" / "salida.txt",
          carpeta.ruta() / "archivo" / "mas" / "salida.txt", fs::path{"/dev/null"}}) {
        try {
            const ArchivoEntero archivo{destino};
            ADD_FAILURE() << "debía fallar con " << destino;
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.numero(), 75);
        }
    }
    EXPECT_EQ(Entradas(carpeta.ruta()), 2);
}

TEST(ArchivoEntero, PublicarLoQueNoSeEscribioFallaYNoQuedaNada) {
    const CarpetaTemporal carpeta;
    {
        ArchivoEntero archivo{carpeta.ruta() / "salida.txt"};
        EXPECT_TRUE(FallaCon<ErrorEjecucion>(fallo::accesoAlArchivo,
                                             "No se puede escribir en «" +
                                                 (carpeta.ruta() / "salida.txt").string() + "»",
                                             [&] { archivo.publicar(); }));
    }
    EXPECT_EQ(Entradas(carpeta.ruta()), 0);
}

TEST(ArchivoEntero, DetrasDeUnEnlaceSeSustituyeElArchivo) {
    const CarpetaTemporal carpeta;
    Escribir(carpeta.ruta() / "real.txt", "viejo");
    fs::create_symlink("real.txt", carpeta.ruta() / "enlace.txt");
    ArchivoEntero archivo{carpeta.ruta() / "enlace.txt"};
    Escribir(archivo.provisional(), "nuevo");
    archivo.publicar();
    EXPECT_TRUE(fs::is_symlink(carpeta.ruta() / "enlace.txt"));
    EXPECT_EQ(LeerArchivo(carpeta.ruta() / "real.txt"), "nuevo");
}

} // namespace
} // namespace varo::prueba
