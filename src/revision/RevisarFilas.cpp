#include "revision/RevisarFilas.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"
#include "revision/Efectos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace varo {

namespace {

constexpr std::size_t masFilas = 32'766;

/// Whether a word of a text says that its row sums the others up.
bool PareceSuma(const std::string& texto) {
    constexpr std::array<std::string_view, 19> palabras{
        "total", "totales", "subtotal", "suma", "sumas", "sum",    "media", "medias", "medio",     "promedio",
        "prom",  "mediana", "máximo",   "máx",  "max",   "mínimo", "mín",   "min",    "desviación"};
    const std::string minusculas = Minusculas(texto);
    const auto esLetra = [](char c) {
        return static_cast<unsigned char>(c) >= 0x80 || (c >= 'a' && c <= 'z');
    };
    for (auto desde = minusculas.begin(); desde != minusculas.end();) {
        desde = std::find_if(desde, minusculas.end(), esLetra);
        const auto hasta = std::find_if_not(desde, minusculas.end(), esLetra);
        if (std::ranges::find(palabras, std::string_view{desde, hasta}) != palabras.end()) {
            return true;
        }
        desde = hasta;
    }
    return false;
}

class RevisorDeFilas {
public:
    RevisorDeFilas(const Lectura& lectura, Cuaderno& cuaderno)
        : lectura_{lectura}, cuaderno_{cuaderno}, delTamano_{IndicesDelTamano(lectura.opciones())},
          deLosPies_{IndicesDeLosPies(lectura.opciones())} {}

    void revisar() {
        revisarCuantas();
        for (std::size_t i = 0; i < lectura_.cuantas(); ++i) {
            if (!lectura_.esArbol(i)) {
                revisarFilaSinSitio(i);
            } else if (esSuma(i)) {
                anotarArbolQueSuma(i);
            } else if (lectura_.esCabecera(i)) {
                anotarCabecera(i);
            } else {
                revisarMediaCoordenada(i);
            }
        }
        revisarOrden();
        revisarCodigos();
        revisarPies();
    }

private:
    void revisarCuantas() {
        const auto& parcela = lectura_.parcela();
        if (lectura_.arboles().empty()) {
            Hallazgo hallazgo = EnColumna(Gravedad::Fallo, Sospecha::SinArboles, parcela.x);
            hallazgo.que = "Ninguna fila de la hoja tiene coordenadas: las columnas «" + parcela.x.cabecera +
                           "» y «" + parcela.y.cabecera + "» están vacías.";
            hallazgo.efecto = "No hay ningún árbol que dibujar, y el cálculo termina en un fallo.";
            hallazgo.remedio = "Elija las columnas de las coordenadas, o escríbalas en la hoja.";
            cuaderno_.anotar(hallazgo);
        }
        if (lectura_.cuantas() > masFilas) {
            Hallazgo hallazgo = lectura_.enFila(Gravedad::Fallo, Sospecha::DemasiadasFilas, masFilas);
            hallazgo.que = "La hoja tiene " + std::to_string(lectura_.cuantas()) + " filas.";
            hallazgo.efecto = "El programa admite 32.766 como mucho, y no puede abrir la hoja.";
            hallazgo.remedio = "Reparta los árboles en varias hojas, o borre las filas que sobran.";
            cuaderno_.anotar(hallazgo);
        }
    }

    /// A row that the run leaves out while the queries read it.
    void revisarFilaSinSitio(std::size_t i) {
        const bool tieneCodigo = lectura_.codigo().existe() && !lectura_.codigo().vacia(i);
        if (!seCuenta(i) && !tieneCodigo && !lectura_.conTamano(i) && !sumaCopa(i)) {
            return;
        }
        const Indices alterados = alteradosPor(i, tieneCodigo);
        const Gravedad gravedad = alterados.empty() ? Gravedad::Mirar : Gravedad::Numeros;
        cuaderno_.anotarFila(gravedad, Sospecha::FilaSinSitio, 0, fila(i), [&] {
            Hallazgo hallazgo = lectura_.enFila(gravedad, Sospecha::FilaSinSitio, i);
            if (lectura_.conTamano(i)) {
                hallazgo = lectura_.enCelda(gravedad, Sospecha::FilaSinSitio, i, lectura_.tamano());
            }
            const bool esSuma = pareceSuma(i);
            hallazgo.que = esSuma
                               ? "La fila parece una suma o una media de las demás, y no un árbol: no tiene "
                                 "coordenadas y sí otros datos."
                               : "La fila no tiene coordenadas y sí " +
                                     std::string{lectura_.conTamano(i) ? "tamaño del tronco."
                                                 : tieneCodigo         ? "código."
                                                                       : "medidas de copa."};
            hallazgo.efecto = alterados.empty()
                                  ? "No se dibuja ni recibe índices; los cálculos pedidos no la leen."
                                  : "No se dibuja ni recibe índices, pero cuenta como un árbol más en " +
                                        EnLista(alterados) + ".";
            hallazgo.remedio = esSuma ? "Borre la fila de la hoja, o llévela a otra hoja."
                                      : "Escriba sus coordenadas, o borre la fila.";
            return hallazgo;
        });
    }

    /// The count takes an empty text for something.
    [[nodiscard]] bool seCuenta(std::size_t i) const {
        const auto& contada = columnaContada();
        return contada.existe() && (!contada.vacia(i) || contada.textoVacio(i));
    }

    /// The figures that a row without coordinates changes.
    [[nodiscard]] Indices alteradosPor(std::size_t i, bool tieneCodigo) const {
        const auto& tamano = lectura_.tamano();
        // A size of 0 adds nothing and is no maximum.
        const bool seSuma = lectura_.conTamano(i) && !(tamano.esNumero(i) && tamano.numero(i) == 0);
        Indices alterados = Juntos(seSuma ? sumanTamanos() : Indices{}, seCuenta(i) ? deLosPies_ : Indices{});
        if (lectura_.codigo().existe() && !tieneCodigo) {
            std::erase(alterados, losDatosDeParcela); // they count and add code by code
        }
        return sumaCopa(i) && lectura_.opciones().datosDeParcela ? Juntos(alterados, {losDatosDeParcela})
                                                                 : alterados;
    }

    /// Whether the row adds to the area of the crowns: all its measures are numbers, and not all of them 0.
    [[nodiscard]] bool sumaCopa(std::size_t i) const {
        const auto& copa = lectura_.copa();
        return !copa.empty() &&
               std::ranges::all_of(copa, [&](const auto& medida) { return medida.esNumero(i); }) &&
               std::ranges::any_of(copa, [&](const auto& medida) { return medida.numero(i) != 0; });
    }

    [[nodiscard]] Indices sumanTamanos() const {
        return Juntos(delTamano_, lectura_.opciones().independientes.areaDeMayores ? Indices{elAreaDeMayores}
                                                                                   : Indices{});
    }

    [[nodiscard]] bool pareceSuma(std::size_t i) const {
        return PareceSuma(lectura_.numero().texto(i)) ||
               (lectura_.codigo().existe() && PareceSuma(lectura_.codigo().texto(i)));
    }

    /// The last tree, when its size is that of all the others together.
    [[nodiscard]] bool sumaTamanos(std::size_t i) const {
        constexpr std::size_t bastantes = 5;
        constexpr double casiNada = 1E-9;
        const auto& tamano = lectura_.tamano();
        const auto& arboles = lectura_.arboles();
        if (!tamano.existe() || arboles.size() <= bastantes || i != arboles.back()) {
            return false;
        }
        double suma = 0;
        for (const std::size_t otro : arboles) {
            suma += otro == i ? 0 : tamano.numero(otro);
        }
        return suma > 0 && std::abs(tamano.numero(i) - suma) <= casiNada * suma;
    }

    /// A tree, by its coordinates, that its number calls a sum.
    [[nodiscard]] bool esSuma(std::size_t i) const {
        return sumaTamanos(i) || (lectura_.numero().clase(i) == ClaseDeCelda::SinNumero &&
                                  PareceSuma(lectura_.numero().texto(i)));
    }

    void anotarArbolQueSuma(std::size_t i) {
        cuaderno_.anotarFila(Gravedad::Numeros, Sospecha::FilaDeSuma, 0, fila(i), [&] {
            Hallazgo hallazgo =
                lectura_.enCelda(Gravedad::Numeros, Sospecha::FilaDeSuma, i, lectura_.numero());
            hallazgo.que = sumaTamanos(i)
                               ? "El tamaño de la última fila es la suma de los demás: parece un total, y "
                                 "no un árbol."
                               : "La fila se llama " + Cita(lectura_.numero().texto(i)) +
                                     " y parece una suma o una media de las demás, y no un árbol.";
            hallazgo.efecto = "Se dibuja y cuenta como un árbol más en todo lo que se calcule.";
            hallazgo.remedio = "Borre la fila de la hoja, o llévela a otra hoja.";
            return hallazgo;
        });
    }

    void anotarCabecera(std::size_t i) {
        cuaderno_.anotarFila(Gravedad::Fallo, Sospecha::FilaDeCabecera, 0, fila(i), [&] {
            Hallazgo hallazgo = lectura_.enCelda(Gravedad::Fallo, Sospecha::FilaDeCabecera, i, lectura_.x());
            hallazgo.que = "La fila repite las cabeceras o dice las unidades: no es un árbol.";
            hallazgo.efecto = "Todo el cálculo termina en un fallo al dibujarla.";
            hallazgo.remedio = "Borre la fila de la hoja.";
            return hallazgo;
        });
    }

    /// Clipped ellipses take the crown areas of the query, which come in the order of the sheet.
    void revisarOrden() {
        const auto& opciones = lectura_.opciones();
        if (lectura_.parcela().enOrden || !opciones.datosDeParcela || opciones.copasCirculares) {
            return;
        }
        Hallazgo hallazgo;
        hallazgo.gravedad = Gravedad::Numeros;
        hallazgo.sospecha = Sospecha::FilasDesordenadas;
        hallazgo.que =
            "Las filas de la hoja no están ordenadas por su primera columna, o hay otras filas entre "
            "los árboles.";
        hallazgo.efecto =
            "En los datos de parcela, la superficie de las copas de elipse dentro de la parcela se "
            "calcula con la copa de otro árbol.";
        hallazgo.remedio =
            "Ordene la hoja por su primera columna, con un número distinto en cada fila, y quite las "
            "filas vacías; o elija copas de círculo.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarMediaCoordenada(std::size_t i) {
        if (lectura_.x().vacia(i) == lectura_.y().vacia(i)) {
            return;
        }
        const auto& vacia = lectura_.x().vacia(i) ? lectura_.x() : lectura_.y();
        cuaderno_.anotarFila(
            Gravedad::Fallo, Sospecha::FilaConMediaCoordenada, vacia.columna().numero, fila(i), [&] {
                Hallazgo hallazgo =
                    lectura_.enCelda(Gravedad::Fallo, Sospecha::FilaConMediaCoordenada, i, vacia);
                hallazgo.que = "El árbol tiene una sola coordenada: la celda de «" +
                               vacia.columna().cabecera + "» está vacía o tiene un error, como #N/A.";
                hallazgo.efecto = "No se puede dibujar, y todo el cálculo termina en un fallo.";
                hallazgo.remedio = "Escriba la coordenada que falta; si no se conoce, borre la fila entera.";
                return hallazgo;
            });
    }

    void revisarCodigos() {
        if (!lectura_.codigo().existe()) {
            return;
        }
        const Gravedad gravedad = deLosPies_.empty() ? Gravedad::Mirar : Gravedad::Numeros;
        const auto& columna = lectura_.codigo();
        const auto sinCodigo = static_cast<std::size_t>(
            std::ranges::count_if(lectura_.arboles(), [&](std::size_t i) { return columna.vacia(i); }));
        if (sinCodigo == lectura_.arboles().size()) {
            return; // the column as a whole is told with the codes
        }
        for (const std::size_t i : lectura_.arboles()) {
            if (columna.vacia(i) && !esSuma(i)) {
                cuaderno_.anotarFila(
                    gravedad, Sospecha::ArbolSinCodigo, columna.columna().numero, fila(i), [&] {
                        Hallazgo hallazgo = lectura_.enCelda(gravedad, Sospecha::ArbolSinCodigo, i, columna);
                        hallazgo.que = "El árbol no tiene código.";
                        hallazgo.efecto =
                            deLosPies_.empty()
                                ? "Sale en el mapa y en los índices, sin leyenda; los pies por "
                                  "hectárea no lo contarían."
                                : "No se cuenta en " + EnLista(deLosPies_) +
                                      ", y las cifras salen menores de lo que son, o negativas.";
                        hallazgo.remedio =
                            "Escriba un código, aunque sea uno para los desconocidos; o quite en "
                            "las opciones la marca de que el archivo tiene códigos.";
                        return hallazgo;
                    });
            }
        }
    }

    void revisarPies() {
        for (const auto& [codigo, cifra] : lectura_.parcela().pies) {
            const std::string deQuien = codigo.empty() ? "" : " del código " + Cita(codigo);
            if (!cifra.fallo.empty()) {
                Hallazgo hallazgo = deCodigo(Gravedad::Fallo, Sospecha::CuentaConFallo, codigo);
                hallazgo.que =
                    "Los pies por hectárea" + deQuien + " no se pueden contar: " + cifra.fallo + ".";
                hallazgo.efecto = "Todo cálculo que los pida termina en ese fallo.";
                hallazgo.remedio = "Corrija en la hoja lo que dice el fallo.";
                cuaderno_.anotar(hallazgo);
            } else if (std::isfinite(cifra.valor) && cifra.valor <= 0) {
                anotarPiesNoPositivos(codigo, cifra.valor, deQuien);
            }
        }
    }

    void anotarPiesNoPositivos(const std::string& codigo, double pies, const std::string& deQuien) {
        const bool divide =
            pies == 0 && codigo.empty() && lectura_.opciones().independientes.areasProporcionales;
        Hallazgo hallazgo =
            deCodigo(divide ? Gravedad::Fallo : Gravedad::Numeros, Sospecha::PiesNoPositivos, codigo);
        hallazgo.texto = Formato(pies, "###0.0");
        hallazgo.que = "Salen ";
        hallazgo.que += hallazgo.texto + " pies por hectárea" + deQuien + ".";
        hallazgo.efecto =
            divide ? "Las áreas ocupadas (AP) dividen por ellos, y el cálculo termina en un fallo."
                   : "Por cada árbol de un vértice del contorno se quita medio pie, también por los de los "
                     "códigos anteriores, y se quita tanto como se cuenta o más: la cifra no vale.";
        hallazgo.remedio =
            "Revise que todos los árboles tengan código y coordenadas; con pocos árboles de un "
            "código, no use su cifra.";
        cuaderno_.anotar(hallazgo);
    }

    [[nodiscard]] Hallazgo deCodigo(Gravedad gravedad, Sospecha sospecha, const std::string& codigo) const {
        Hallazgo hallazgo;
        hallazgo.gravedad = gravedad;
        hallazgo.sospecha = sospecha;
        hallazgo.texto = codigo;
        if (columnaContada().existe()) {
            hallazgo.columna = columnaContada().columna().cabecera;
            hallazgo.numeroDeColumna = columnaContada().columna().numero;
        }
        return hallazgo;
    }

    /// The column by which the rows are counted.
    [[nodiscard]] const ColumnaRevisada& columnaContada() const {
        static const ColumnaRevisada ninguna;
        if (lectura_.codigo().existe()) {
            return lectura_.codigo();
        }
        return lectura_.copa().empty() ? ninguna : lectura_.copa().front();
    }

    [[nodiscard]] int fila(std::size_t i) const { return lectura_.parcela().filas[i].numero; }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    Indices delTamano_;
    Indices deLosPies_;
};

} // namespace

void RevisarFilas(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeFilas{lectura, cuaderno}.revisar();
}

} // namespace varo
