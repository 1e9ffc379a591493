#include "libros/ArchivoZip.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <array>
#include <zip.h>

namespace varo {
namespace {

// A sheet that is full of numbers unpacks to some ten times its size, one full of formatted blanks to fifty.
constexpr std::size_t minimoDesempaquetado = std::size_t{64} << 20U;
constexpr std::size_t vecesDesempaquetado = 100;
constexpr std::size_t maximoDesempaquetado = std::size_t{1024} << 20U;

std::size_t LoQueSeDesempaqueta(std::size_t empaquetado) {
    return std::min(maximoDesempaquetado, std::max(minimoDesempaquetado, vecesDesempaquetado * empaquetado));
}

/// Some programs write the names with the bars and the letters of another system.
std::string Igualado(std::string_view parte) {
    std::string nombre{parte};
    std::ranges::transform(nombre, nombre.begin(), [](char c) {
        return c == '\\' ? '/' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return nombre;
}

/// The result of a call that tells what went wrong through one of these.
class Fallido {
public:
    Fallido() { zip_error_init(&error_); }
    Fallido(const Fallido&) = delete;
    Fallido& operator=(const Fallido&) = delete;
    ~Fallido() { zip_error_fini(&error_); }

    operator zip_error_t*() { return &error_; } // NOLINT(google-explicit-constructor): as the calls take it

private:
    zip_error_t error_{};
};

[[noreturn]] void NoSeDesempaqueta(const std::string& parte, zip_error_t* error) {
    const int numero = zip_error_code_zip(error);
    if (numero == ZIP_ER_NOPASSWD || numero == ZIP_ER_ENCRNOTSUPP) {
        throw ErrorMotor{fallo::archivoCifrado,
                         "es un archivo comprimido con contraseña: descomprímalo y abra el libro que lleva "
                         "dentro"};
    }
    if (numero == ZIP_ER_COMPNOTSUPP) {
        throw ErrorMotor{fallo::formatoNoReconocido,
                         "su parte «" + parte + "» está comprimida de una manera que no se lee"};
    }
    ArchivoDanado("su parte «" + parte + "» no se puede descomprimir");
}

struct CerrarParte {
    void operator()(zip_file* parte) const { zip_fclose(parte); }
};

} // namespace

void ArchivoZip::Cerrar::operator()(zip* archivo) const {
    zip_discard(archivo);
}

bool ArchivoZip::esZip(Bytes bytes) {
    return Lleva(bytes, 0, "PK\3\4") || Lleva(bytes, 0, "PK\5\6");
}

ArchivoZip::ArchivoZip(Bytes bytes) : queda_{LoQueSeDesempaqueta(bytes.size())} {
    Fallido error;
    zip_source_t* const fuente = zip_source_buffer_create(bytes.data(), bytes.size(), 0, error);
    if (fuente == nullptr) {
        ArchivoDanado("no se puede leer");
    }
    archivo_.reset(zip_open_from_source(fuente, ZIP_RDONLY, error));
    if (!archivo_) {
        zip_source_free(fuente);
        ArchivoDanado("falta el índice de sus partes, que está al final");
    }
    const auto cuantas = zip_get_num_entries(archivo_.get(), 0);
    for (zip_int64_t i = 0; i < cuantas; ++i) {
        const auto lugar = static_cast<std::uint64_t>(i);
        if (const char* const nombre = zip_get_name(archivo_.get(), lugar, ZIP_FL_ENC_GUESS)) {
            lugares_.emplace(Igualado(nombre), lugar);
        }
    }
}

std::vector<std::string> ArchivoZip::nombres() const {
    std::vector<std::string> todos;
    const auto cuantas = zip_get_num_entries(archivo_.get(), 0);
    for (zip_int64_t i = 0; i < cuantas; ++i) {
        if (const char* const nombre =
                zip_get_name(archivo_.get(), static_cast<std::uint64_t>(i), ZIP_FL_ENC_GUESS)) {
            todos.emplace_back(nombre);
        }
    }
    return todos;
}

std::optional<std::uint64_t> ArchivoZip::buscar(std::string_view parte) const {
    const auto hallada = lugares_.find(Igualado(parte));
    return hallada == lugares_.end() ? std::nullopt : std::optional{hallada->second};
}

std::size_t ArchivoZip::tamano(std::string_view parte) const {
    const auto lugar = buscar(parte);
    zip_stat_t datos{};
    if (!lugar || zip_stat_index(archivo_.get(), *lugar, 0, &datos) != 0 ||
        (datos.valid & ZIP_STAT_SIZE) == 0) {
        return 0;
    }
    return datos.size;
}

void ArchivoZip::gastar(const std::string& parte, std::size_t bytes) const {
    if (bytes > queda_) {
        ArchivoDanado("su parte «" + parte + "» ocupa demasiado para el tamaño del archivo");
    }
    queda_ -= bytes;
}

void ArchivoZip::leer(const std::string& parte, const std::function<void(std::string_view)>& recibir) const {
    const auto lugar = buscar(parte);
    if (!lugar) {
        ArchivoDanado("le falta su parte «" + parte + "»");
    }
    if (tamano(parte) > queda_) {
        gastar(parte, tamano(parte)); // says so before anything is unpacked
    }
    const std::unique_ptr<zip_file, CerrarParte> abierta{zip_fopen_index(archivo_.get(), *lugar, 0)};
    if (!abierta) {
        NoSeDesempaqueta(parte, zip_get_error(archivo_.get()));
    }
    std::array<char, std::size_t{128} * 1024> trozo{};
    for (;;) {
        const auto leidos = zip_fread(abierta.get(), trozo.data(), trozo.size());
        if (leidos < 0) {
            NoSeDesempaqueta(parte, zip_file_get_error(abierta.get()));
        }
        if (leidos == 0) {
            return;
        }
        gastar(parte, static_cast<std::size_t>(leidos));
        recibir({trozo.data(), static_cast<std::size_t>(leidos)});
    }
}

std::string ArchivoZip::leerCorta(const std::string& parte, std::size_t maximo) const {
    std::string contenido;
    leer(parte, [&](std::string_view trozo) {
        contenido += trozo.substr(0, maximo - std::min(maximo, contenido.size()));
    });
    return contenido;
}

} // namespace varo
