#include "formularios/Rejilla.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"

#include <algorithm>
#include <compare>
#include <numeric>
#include <utility>

namespace varo {

namespace {

constexpr int anchoDeDiseno = 960;

using CeldasDeFila = std::vector<std::string>;

const std::string& Celda(const CeldasDeFila& fila, std::size_t columna) {
    static const std::string vacia;
    return columna < fila.size() ? fila[columna] : vacia;
}

/// A cell as the generic sort sees it: empty cells, then numbers, then texts.
struct ClaveDeCelda {
    enum class Clase { Vacia, Numero, Texto };

    explicit ClaveDeCelda(const std::string& celda) {
        if (celda.empty()) {
            return;
        }
        if (EsNumerico(celda)) {
            clase = Clase::Numero;
            numero = ANumero(celda);
        } else {
            clase = Clase::Texto;
            texto = &celda;
        }
    }

    friend bool operator<(const ClaveDeCelda& a, const ClaveDeCelda& b) {
        if (a.clase != b.clase) {
            return a.clase < b.clase;
        }
        // UTF-8 bytes compare as their code points do.
        return a.clase == Clase::Numero ? a.numero < b.numero
                                        : a.clase == Clase::Texto && *a.texto < *b.texto;
    }

    Clase clase = Clase::Vacia;
    double numero = 0;
    const std::string* texto = nullptr;
};

} // namespace

std::size_t Rejilla::filaComprobada(int fila) const {
    if (fila < 0 || fila >= Rows()) {
        throw ErrorEjecucion{fallo::fueraDeIndice}.en("fila " + std::to_string(fila) + " de la rejilla");
    }
    return static_cast<std::size_t>(fila);
}

std::size_t Rejilla::columnaComprobada(int columna) const {
    if (columna < 0 || columna >= Cols()) {
        throw ErrorEjecucion{fallo::fueraDeIndice}.en("columna " + std::to_string(columna) +
                                                      " de la rejilla");
    }
    return static_cast<std::size_t>(columna);
}

void Rejilla::Rows(int filas) {
    if (filas < filasFijas) {
        throw ErrorEjecucion{fallo::fueraDeIndice};
    }
    filas_.resize(static_cast<std::size_t>(filas));
    fila_ = std::min(fila_, filas - 1);
    avisar();
}

void Rejilla::Cols(int columnas) {
    if (columnas < 1) {
        throw ErrorEjecucion{fallo::fueraDeIndice};
    }
    anchos_.resize(static_cast<std::size_t>(columnas), anchoDeDiseno);
    for (auto& fila : filas_) {
        fila.resize(std::min(fila.size(), anchos_.size()));
    }
    columna_ = std::min(columna_, columnas - 1);
    ColSel = std::min(ColSel(), columnas - 1);
    avisar();
}

const std::string& Rejilla::TextMatrix(int fila, int columna) const {
    return Celda(filas_[filaComprobada(fila)], columnaComprobada(columna));
}

void Rejilla::TextMatrix(int fila, int columna, std::string texto) {
    auto& celdas = filas_[filaComprobada(fila)];
    const auto posicion = columnaComprobada(columna);
    if (posicion >= celdas.size()) {
        if (texto.empty()) {
            return;
        }
        celdas.resize(posicion + 1);
    }
    celdas[posicion] = std::move(texto);
}

void Rejilla::Row(int fila) {
    fila_ = static_cast<int>(filaComprobada(fila));
}

void Rejilla::Col(int columna) {
    columna_ = static_cast<int>(columnaComprobada(columna));
}

int Rejilla::ColWidth(int columna) const {
    return anchos_[columnaComprobada(columna)];
}

void Rejilla::ColWidth(int columna, int ancho) {
    anchos_[columnaComprobada(columna)] = ancho;
}

void Rejilla::reponer(Contenido contenido) {
    filas_ = std::move(contenido.filas);
    anchos_ = std::move(contenido.anchos);
    fila_ = contenido.fila;
    columna_ = contenido.columna;
    ColSel = contenido.ColSel;
    avisar();
}

void Rejilla::RemoveItem(int fila) {
    const auto posicion = filaComprobada(fila);
    if (fila < filasFijas || Rows() == filasFijas + 1) {
        throw ErrorEjecucion{30015, "No se puede quitar la última fila no fija de la rejilla"};
    }
    filas_.erase(filas_.begin() + static_cast<std::ptrdiff_t>(posicion));
    fila_ = std::min(fila_, Rows() - 1);
    avisar();
}

std::vector<int> Rejilla::filasEnOrden(int columna) const {
    const auto posicion = columnaComprobada(columna);
    std::vector<ClaveDeCelda> claves;
    claves.reserve(filas_.size());
    for (const auto& fila : filas_) {
        claves.emplace_back(Celda(fila, posicion));
    }
    std::vector<int> orden(filas_.size() - filasFijas);
    std::iota(orden.begin(), orden.end(), filasFijas);
    std::ranges::stable_sort(
        orden, [](const ClaveDeCelda* a, const ClaveDeCelda* b) { return *a < *b; },
        [&claves](int fila) { return &claves[static_cast<std::size_t>(fila)]; });
    return orden;
}

void Rejilla::ordenarAscendente() {
    const std::vector<int> orden = filasEnOrden(columna_);
    std::vector<CeldasDeFila> ordenadas;
    ordenadas.reserve(filas_.size());
    ordenadas.push_back(std::move(filas_.front()));
    for (const int fila : orden) {
        ordenadas.push_back(std::move(filas_[static_cast<std::size_t>(fila)]));
    }
    filas_ = std::move(ordenadas);
    avisar();
}

} // namespace varo
