#include "formularios/ListasDeArchivos.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace varo {

namespace {

namespace fs = std::filesystem;

std::string PorQueNoSeLee(const std::error_code& error) {
    if (error == std::errc::permission_denied) {
        return ": no hay permiso para leerla";
    }
    if (error == std::errc::no_such_file_or_directory) {
        return ": no existe";
    }
    return error == std::errc::not_a_directory ? ": no es una carpeta" : "";
}

/// The names in a folder, sorted, of the entries that pass.
template <class Condicion>
std::vector<std::string> Nombres(const std::string& ruta, Condicion condicion) {
    std::error_code error;
    fs::directory_iterator entrada{fs::path{ruta}, error};
    std::vector<std::string> nombres;
    for (; !error && entrada != fs::directory_iterator{}; entrada.increment(error)) {
        std::error_code sinTipo;
        if (condicion(*entrada, sinTipo)) {
            nombres.push_back(entrada->path().filename().string());
        }
    }
    if (error) {
        throw ErrorEjecucion{fallo::dispositivoNoDisponible,
                             "No se puede leer la carpeta «" + ruta + "»" + PorQueNoSeLee(error)};
    }
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

/// The selected line; the empty text when none is.
std::string LineaElegida(const Lista& lista) {
    for (int i = 0; i < lista.ListCount(); ++i) {
        if (lista.Selected(i)) {
            return lista.List(i);
        }
    }
    return {};
}

std::vector<std::string> Archivos(const std::string& ruta) {
    return Nombres(ruta, [](const fs::directory_entry& entrada, std::error_code& error) {
        return entrada.is_regular_file(error);
    });
}

constexpr const char* carpetaSuperior = "..";

/// The way up, where there is one, and the folders that do not hide.
std::vector<std::string> Carpetas(const std::string& ruta) {
    auto carpetas = Nombres(ruta, [](const fs::directory_entry& entrada, std::error_code& error) {
        return entrada.is_directory(error) && !entrada.path().filename().string().starts_with('.');
    });
    if (fs::path{ruta}.has_relative_path()) {
        carpetas.insert(carpetas.begin(), carpetaSuperior);
    }
    return carpetas;
}

/// The folder of the process, or the root where that one cannot be read.
std::string CarpetaActual() {
    std::error_code error;
    const fs::path actual = fs::current_path(error);
    if (!error) {
        const fs::directory_iterator lectura{actual, error};
    }
    return error ? std::string{"/"} : actual.string();
}

} // namespace

ListaUnidades::ListaUnidades(Formulario& ventana, Identidad identidad)
    : Lista{ventana, std::move(identidad), false}, Drive{*this,
                                                         fs::path{CarpetaActual()}.root_path().string()} {
    AddItem(Drive);
    Click = [this] { Drive = LineaElegida(*this); };
}

void ListaUnidades::alCambiar(const void* propiedad) {
    avisar();
    if (propiedad == &Drive) {
        Lanzar(Change);
    }
}

ListaCarpetas::ListaCarpetas(Formulario& ventana, Identidad identidad)
    : Lista{ventana, std::move(identidad), false} {
    DblClick = [this] { entrar(); };
    Path(CarpetaActual());
}

void ListaCarpetas::entrar() {
    const std::string elegida = LineaElegida(*this);
    if (elegida.empty()) {
        return;
    }
    const fs::path actual{ruta_};
    Path((elegida == carpetaSuperior ? actual.parent_path() : actual / elegida).string());
}

void ListaCarpetas::Path(const std::string& ruta) {
    if (ruta == ruta_) {
        return;
    }
    const auto carpetas = Carpetas(ruta);
    ruta_ = ruta;
    lineas(carpetas);
    Lanzar(Change);
}

ListaArchivos::ListaArchivos(Formulario& ventana, Identidad identidad)
    : Lista{ventana, std::move(identidad), false} {
    Path(CarpetaActual());
}

void ListaArchivos::Path(const std::string& ruta) {
    const auto archivos = Archivos(ruta);
    ruta_ = ruta;
    lineas(archivos);
}

std::string ListaArchivos::FileName() const {
    return LineaElegida(*this);
}

} // namespace varo
