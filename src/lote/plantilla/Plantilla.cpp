#include "lote/plantilla/Plantilla.h"

#include "indices/ResultadosIndices.h"
#include "lote/plantilla/CodigosDeTabla.h"
#include "lote/plantilla/Propuesta.h"
#include "map/FrmFormato.h"
#include "motor/BaseDatos.h"

#include <algorithm>
#include <array>
#include <vector>

namespace varo {

namespace {

/// A text of TOML, quotes included.
std::string EntreComillas(std::string_view texto) {
    static constexpr std::string_view cifras = "0123456789ABCDEF";
    std::string escrito = "\"";
    for (const char c : texto) {
        const auto codigo = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            escrito += '\\';
            escrito += c;
        } else if (codigo < ' ' || codigo == 0x7F) {
            escrito += "\\u00";
            escrito += cifras[codigo / 16U];
            escrito += cifras[codigo % 16U];
        } else {
            escrito += c;
        }
    }
    return escrito + "\"";
}

/// A key of TOML: bare where it may be.
std::string Clave(const std::string& texto) {
    const bool suelta = !texto.empty() && std::ranges::all_of(texto, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '-';
    });
    return suelta ? texto : EntreComillas(texto);
}

/// "#RRGGBB"
std::string ColorEscrito(Color color) {
    static constexpr std::string_view cifras = "0123456789ABCDEF";
    auto resto = static_cast<unsigned>(color);
    std::string escrito = "#";
    for (int byte = 0; byte < 3; ++byte, resto >>= 8U) {
        escrito += cifras[(resto >> 4U) & 0xFU];
        escrito += cifras[resto & 0xFU];
    }
    return escrito;
}

std::string SinDolar(const std::string& tabla) {
    return tabla.ends_with('$') ? tabla.substr(0, tabla.size() - 1) : tabla;
}

struct PapelExplicado {
    const char* papel;
    const char* explicacion;
};

/// What a job says of one kind of crown data.
struct CopaExplicada {
    DatosDeCopa datos;
    std::vector<PapelExplicado> papeles;
    std::vector<const char*> opciones;
};

constexpr const char* conElipses = "OptElipse = true  # las copas son elipses; si no, Optcirc (círculos)";

const std::array<CopaExplicada, 3> copas{{
    {DatosDeCopa::CuatroRadios,
     {{"N", "radio de copa hacia el norte"},
      {"E", "radio de copa hacia el este"},
      {"S", "radio de copa hacia el sur"},
      {"O", "radio de copa hacia el oeste"}},
     {"Opt4R = true      # cuatro radios por copa; si no, Opt2D (dos diámetros) u OptRM (radio medio)",
      conElipses}},
    {DatosDeCopa::DosDiametros,
     {{"NS", "diámetro de copa norte-sur"}, {"EO", "diámetro de copa este-oeste"}},
     {"Opt2D = true      # dos diámetros por copa; si no, Opt4R (cuatro radios) u OptRM (radio medio)",
      conElipses}},
    {DatosDeCopa::RadioMedio,
     {{"Radio", "radio medio de copa"}},
     {"OptRM = true      # un radio medio por copa; si no, Opt4R (cuatro radios) u Opt2D (dos diámetros)"}},
}};

const CopaExplicada& Explicada(DatosDeCopa datos) {
    return *std::ranges::find(copas, datos, &CopaExplicada::datos);
}

class Redactor {
public:
    Redactor(const std::filesystem::path& archivo, const Coleccion<Tabla>& tablas)
        : archivo_{std::filesystem::absolute(archivo).lexically_normal()}, tablas_{tablas} {
        for (const auto& candidata : tablas_) {
            auto propuesta = ProponerPapeles(candidata);
            if (tabla_ == nullptr || propuesta.papeles.size() > propuesta_.papeles.size()) {
                tabla_ = &candidata;
                propuesta_ = std::move(propuesta);
            }
        }
        if (tabla_ == nullptr) {
            throw ErrorMotor{fallo::elementoNoEncontrado, "No hay tablas en «" + archivo.string() + "»"};
        }
    }

    std::string redactar() {
        linea("# Un trabajo de varo-lote. Se corre con:  varo-lote ESTE_ARCHIVO.toml");
        linea("");
        parcela();
        columnas();
        descripcion();
        indices();
        familias();
        formato();
        linea("[salida]");
        linea("resultados = \"indices.txt\"   # junto a este archivo, o en la carpeta de --salida");
        linea("# datos = \"datos.txt\"        # las cifras de la ventana «Datos de parcela»");
        linea("# mapa = \"mapa.svg\"          # o .pdf, .png, .txt (sus figuras, una por renglón); o varios: "
              "[ \"a.svg\", \"a.txt\" ]");
        return std::move(texto_);
    }

private:
    void linea(const std::string& contenido) { texto_ += contenido + "\n"; }

    [[nodiscard]] bool propuesto(const char* papel) const { return propuesta_.papeles.contains(papel); }

    void parcela() {
        linea("archivo = " + EntreComillas(archivo_.string()));
        linea("hoja = " + EntreComillas(tabla_->Name));
        for (const auto& otra : tablas_) {
            if (&otra != tabla_) {
                linea("# hoja = " + EntreComillas(otra.Name));
            }
        }
        linea("");
    }

    void columnas() {
        linea("# Papel = cabecera de su columna en la hoja, o su número. Las cabeceras:");
        int columna = 0;
        for (const auto& campo : tabla_->Fields) {
            ++columna;
            linea("#   " + std::to_string(columna) + "  " + EntreComillas(campo.Name) +
                  (columna == tabla_->Fields.Count() ? "   (la última: sus datos no se leen)" : ""));
        }
        linea("[columnas]");
        papel("X", "coordenada X del pie, en metros");
        papel("Y", "coordenada Y del pie, en metros");
        for (const auto& [nombre, explicacion] : Explicada(propuesta_.copa).papeles) {
            papel(nombre, explicacion);
        }
        if (propuesto("Indice")) {
            papel("Indice", "número del árbol, que encabeza su fila en los resultados");
        } else {
            linea("Indice = 0   # número del árbol: el de su fila en la hoja");
        }
        papel("Codigo", "código que distingue las especies o los tipos de árbol; con ChCodigo = 1");
        papel("DAP", "dimensión del pie: su circunferencia o su diámetro");
        linea("");
    }

    /// A role without a proposal stands as a comment.
    void papel(const char* nombre, const char* explicacion) {
        const auto propuesto = propuesta_.papeles.find(nombre);
        if (propuesto == propuesta_.papeles.end()) {
            linea("# " + std::string{nombre} + " = \"\"   # " + explicacion);
        } else {
            linea(std::string{nombre} + " = " + EntreComillas(propuesto->second) + "   # " + explicacion);
        }
    }

    void descripcion() {
        linea("[opciones]");
        linea("Optdecim = true   # las copas se miden en decímetros; si no, Optcm u Optmetro");
        for (const char* const opcion : Explicada(propuesta_.copa).opciones) {
            linea(opcion);
        }
        linea(propuesta_.esCircunferencia
                  ? "OptCAP = true     # el pie se mide por su circunferencia; si no, OptDAP (diámetro)"
                  : "OptDAP = true     # el pie se mide por su diámetro; si no, OptCAP (circunferencia)");
        linea("OptCMDIA = true   # en centímetros; si no, OptDMDIA (decímetros) u OptMDIA (metros)");
        linea(propuesto("Codigo") ? "ChCodigo = 1      # hay una columna de código; si no, 0"
                                  : "ChCodigo = 0      # no hay columna de código; si la hay, 1");
        linea("");
    }

    void indices() {
        linea("# Índices independientes de la distancia: 1 los pide. Menos el primero, necesitan el papel "
              "DAP.");
        for (const auto& columna : columnasIndependientes) {
            const bool pedido = propuesto("DAP") || columna.familia == Independiente::N;
            linea(std::string{columna.casilla} + " = " + (pedido ? "1" : "0") + "   # columna " +
                  columna.encabezado);
        }
        linea("");
    }

    /// The families that look at neighbours stand as comments: what each needs is the person's choice.
    void familias() {
        for (const char* const renglon : renglonesDeFamilias) {
            linea(renglon);
        }
        linea("");
    }

    /// Each code of the sheet with its own text, in the colour that it has by design.
    void formato() {
        linea("[formato]");
        linea("titulo = " + EntreComillas("Parcela " + SinDolar(tabla_->Name)));
        linea("# fuente = { nombre = \"Arial\", tamano = 14, negrita = true }   # y cursiva, tachado, "
              "subrayado");
        linea("# color = \"#400040\"");
        int turno = 0;
        for (const auto& codigo : codigos()) {
            linea("[formato.codigos." + Clave(codigo) + "]");
            linea("texto = " + EntreComillas(codigo) + "   # en la leyenda; con ella puede ir una fuente");
            linea("linea = " + EntreComillas(ColorEscrito(FrmFormato::colorDeLinea(turno++))));
            linea("# fondo = \"#D9F0D3\"   # rellena las copas de cuatro radios");
        }
        linea("");
    }

    [[nodiscard]] std::vector<std::string> codigos() const {
        const auto papel = propuesta_.papeles.find("Codigo");
        return papel == propuesta_.papeles.end() ? std::vector<std::string>{}
                                                 : CodigosDeTabla(*tabla_, papel->second);
    }

    static constexpr std::array renglonesDeFamilias{
        "# Índices de competencia entre vecinos: un renglón sin su # entra en el trabajo. Cada tres TxtBAF "
        "son",
        "# el primer valor, el último y el paso de un barrido; con un solo valor, el paso es 1.",
        "# ChSupCopa = 1           # ISC, superposición de copas",
        "# ChAOIActivar = 1        # AOI, superposición de áreas de influencia",
        "# \"TxtBAF1(6)\" = 1.0      # exponente k",
        "# \"TxtBAF2(6)\" = 1.0",
        "# \"TxtBAF3(6)\" = 1.0",
        "# LstAOI = [ { a = 0.5, b = 0.1, c = 1.0, d = 0.0, e = 0.0 } ]   # radio = a + b d^c + d d^e, d en "
        "cm",
        "# ChIDPActivar = 1        # IDP, densidad puntual",
        "# \"OptBAF(0)\" = true      # o OptRadioFijo(0), OptNumFijo(0) con TxtBAF1(1), OptFunc(0) con "
        "LstRich(0)",
        "# \"TxtBAF1(0)\" = 4.0      # factor de área basimétrica, m2/ha",
        "# \"TxtBAF2(0)\" = 4.0",
        "# \"TxtBAF3(0)\" = 1.0",
        "# ChDRActivar = 1         # DR, distancias ponderadas por dimensiones",
        "# \"OptNumFijo(1)\" = true  # o OptBAF(1), OptRadioFijo(1) con TxtBAF1(2), OptFunc(1) con "
        "LstRich(1)",
        "# \"TxtBAF1(3)\" = 4        # número de pies",
        "# \"TxtBAF2(3)\" = 4",
        "# \"TxtBAF3(3)\" = 1",
        "# \"TxtBAF1(4)\" = 1.0      # exponente k",
        "# \"TxtBAF2(4)\" = 1.0",
        "# \"TxtBAF3(4)\" = 1.0",
        "# LstDist = [ { tipo = \"HIP\", a = 1.0, b = 1.0, c = 1.0, d = 0.0, e = 0.0 } ]   # o \"EXP\"",
        "# ChAPA = 1               # APA, área potencialmente disponible",
        "# \"TxtBAF1(8)\" = 2.0      # exponente k",
        "# \"TxtBAF2(8)\" = 2.0",
        "# \"TxtBAF3(8)\" = 1.0"};

    std::filesystem::path archivo_; ///< absolute, so that the job works from any folder
    const Coleccion<Tabla>& tablas_;
    const Tabla* tabla_ = nullptr;
    Propuesta propuesta_;
    std::string texto_;
};

} // namespace

std::string PlantillaDeTrabajo(const std::filesystem::path& archivo) {
    const auto base = BaseDatos::abrir(archivo);
    return Redactor{archivo, base.TableDefs()}.redactar();
}

} // namespace varo
