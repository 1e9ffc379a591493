// Sizes and crown measures that are missing, zero or negative.
#include "revision/RevisarNumeros.h"

#include "revision/Efectos.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace varo {

namespace {

/// Whether a sweep may reach below zero.
bool BajaDeCero(const BarridoPorRevisar& barrido) {
    return barrido.desde.find('-') != std::string::npos || barrido.hasta.find('-') != std::string::npos;
}

class RevisorDeFaltas {
public:
    RevisorDeFaltas(const Lectura& lectura, Cuaderno& cuaderno) : lectura_{lectura}, cuaderno_{cuaderno} {}

    void revisarTamanos() {
        const auto& tamano = lectura_.tamano();
        if (!tamano.existe() || todasVacias(tamano)) {
            return;
        }
        revisarTodosCero();
        for (const std::size_t i : lectura_.arboles()) {
            if (tamano.vacia(i)) {
                anotar(Gravedad::Mirar, Sospecha::TamanoVacio, i, tamano, [&](Hallazgo& hallazgo) {
                    hallazgo.que =
                        "El árbol no tiene tamaño: la celda está vacía o tiene un error, como #N/A.";
                    hallazgo.efecto =
                        "Cuenta para el contorno y los pies, pero no como competidor: los índices de "
                        "vecinos le ponen la marca -3, y las razones valen 0.";
                    hallazgo.remedio = "Mídalo si está vivo; si es un tocón o un hueco, puede quedar así.";
                });
            } else if (tamano.esNumero(i) && tamano.numero(i) <= 0) {
                tamano.numero(i) == 0 ? anotarCero(i) : anotarNegativo(i);
            }
        }
    }

    void revisarCopas() {
        for (const auto& medida : lectura_.copa()) {
            if (todasVacias(medida)) {
                continue;
            }
            for (const std::size_t i : lectura_.arboles()) {
                if (medida.vacia(i)) {
                    if (!sinCopa(i) || &medida == &lectura_.copa().front()) {
                        anotarCopaVacia(i, medida);
                    }
                } else if (medida.esNumero(i) && medida.numero(i) < 0) {
                    anotarCopaNegativa(i, medida);
                }
            }
        }
    }

private:
    /// Whether the tree has no crown at all, which is one finding.
    [[nodiscard]] bool sinCopa(std::size_t i) const {
        return std::ranges::all_of(lectura_.copa(), [&](const auto& medida) { return medida.vacia(i); });
    }

    [[nodiscard]] const OpcionesPorRevisar& opciones() const { return lectura_.opciones(); }

    [[nodiscard]] bool todasVacias(const ColumnaRevisada& columna) const {
        return std::ranges::all_of(lectura_.arboles(), [&](std::size_t i) { return columna.vacia(i); });
    }

    template <class Explicar>
    void anotar(Gravedad gravedad, Sospecha sospecha, std::size_t i, const ColumnaRevisada& columna,
                const Explicar& explicar) {
        cuaderno_.anotarFila(gravedad, sospecha, columna.columna().numero, lectura_.parcela().filas[i].numero,
                             [&] {
                                 Hallazgo hallazgo = lectura_.enCelda(gravedad, sospecha, i, columna);
                                 explicar(hallazgo);
                                 return hallazgo;
                             });
    }

    /// Ratios need one size at least that is not 0.
    void revisarTodosCero() {
        const auto& tamano = lectura_.tamano();
        bool hayAlguno = false;
        for (std::size_t i = 0; i < lectura_.cuantas() && !hayAlguno; ++i) {
            hayAlguno = !tamano.vacia(i) && (!tamano.esNumero(i) || tamano.numero(i) != 0);
        }
        const auto& ind = opciones().independientes;
        if (hayAlguno || !(ind.medias || ind.maximos || ind.dominantes || ind.sumas)) {
            return;
        }
        Hallazgo hallazgo = EnColumna(Gravedad::Fallo, Sospecha::ColumnaSinDatos, tamano.columna());
        hallazgo.que = "Todos los tamaños de la columna «" + tamano.columna().cabecera + "» son 0.";
        hallazgo.efecto = "Las razones dividen por su media o su máximo, y el cálculo termina en un fallo.";
        hallazgo.remedio = "Compruebe que es la columna que quería elegir.";
        cuaderno_.anotar(hallazgo);
    }

    void anotarCero(std::size_t i) {
        const auto& tamano = lectura_.tamano();
        // The text "0" alone is passed over as a tree without a size.
        const bool otroCero = tamano.texto(i) != "0";
        const bool falla = opciones().APA.activa ||
                           (opciones().AOI.activa && (otroCero || BajaDeCero(opciones().AOI.k))) ||
                           (opciones().DR.activa && (otroCero || BajaDeCero(opciones().DR.k)));
        const Indices vecinos = entranComoVecinos();
        const Gravedad gravedad = falla              ? Gravedad::Fallo
                                  : !vecinos.empty() ? Gravedad::Numeros
                                                     : Gravedad::Mirar;
        anotar(gravedad, Sospecha::TamanoCero, i, tamano, [&](Hallazgo& hallazgo) {
            hallazgo.que = "El tamaño del árbol es 0.";
            hallazgo.efecto =
                falla ? "Los índices de vecinos dividen por el tamaño: el cálculo puede terminar en "
                        "un fallo."
                : vecinos.empty() ? "No suma área basimétrica, y las razones le dan 0."
                                  : "Un 0 no es una celda vacía: el árbol entra como vecino en " +
                                        EnLista(vecinos) + ", y cambia los índices de los que tiene cerca.";
            hallazgo.remedio = "Escriba el tamaño, o deje la celda vacía si no se conoce.";
        });
    }

    /// The families where a tree of no size is a neighbour like others.
    [[nodiscard]] Indices entranComoVecinos() const {
        Indices familias = FamiliasDeVecinos(opciones());
        std::erase(familias, "APA");
        return familias;
    }

    void anotarNegativo(std::size_t i) {
        const bool falla = opciones().AOI.activa || opciones().DR.activa || opciones().APA.activa ||
                           (opciones().IDP.activa && opciones().IDP.regla == ReglaDeCompetidores::Funcion);
        const Gravedad gravedad = falla ? Gravedad::Fallo : Gravedad::Numeros;
        anotar(gravedad, Sospecha::TamanoNegativo, i, lectura_.tamano(), [&](Hallazgo& hallazgo) {
            hallazgo.que = "El tamaño del árbol es negativo: " + lectura_.tamano().texto(i) + ".";
            hallazgo.efecto = falla ? "Las potencias de un tamaño negativo pueden terminar en un fallo."
                                    : "Suma área basimétrica como si fuera positivo, y en las razones resta.";
            hallazgo.remedio = "Escriba el tamaño sin el signo, o deje la celda vacía si no se conoce.";
        });
    }

    void anotarCopaVacia(std::size_t i, const ColumnaRevisada& medida) {
        const bool vertice = lectura_.puedeSerVertice(i);
        const bool enISC = opciones().ISC.activa && lectura_.conTamano(i);
        // Ellipses of trees without a size are passed over.
        const bool enLosDatos =
            opciones().datosDeParcela && (opciones().copasCirculares || lectura_.conTamano(i));
        const Gravedad gravedad = vertice || enISC ? Gravedad::Fallo
                                  : enLosDatos     ? Gravedad::Numeros
                                                   : Gravedad::Mirar;
        anotar(gravedad, Sospecha::CopaVacia, i, medida, [&](Hallazgo& hallazgo) {
            hallazgo.que =
                sinCopa(i) ? "Falta la copa del árbol: sus celdas están vacías o tienen un error, como #N/A."
                           : "Falta una medida de la copa del árbol: la celda está vacía o tiene un error, "
                             "como #N/A.";
            if (vertice) {
                hallazgo.efecto =
                    "El árbol está, o puede estar, en el contorno de la parcela, que necesita su "
                    "copa: el dibujo termina en un fallo.";
            } else if (enISC) {
                hallazgo.efecto = "ISC termina en un fallo.";
            } else {
                hallazgo.efecto = enLosDatos
                                      ? "En los datos de parcela se toma por ella la copa de otro árbol."
                                      : "El mapa la dibuja como 0.";
            }
            hallazgo.remedio = "Escriba la medida; si el árbol no tiene copa por ese lado, escriba 0.";
        });
    }

    void anotarCopaNegativa(std::size_t i, const ColumnaRevisada& medida) {
        const Gravedad gravedad = opciones().ISC.activa       ? Gravedad::Fallo
                                  : opciones().datosDeParcela ? Gravedad::Numeros
                                                              : Gravedad::Mirar;
        anotar(gravedad, Sospecha::CopaNegativa, i, medida, [&](Hallazgo& hallazgo) {
            hallazgo.que = "Una medida de la copa es negativa: " + medida.texto(i) + ".";
            hallazgo.efecto = gravedad == Gravedad::Fallo
                                  ? "ISC puede terminar en un fallo."
                                  : "La superficie de la copa sale menor de lo que es.";
            hallazgo.remedio = "Escriba la medida sin el signo.";
        });
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
};

} // namespace

void RevisarFaltas(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeFaltas revisor{lectura, cuaderno};
    revisor.revisarTamanos();
    revisor.revisarCopas();
}

} // namespace varo
