#include "revision/RevisarFilas.h"

#include "basico/Texto.h"
#include "revision/Efectos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace varo {

namespace {

constexpr std::size_t masFilas = 32'766;

/// A row below the trees that sums them up.
bool PareceTotal(const std::string& texto) {
    constexpr std::array<std::string_view, 8> palabras{"total",  "suma",   "media",  "promedio",
                                                       "máximo", "mínimo", "maximo", "minimo"};
    const std::string minusculas = Minusculas(Recortar(texto));
    return std::ranges::any_of(palabras, [&](auto palabra) { return minusculas.starts_with(palabra); });
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
            } else {
                revisarMediaCoordenada(i);
            }
        }
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
        const auto& contada = columnaContada();
        const bool seCuenta = contada.existe() && !contada.vacia(i);
        const bool tieneCodigo = lectura_.codigo().existe() && !lectura_.codigo().vacia(i);
        const bool seSuma = lectura_.conTamano(i);
        if (!seCuenta && !tieneCodigo && !seSuma) {
            return;
        }
        const Indices alterados = Juntos(seSuma ? delTamano_ : Indices{}, seCuenta ? deLosPies_ : Indices{});
        const Gravedad gravedad = alterados.empty() ? Gravedad::Mirar : Gravedad::Numeros;
        cuaderno_.anotarFila(gravedad, Sospecha::FilaSinSitio, 0, fila(i), [&] {
            Hallazgo hallazgo = lectura_.enFila(gravedad, Sospecha::FilaSinSitio, i);
            if (seSuma) {
                hallazgo.columna = lectura_.tamano().columna().cabecera;
                hallazgo.numeroDeColumna = lectura_.tamano().columna().numero;
                hallazgo.texto = lectura_.tamano().texto(i);
            }
            hallazgo.que = pareceTotal(i)
                               ? "La fila parece una suma o una media de las demás, y no un árbol: no tiene "
                                 "coordenadas y sí otros datos."
                               : "La fila no tiene coordenadas y sí " +
                                     std::string{seSuma ? "tamaño del tronco." : "código o copa."};
            hallazgo.efecto = alterados.empty()
                                  ? "No se dibuja ni recibe índices; los cálculos pedidos no la leen."
                                  : "No se dibuja ni recibe índices, pero cuenta como un árbol más en " +
                                        EnLista(alterados) + ".";
            hallazgo.remedio = pareceTotal(i) ? "Borre la fila de la hoja, o llévela a otra hoja."
                                              : "Escriba sus coordenadas, o borre la fila.";
            return hallazgo;
        });
    }

    [[nodiscard]] bool pareceTotal(std::size_t i) const {
        return PareceTotal(lectura_.numero().texto(i)) ||
               (lectura_.codigo().existe() && PareceTotal(lectura_.codigo().texto(i)));
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
                               vacia.columna().cabecera + "» está vacía.";
                hallazgo.efecto = "No se puede dibujar, y todo el cálculo termina en un fallo.";
                hallazgo.remedio = "Escriba la coordenada que falta; si no se conoce, borre también la otra.";
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
            if (columna.vacia(i)) {
                cuaderno_.anotarFila(
                    gravedad, Sospecha::ArbolSinCodigo, columna.columna().numero, fila(i), [&] {
                        Hallazgo hallazgo = lectura_.enCelda(gravedad, Sospecha::ArbolSinCodigo, i, columna);
                        hallazgo.que = "El árbol no tiene código.";
                        hallazgo.efecto = deLosPies_.empty()
                                              ? "Sale en el mapa y en los índices, sin leyenda; los pies por "
                                                "hectárea no lo contarían."
                                              : "No se cuenta en " + EnLista(deLosPies_) +
                                                    ", que salen menores de lo que son, o negativos.";
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
                const bool divide =
                    cifra.valor == 0 && lectura_.opciones().independientes.areasProporcionales;
                Hallazgo hallazgo =
                    deCodigo(divide ? Gravedad::Fallo : Gravedad::Numeros, Sospecha::PiesNoPositivos, codigo);
                hallazgo.texto = NumeroDicho(cifra.valor);
                hallazgo.que = "Salen " + NumeroDicho(cifra.valor) + " pies por hectárea" + deQuien + ".";
                hallazgo.efecto = divide
                                      ? "Las áreas ocupadas (AP) dividen por ellos, y el cálculo termina en "
                                        "un fallo."
                                      : "La cuenta quita medio pie por cada vértice del contorno, y hay más "
                                        "que quitar que árboles contados: la cifra no vale.";
                hallazgo.remedio = "Revise que todos los árboles tengan código y coordenadas; con pocos "
                                   "árboles de un código, no use su cifra.";
                cuaderno_.anotar(hallazgo);
            }
        }
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
