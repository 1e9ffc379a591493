#include "sistema/ArchivoEntero.h"

#include "apoyo/Fallos.h"
#include "apoyo/Jornada.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

void Escribir(const fs::path& archivo, const std::string& texto) {
    std::ofstream{archivo, std::ios::binary} << texto;
}

std::ptrdiff_t Entradas(const fs::path& carpeta) {
    return std::distance(fs::directory_iterator{carpeta}, fs::directory_iterator{});
}

unsigned Modo(const fs::path& archivo) {
    struct stat estado {};
    EXPECT_EQ(stat(archivo.c_str(), &estado), 0);
    return estado.st_mode & 07777U;
}

std::string NoEscrito(const fs::path& archivo, const std::string& porque) {
    return "No se ha escrito «" + archivo.string() + "»: " + porque;
}

/// The only entry of the folder whose name starts with a dot.
fs::path Provisional(const fs::path& carpeta) {
    for (const auto& entrada : fs::directory_iterator{carpeta}) {
        if (entrada.path().filename().string().starts_with('.')) {
            return entrada.path();
        }
    }
    ADD_FAILURE() << "no hay ningún archivo provisional";
    return {};
}

/// A file that a killed run has left.
fs::path Resto(const fs::path& carpeta, const std::string& nombre = ".varo-0123456789abcdef.tmp") {
    Escribir(carpeta / nombre, "a medias");
    return carpeta / nombre;
}

TEST(ArchivoEntero, ElArchivoApareceAlPublicarlo) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    ArchivoEntero archivo{destino};
    archivo.escribir("nue");
    archivo.escribir("vo");
    EXPECT_FALSE(fs::exists(destino));
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
    archivo.publicar();
    EXPECT_EQ(LeerArchivo(destino), "nuevo");
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

TEST(ArchivoEntero, SinPublicarNoQuedaNadaYLoQueHabiaSigue) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    Escribir(destino, "viejo");
    {
        ArchivoEntero archivo{destino};
        archivo.escribir("a medias");
        EXPECT_EQ(LeerArchivo(destino), "viejo");
    }
    EXPECT_EQ(LeerArchivo(destino), "viejo");
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

TEST(ArchivoEntero, DosALaVezNoSeEstorban) {
    const CarpetaTemporal carpeta;
    ArchivoEntero uno{carpeta.ruta() / "salida.txt"};
    ArchivoEntero otro{carpeta.ruta() / "salida.txt"};
    uno.escribir("uno");
    otro.escribir("otro");
    otro.publicar();
    uno.publicar();
    EXPECT_EQ(LeerArchivo(carpeta.ruta() / "salida.txt"), "uno");
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

TEST(ArchivoEntero, UnDestinoQueNoSePuedeEscribirSeRechazaConSuRazon) {
    const CarpetaTemporal carpeta;
    fs::create_directory(carpeta.ruta() / "ocupado");
    Escribir(carpeta.ruta() / "archivo", "");
    fs::create_symlink("bucle", carpeta.ruta() / "bucle");
    struct Caso {
        fs::path destino;
        int numero;
        std::string porque;
    };
    const std::vector<Caso> casos{
        {carpeta.ruta() / "ocupado", 75, "es una carpeta"},
        {carpeta.ruta() / "", 75, "falta el nombre del archivo"},
        {carpeta.ruta() / "archivo" / "salida.txt", 76, "no existe su carpeta"},
        {carpeta.ruta() / "no_esta" / "salida.txt", 76, "no existe su carpeta"},
        {carpeta.ruta() / std::string(300, 'n'), 75, "su nombre es demasiado largo"},
        {carpeta.ruta() / "bucle", 75, "sus enlaces dan vueltas"},
        {"/dev/null", 75, "no es un archivo corriente"}};
    for (const auto& [destino, numero, porque] : casos) {
        EXPECT_TRUE(FallaCon<ErrorEjecucion>(numero, NoEscrito(destino, porque),
                                             [&, ruta = destino] { const ArchivoEntero archivo{ruta}; }));
    }
    EXPECT_EQ(Entradas(carpeta.ruta()), 3);
}

TEST(ArchivoEntero, DetrasDeUnEnlaceSeSustituyeElArchivo) {
    const CarpetaTemporal carpeta;
    Escribir(carpeta.ruta() / "real.txt", "viejo");
    fs::create_symlink("real.txt", carpeta.ruta() / "enlace.txt");
    ArchivoEntero archivo{carpeta.ruta() / "enlace.txt"};
    archivo.escribir("nuevo");
    archivo.publicar();
    EXPECT_TRUE(fs::is_symlink(carpeta.ruta() / "enlace.txt"));
    EXPECT_EQ(LeerArchivo(carpeta.ruta() / "real.txt"), "nuevo");
}

TEST(ArchivoEntero, UnEnlaceAUnArchivoQueNoEstaLoCrea) {
    const CarpetaTemporal carpeta;
    fs::create_symlink("real.txt", carpeta.ruta() / "enlace.txt");
    ArchivoEntero archivo{carpeta.ruta() / "enlace.txt"};
    archivo.escribir("nuevo");
    archivo.publicar();
    EXPECT_TRUE(fs::is_symlink(carpeta.ruta() / "enlace.txt"));
    EXPECT_EQ(LeerArchivo(carpeta.ruta() / "real.txt"), "nuevo");
}

// --- Modes ---

TEST(ArchivoEntero, ElModoDelArchivoSustituidoSeConserva) {
    for (const unsigned modo : {0600U, 0640U, 0664U, 0755U}) {
        const CarpetaTemporal carpeta;
        const auto destino = carpeta.ruta() / "salida.txt";
        Escribir(destino, "viejo");
        ASSERT_EQ(chmod(destino.c_str(), modo), 0);
        ArchivoEntero archivo{destino};
        EXPECT_EQ(Modo(Provisional(carpeta.ruta())), 0600U) << "hasta su sitio no lo lee nadie más";
        archivo.escribir("nuevo");
        archivo.publicar();
        EXPECT_EQ(Modo(destino), modo);
        EXPECT_EQ(LeerArchivo(destino), "nuevo");
    }
}

TEST(ArchivoEntero, UnArchivoNuevoTieneElModoDeCualquierOtro) {
    const CarpetaTemporal carpeta;
    Escribir(carpeta.ruta() / "otro.txt", "");
    ArchivoEntero archivo{carpeta.ruta() / "salida.txt"};
    archivo.publicar();
    EXPECT_EQ(Modo(carpeta.ruta() / "salida.txt"), Modo(carpeta.ruta() / "otro.txt"));
}

TEST(ArchivoEntero, UnoDeSoloLecturaSeRechazaTambienParaElAdministrador) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    Escribir(destino, "viejo");
    ASSERT_EQ(chmod(destino.c_str(), 0444), 0);
    EXPECT_TRUE(FallaCon<ErrorEjecucion>(fallo::accesoAlArchivo, NoEscrito(destino, "es de solo lectura"),
                                         [&] { const ArchivoEntero archivo{destino}; }));
    EXPECT_EQ(LeerArchivo(destino), "viejo");
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

/// Another person than the administrator, whom no permission stops.
class OtraPersona {
public:
    OtraPersona() {
        if (quien_ == 0) {
            EXPECT_EQ(seteuid(nadie), 0);
        }
    }
    OtraPersona(const OtraPersona&) = delete;
    OtraPersona& operator=(const OtraPersona&) = delete;
    ~OtraPersona() { EXPECT_EQ(seteuid(quien_), 0); }

private:
    static constexpr uid_t nadie = 65534;
    uid_t quien_ = geteuid();
};

TEST(ArchivoEntero, SinPermisoEnLaCarpetaSeRechaza) {
    const CarpetaTemporal carpeta;
    ASSERT_EQ(chmod(carpeta.ruta().c_str(), 0555), 0);
    {
        const OtraPersona otra;
        const auto destino = carpeta.ruta() / "salida.txt";
        EXPECT_TRUE(FallaCon<ErrorEjecucion>(fallo::accesoAlArchivo,
                                             NoEscrito(destino, "no hay permiso para escribir en su carpeta"),
                                             [&] { const ArchivoEntero archivo{destino}; }));
    }
    ASSERT_EQ(chmod(carpeta.ruta().c_str(), 0755), 0);
}

// --- A write that fails ---

/// No file grows past these bytes.
class TamanoLimitado {
public:
    explicit TamanoLimitado(rlim_t bytes) {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &antes_), 0);
        const rlimit limite{bytes, antes_.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limite), 0);
    }
    TamanoLimitado(const TamanoLimitado&) = delete;
    TamanoLimitado& operator=(const TamanoLimitado&) = delete;
    ~TamanoLimitado() {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &antes_), 0);
        EXPECT_NE(std::signal(SIGXFSZ, alPasarse_), SIG_ERR);
    }

private:
    rlimit antes_{};
    void (*alPasarse_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(ArchivoEntero, UnaEscrituraQueNoCabeSeDiceYLoQueHabiaSigue) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    Escribir(destino, "viejo");
    {
        const TamanoLimitado limite{1000};
        ArchivoEntero archivo{destino};
        archivo.escribir(std::string(900, 'x'));
        EXPECT_TRUE(FallaCon<ErrorEjecucion>(
            fallo::accesoAlArchivo, NoEscrito(destino, "pasa del tamaño que el sistema permite a un archivo"),
            [&] { archivo.escribir(std::string(900, 'x')); }));
    }
    EXPECT_EQ(LeerArchivo(destino), "viejo");
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

TEST(ArchivoEntero, UnDestinoQueSeVuelveCarpetaFallaAlPublicarYNoQuedaNada) {
    const CarpetaTemporal carpeta;
    const auto destino = carpeta.ruta() / "salida.txt";
    {
        ArchivoEntero archivo{destino};
        fs::create_directory(destino);
        EXPECT_TRUE(FallaCon<ErrorEjecucion>(fallo::accesoAlArchivo, NoEscrito(destino, "es una carpeta"),
                                             [&] { archivo.publicar(); }));
    }
    EXPECT_EQ(Entradas(carpeta.ruta()), 1);
}

// --- What killed runs leave ---

TEST(ArchivoEntero, LosRestosDeUnaCorridaMuertaSeBarren) {
    const CarpetaTemporal carpeta;
    const auto resto = Resto(carpeta.ruta());
    const ArchivoEntero archivo{carpeta.ruta() / "salida.txt"};
    EXPECT_FALSE(fs::exists(resto));
}

TEST(ArchivoEntero, LoQueOtroEstaEscribiendoNoSeBarre) {
    const CarpetaTemporal carpeta;
    const auto ajeno = Resto(carpeta.ruta());
    const int descriptor = open(ajeno.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);
    {
        const ArchivoEntero archivo{carpeta.ruta() / "salida.txt"};
        EXPECT_TRUE(fs::exists(ajeno));
    }
    close(descriptor);
    const ArchivoEntero archivo{carpeta.ruta() / "salida.txt"};
    EXPECT_FALSE(fs::exists(ajeno));
}

TEST(ArchivoEntero, LoQueSoloSeParecePorElNombreNoSeBarre) {
    const CarpetaTemporal carpeta;
    const std::vector<std::string> nombres{".varo-notas.tmp", ".varo-0123456789abcdef",
                                           "0123456789abcdef.tmp", ".varo-0123456789ABCDEF.tmp",
                                           ".varo-0123456789abcdef0.tmp"};
    for (const auto& nombre : nombres) {
        Resto(carpeta.ruta(), nombre);
    }
    fs::create_directory(carpeta.ruta() / ".varo-fedcba9876543210.tmp");
    Escribir(carpeta.ruta() / "mio.txt", "mio");
    fs::create_symlink("mio.txt", carpeta.ruta() / ".varo-00000000000000ff.tmp");
    const auto antes = Entradas(carpeta.ruta());
    { const ArchivoEntero archivo{carpeta.ruta() / "salida.txt"}; }
    EXPECT_EQ(Entradas(carpeta.ruta()), antes);
}

} // namespace
} // namespace varo::prueba
