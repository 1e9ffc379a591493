#include "revision/RevisarCodigos.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"
#include "revision/Efectos.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace varo {

namespace {

/// Without what a person does not see at a glance: case, accents, blanks.
std::string EnBruto(std::string_view texto) {
    constexpr std::u32string_view conAcento = U"áàäâéèëêíìïîóòöôúùüûñç";
    constexpr std::u32string_view sinAcento = U"aaaaeeeeiiiioooouuuunc";
    std::string bruto;
    const std::string minusculas = Minusculas(texto);
    for (std::string_view resto = minusculas; !resto.empty();) {
        const char32_t letra = SacarUtf8(resto);
        if (letra == U' ' || letra == U'\t' || letra == U'\u00A0') {
            continue;
        }
        const auto lugar = conAcento.find(letra);
        AnadirUtf8(bruto, lugar == std::u32string_view::npos ? letra : sinAcento[lugar]);
    }
    return bruto;
}

/// A code as the grid shows it, its first row and whether any of its rows has a size.
struct CodigoDeLaHoja {
    std::string texto;
    std::size_t primera = 0;
    bool conTamano = false;
};

class RevisorDeCodigos {
public:
    RevisorDeCodigos(const Lectura& lectura, Cuaderno& cuaderno) : lectura_{lectura}, cuaderno_{cuaderno} {
        std::unordered_map<std::string, std::size_t> lugares;
        for (std::size_t i = 0; i < lectura.cuantas(); ++i) {
            if (columna().vacia(i) || lectura.esCabecera(i)) {
                continue;
            }
            const std::string texto = columna().texto(i);
            const auto [lugar, esNuevo] = lugares.try_emplace(texto, codigos_.size());
            if (esNuevo) {
                codigos_.push_back({texto, i});
            }
            codigos_[lugar->second].conTamano |= lectura.conTamano(i) && lectura.tamano().esNumero(i);
        }
    }

    void revisar() {
        if (!lectura_.arboles().empty() && codigos_.empty()) {
            anotarSinDatos();
        }
        revisarParecidos();
        if (lectura_.opciones().datosDeParcela) {
            for (const auto& codigo : codigos_) {
                revisarConsulta(codigo);
            }
        }
    }

private:
    [[nodiscard]] const ColumnaRevisada& columna() const { return lectura_.codigo(); }

    void anotarSinDatos() {
        const Indices afectados = IndicesDeLosPies(lectura_.opciones());
        Hallazgo hallazgo = EnColumna(afectados.empty() ? Gravedad::Mirar : Gravedad::Numeros,
                                      Sospecha::ColumnaSinDatos, columna().columna());
        hallazgo.que =
            "La columna «" + columna().columna().cabecera + "», la del código, no tiene ningún dato.";
        hallazgo.efecto = afectados.empty() ? "El mapa sale sin leyenda."
                                            : "No se cuenta ningún árbol en " + EnLista(afectados) + ".";
        hallazgo.remedio =
            "Elija otra columna para el código, o quite en las opciones la marca de que el archivo "
            "tiene códigos.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarParecidos() {
        const Gravedad gravedad = lectura_.opciones().datosDeParcela ? Gravedad::Numeros : Gravedad::Mirar;
        std::unordered_map<std::string, std::size_t> vistos;
        for (std::size_t n = 0; n < codigos_.size(); ++n) {
            const auto [otro, esNuevo] = vistos.try_emplace(EnBruto(codigos_[n].texto), n);
            if (esNuevo) {
                continue;
            }
            anotar(
                gravedad, Sospecha::CodigosParecidos, codigos_[n],
                "El código " + Cita(codigos_[n].texto) + " se parece a " +
                    Cita(codigos_[otro->second].texto) + " salvo en mayúsculas, blancos o acentos.",
                "Son dos códigos: en el mapa llevan colores distintos y en los datos de parcela se cuentan "
                "aparte.",
                "Si es la misma especie, escriba el código siempre igual.");
        }
    }

    void revisarConsulta(const CodigoDeLaHoja& codigo) {
        if (const std::string motivo = motivoSinConsulta(codigo); !motivo.empty()) {
            anotar(Gravedad::Fallo, Sospecha::CodigoSinConsulta, codigo, motivo,
                   "Los datos de parcela no admiten ese código, y el cálculo termina en un fallo.",
                   "Cambie el código en la hoja por una palabra.");
        } else if (!codigo.conTamano) {
            anotar(Gravedad::Fallo, Sospecha::CodigoSinTamano, codigo,
                   "Ningún árbol del código " + Cita(codigo.texto) + " tiene tamaño.",
                   "No hay ningún tamaño con que calcular su área basimétrica, y los datos de parcela "
                   "terminan en un fallo.",
                   "Escriba el tamaño de alguno, o dé a los tocones el código de otra especie.");
        }
    }

    [[nodiscard]] std::string motivoSinConsulta(const CodigoDeLaHoja& codigo) const {
        const auto tiene = [&](char letra) { return codigo.texto.find(letra) != std::string::npos; };
        const Valor& valor = columna().valor(codigo.primera);
        if (!std::holds_alternative<double>(valor) && !std::holds_alternative<std::string>(valor)) {
            return "El código " + Cita(codigo.texto) + " es una fecha o un valor lógico, y no un texto.";
        }
        const bool numero = EsNumerico(codigo.texto);
        if (numero && tiene(',')) {
            return "El código " + Cita(codigo.texto) + " es un número con decimales.";
        }
        if (numero && tiene('.')) {
            return "El código " + Cita(codigo.texto) + " es un número con puntos.";
        }
        return !numero && tiene('\'') ? "El código " + Cita(codigo.texto) + " lleva una comilla." : "";
    }

    void anotar(Gravedad gravedad, Sospecha sospecha, const CodigoDeLaHoja& codigo, const std::string& que,
                const std::string& efecto, const std::string& remedio) {
        const int fila = lectura_.parcela().filas[codigo.primera].numero;
        cuaderno_.anotarFila(gravedad, sospecha, columna().columna().numero, fila, [&] {
            Hallazgo hallazgo = lectura_.enCelda(gravedad, sospecha, codigo.primera, columna());
            hallazgo.que = que;
            hallazgo.efecto = efecto;
            hallazgo.remedio = remedio;
            return hallazgo;
        });
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    std::vector<CodigoDeLaHoja> codigos_;
};

void AnotarNumero(const Lectura& lectura, Cuaderno& cuaderno, Sospecha sospecha, std::size_t i,
                  const std::string& que) {
    const auto& columna = lectura.numero();
    cuaderno.anotarFila(
        Gravedad::Mirar, sospecha, columna.columna().numero, lectura.parcela().filas[i].numero, [&] {
            Hallazgo hallazgo = lectura.enCelda(Gravedad::Mirar, sospecha, i, columna);
            hallazgo.que = que;
            hallazgo.efecto =
                "No cambia ningún número, pero en los resultados y en el mapa no se sabrá qué árbol "
                "es.";
            hallazgo.remedio = "Dé a cada árbol un número que no tenga otro.";
            return hallazgo;
        });
}

/// A header that the queries cannot take.
void AnotarCabecera(Cuaderno& cuaderno, const ColumnaPorRevisar& columna, const Indices& indices) {
    Hallazgo hallazgo = EnColumna(indices.empty() ? Gravedad::Mirar : Gravedad::Fallo,
                                  Sospecha::CabeceraSinConsulta, columna);
    hallazgo.texto = columna.cabecera;
    hallazgo.que =
        "La cabecera «" + columna.cabecera +
        "» no sirve: ha de ser una sola palabra que empiece por una letra, con letras, cifras o _, y no "
        "una palabra reservada, como Order.";
    hallazgo.efecto =
        indices.empty() ? "Con las opciones de ahora no se usa; los pies por hectárea y los datos de parcela "
                          "terminarían en un fallo."
                        : "El cálculo termina en un fallo. La usan: " + EnLista(indices) + ".";
    hallazgo.remedio = "Cambie en la hoja la cabecera por una sola palabra, sin blancos ni signos.";
    cuaderno.anotar(hallazgo);
}

/// Whether a word of a header is one of these.
bool Dice(const ColumnaPorRevisar& columna, const std::vector<std::string_view>& palabras) {
    constexpr std::string_view separadores = " _.-()[]:/";
    for (std::string_view resto = columna.cabecera; !resto.empty();) {
        const auto fin = std::min(resto.find_first_of(separadores), resto.size());
        if (std::ranges::find(palabras, EnBruto(resto.substr(0, fin))) != palabras.end()) {
            return true;
        }
        resto.remove_prefix(std::min(fin + 1, resto.size()));
    }
    return false;
}

void AnotarPapel(Cuaderno& cuaderno, const ColumnaPorRevisar& columna, const std::string& que,
                 const std::string& remedio) {
    Hallazgo hallazgo = EnColumna(Gravedad::Mirar, Sospecha::CabeceraDeOtroPapel, columna);
    hallazgo.que = "La cabecera «" + columna.cabecera + "» parece de otra cosa: " + que + ".";
    hallazgo.efecto = "Si es así, todas las cifras que usan la columna salen mal.";
    hallazgo.remedio = remedio;
    cuaderno.anotar(hallazgo);
}

/// Headers against the roles of their columns and against the options.
void RevisarPapeles(const Lectura& lectura, Cuaderno& cuaderno) {
    const std::vector<std::string_view> deX{"x", "este", "east", "easting", "utmx"};
    const std::vector<std::string_view> deY{"y", "norte", "north", "northing", "utmy"};
    const std::vector<std::string_view> circunferencias{"cap", "circ", "circunferencia", "perimetro"};
    const std::vector<std::string_view> diametros{"dap", "dn", "dbh", "diam", "diametro"};
    const std::string elegir = "Compruebe qué columna tiene cada papel en el diálogo de columnas.";
    if (Dice(lectura.x().columna(), deY)) {
        AnotarPapel(cuaderno, lectura.x().columna(), "se ha elegido como coordenada X", elegir);
    }
    if (Dice(lectura.y().columna(), deX)) {
        AnotarPapel(cuaderno, lectura.y().columna(), "se ha elegido como coordenada Y", elegir);
    }
    if (!lectura.tamano().existe()) {
        return;
    }
    const bool circunferencia = lectura.opciones().circunferencia;
    if (Dice(lectura.tamano().columna(), circunferencia ? diametros : circunferencias)) {
        AnotarPapel(cuaderno, lectura.tamano().columna(),
                    std::string{"las opciones dicen que el tamaño es "} +
                        (circunferencia ? "la circunferencia" : "el diámetro"),
                    "Compruebe en las opciones si el tamaño es circunferencia o diámetro.");
    }
}

} // namespace

void RevisarNumerosDeArbol(const Lectura& lectura, Cuaderno& cuaderno) {
    const auto& columna = lectura.numero();
    const auto& arboles = lectura.arboles();
    if (!arboles.empty() && std::ranges::all_of(arboles, [&](std::size_t i) { return columna.vacia(i); })) {
        Hallazgo hallazgo = EnColumna(Gravedad::Mirar, Sospecha::ColumnaSinDatos, columna.columna());
        hallazgo.que =
            "La columna «" + columna.columna().cabecera + "», la del número de árbol, no tiene ningún dato.";
        hallazgo.efecto =
            "No cambia ningún número, pero en los resultados y en el mapa no se sabrá qué árbol es "
            "cada uno.";
        hallazgo.remedio = "Elija otra columna para el índice de los árboles.";
        cuaderno.anotar(hallazgo);
        return;
    }
    std::unordered_map<std::string, std::size_t> vistos;
    std::vector<std::pair<std::size_t, std::size_t>> repetidos; // a row and the first one with its number
    for (const std::size_t i : arboles) {
        if (columna.vacia(i)) {
            AnotarNumero(lectura, cuaderno, Sospecha::NumeroVacio, i, "El árbol no tiene número.");
            continue;
        }
        const auto [otro, esNuevo] = vistos.try_emplace(columna.texto(i), i);
        if (!esNuevo) {
            repetidos.emplace_back(i, otro->second);
        }
    }
    constexpr std::size_t unaParte = 3;
    if (repetidos.size() > 1 && repetidos.size() * unaParte > arboles.size()) {
        Hallazgo hallazgo = EnColumna(Gravedad::Mirar, Sospecha::NumeroRepetido, columna.columna());
        hallazgo.que = std::to_string(repetidos.size()) + " números de árbol se repiten.";
        hallazgo.efecto =
            "Si en la hoja hay dos parcelas o dos inventarios, se calculan como una sola parcela.";
        hallazgo.remedio = "Deje en la hoja una sola parcela y un solo inventario.";
        cuaderno.anotar(hallazgo);
        return;
    }
    for (const auto& [i, primero] : repetidos) {
        AnotarNumero(lectura, cuaderno, Sospecha::NumeroRepetido, i,
                     "El número " + Cita(columna.texto(i)) + " ya es el del árbol de la fila " +
                         std::to_string(lectura.parcela().filas[primero].numero) + ".");
    }
}

void RevisarCodigos(const Lectura& lectura, Cuaderno& cuaderno) {
    if (lectura.codigo().existe()) {
        RevisorDeCodigos{lectura, cuaderno}.revisar();
    }
}

void RevisarCabeceras(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisarPapeles(lectura, cuaderno);
    const auto& opciones = lectura.opciones();
    const Indices deLosPies = IndicesDeLosPies(opciones);
    if (lectura.codigo().existe() && !lectura.codigo().columna().unaPalabra) {
        AnotarCabecera(cuaderno, lectura.codigo().columna(), deLosPies);
    }
    const Indices deLasCopas = opciones.datosDeParcela ? Indices{losDatosDeParcela} : Indices{};
    for (std::size_t medida = 0; medida < lectura.copa().size(); ++medida) {
        const auto& columna = lectura.copa()[medida].columna();
        const bool esLaContada = medida == 0 && !lectura.codigo().existe();
        const Indices indices = esLaContada ? deLosPies : deLasCopas;
        if (!columna.unaPalabra && !indices.empty()) {
            AnotarCabecera(cuaderno, columna, indices);
        }
    }
    const bool conCorchete =
        lectura.tamano().existe() && lectura.tamano().columna().cabecera.find(']') != std::string::npos;
    Indices delTamano = IndicesDelTamano(opciones);
    if (opciones.independientes.areaDeMayores) {
        delTamano.emplace_back(elAreaDeMayores);
    }
    if (conCorchete && !delTamano.empty()) {
        AnotarCabecera(cuaderno, lectura.tamano().columna(), delTamano);
    }
}

} // namespace varo
