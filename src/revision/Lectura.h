// The cells of a plot, read once for all the checks: what each one is and which number it gives.
#pragma once

#include "revision/Hallazgo.h"
#include "revision/ParcelaPorRevisar.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varo {

enum class ClaseDeCelda : std::uint8_t {
    Vacia,
    Numero,
    NumeroEscrito, ///< a text that reads as a number
    SinNumero      ///< anything else
};

/// A column with its numbers. The column must outlive it.
class ColumnaRevisada {
public:
    ColumnaRevisada() = default;
    ColumnaRevisada(const ColumnaPorRevisar& columna, std::size_t filas);

    [[nodiscard]] bool existe() const { return columna_ != nullptr; }
    [[nodiscard]] const ColumnaPorRevisar& columna() const { return *columna_; }
    [[nodiscard]] ClaseDeCelda clase(std::size_t i) const { return clases_[i]; }
    [[nodiscard]] bool vacia(std::size_t i) const { return clases_[i] == ClaseDeCelda::Vacia; }
    [[nodiscard]] bool esNumero(std::size_t i) const {
        return clases_[i] == ClaseDeCelda::Numero || clases_[i] == ClaseDeCelda::NumeroEscrito;
    }
    /// 0 where the cell gives no number.
    [[nodiscard]] double numero(std::size_t i) const { return numeros_[i]; }
    /// An empty text: the grid shows nothing, and the queries read a cell with something in it.
    [[nodiscard]] bool textoVacio(std::size_t i) const;
    /// As the grid shows it.
    [[nodiscard]] std::string texto(std::size_t i) const;
    [[nodiscard]] const Valor& valor(std::size_t i) const;
    /// Takes the numbers as the grid shows them, with 15 digits: so the run compares coordinates.
    void redondearComoSeMuestra();

private:
    const ColumnaPorRevisar* columna_ = nullptr;
    std::vector<ClaseDeCelda> clases_;
    std::vector<double> numeros_;
};

/// What all checks ask. The plot must outlive it.
class Lectura {
public:
    using Indice = std::size_t; ///< a row, counted from 0

    explicit Lectura(const ParcelaPorRevisar& parcela);

    [[nodiscard]] const ParcelaPorRevisar& parcela() const { return parcela_; }
    [[nodiscard]] const OpcionesPorRevisar& opciones() const { return parcela_.opciones; }
    [[nodiscard]] std::size_t cuantas() const { return parcela_.filas.size(); }

    [[nodiscard]] const ColumnaRevisada& x() const { return x_; }
    [[nodiscard]] const ColumnaRevisada& y() const { return y_; }
    [[nodiscard]] const std::vector<ColumnaRevisada>& copa() const { return copa_; }
    [[nodiscard]] const ColumnaRevisada& numero() const { return numero_; }
    /// These two may not exist.
    [[nodiscard]] const ColumnaRevisada& codigo() const { return codigo_; }
    [[nodiscard]] const ColumnaRevisada& tamano() const { return tamano_; }

    /// The rows that the run takes: those of the grid with a coordinate at least.
    [[nodiscard]] const std::vector<Indice>& arboles() const { return arboles_; }
    [[nodiscard]] bool esArbol(Indice i) const { return esArbol_[i]; }
    /// A row among the trees that repeats the headers or tells the units: words in both coordinates.
    [[nodiscard]] bool esCabecera(Indice i) const { return esCabecera_[i]; }
    /// The trees whose two coordinates are numbers.
    [[nodiscard]] const std::vector<Indice>& situados() const { return situados_; }
    [[nodiscard]] bool conTamano(Indice i) const { return tamano_.existe() && !tamano_.vacia(i); }

    /// Whether the tree is a vertex of the boundary; no tree is where nobody has built it.
    [[nodiscard]] bool esVertice(Indice i) const { return esVertice_[i]; }

    /// The same, or nobody knows the boundary yet.
    [[nodiscard]] bool puedeSerVertice(Indice i) const { return esVertice_[i] || !parcela_.contorno; }

    /// Whether any tree has a size and is no vertex: the families of neighbours then look at the boundary.
    [[nodiscard]] bool hayInteriores() const;

    /// Diameter of the stem in centimetres.
    [[nodiscard]] double diametro(Indice i) const;
    /// The crown measures of a tree in metres, diameters already halved.
    [[nodiscard]] std::vector<double> radios(Indice i) const;
    /// The mean of them.
    [[nodiscard]] double radioMedio(Indice i) const;

    /// A finding about a row, with its number and tree.
    [[nodiscard]] Hallazgo enFila(Gravedad gravedad, Sospecha sospecha, Indice i) const;
    /// The same about a cell, with its column and text.
    [[nodiscard]] Hallazgo enCelda(Gravedad gravedad, Sospecha sospecha, Indice i,
                                   const ColumnaRevisada& columna) const;
    /// "el árbol 12 (fila 13)"
    [[nodiscard]] std::string nombrar(Indice i) const;

private:
    void clasificarFilas();
    void marcarVertices();
    void marcarCabeceras();

    const ParcelaPorRevisar& parcela_;
    ColumnaRevisada x_, y_, numero_, codigo_, tamano_;
    std::vector<ColumnaRevisada> copa_;
    std::vector<Indice> arboles_, situados_;
    std::vector<bool> esArbol_, esVertice_, esCabecera_;
};

/// A finding about a whole column.
Hallazgo EnColumna(Gravedad gravedad, Sospecha sospecha, const ColumnaPorRevisar& columna);

} // namespace varo
