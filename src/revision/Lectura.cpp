#include "revision/Lectura.h"

#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "basico/Texto.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>
#include <variant>

namespace varo {

namespace {

constexpr double pi = 3.1415927;

/// What a cell is, and its number where it gives one.
std::pair<ClaseDeCelda, double> Clasificar(const Valor& valor) {
    if (const auto* const numero = std::get_if<double>(&valor)) {
        return std::isfinite(*numero) ? std::pair{ClaseDeCelda::Numero, *numero}
                                      : std::pair{ClaseDeCelda::SinNumero, 0.0};
    }
    if (const auto* const texto = std::get_if<std::string>(&valor)) {
        if (texto->empty()) {
            return {ClaseDeCelda::Vacia, 0};
        }
        return EsNumerico(*texto) ? std::pair{ClaseDeCelda::NumeroEscrito, ANumero(*texto)}
                                  : std::pair{ClaseDeCelda::SinNumero, 0.0};
    }
    return {EsNulo(valor) ? ClaseDeCelda::Vacia : ClaseDeCelda::SinNumero, 0};
}

/// The number that the run reads in the grid, which has 15 digits of it.
double ComoSeMuestra(double numero) {
    constexpr double millonesimas = 1E+6;
    constexpr double exactoHasta = 1E+8;
    constexpr double desmedido = 1E+300; // rounded up it may have no number
    const bool esCorto =
        std::abs(numero) < exactoHasta && std::round(numero * millonesimas) / millonesimas == numero;
    return esCorto || std::abs(numero) > desmedido ? numero : ANumero(ATexto(numero));
}

} // namespace

ColumnaRevisada::ColumnaRevisada(const ColumnaPorRevisar& columna, std::size_t filas)
    : columna_{&columna}, clases_(filas, ClaseDeCelda::Vacia), numeros_(filas, 0.0) {
    for (std::size_t i = 0; i < filas && i < columna.celdas.size(); ++i) {
        std::tie(clases_[i], numeros_[i]) = Clasificar(columna.celdas[i]);
    }
}

const Valor& ColumnaRevisada::valor(std::size_t i) const {
    static const Valor nada{};
    return i < columna_->celdas.size() ? columna_->celdas[i] : nada;
}

void ColumnaRevisada::redondearComoSeMuestra() {
    for (std::size_t i = 0; i < numeros_.size(); ++i) {
        if (clases_[i] == ClaseDeCelda::Numero) {
            numeros_[i] = ComoSeMuestra(numeros_[i]);
        }
    }
}

bool ColumnaRevisada::textoVacio(std::size_t i) const {
    const auto* const texto = std::get_if<std::string>(&valor(i));
    return texto != nullptr && texto->empty();
}

std::string ColumnaRevisada::texto(std::size_t i) const {
    const Valor& suyo = valor(i);
    if (EsNulo(suyo)) {
        return {};
    }
    const auto* const numero = std::get_if<double>(&suyo);
    if (numero != nullptr && !std::isfinite(*numero)) {
        return "un número sin medida";
    }
    std::string texto = "una fecha imposible";
    Saltando([&] { texto = ATexto(suyo); }); // a date beyond the calendar has no text
    return texto;
}

Lectura::Lectura(const ParcelaPorRevisar& parcela)
    : parcela_{parcela}, x_{parcela.x, parcela.filas.size()}, y_{parcela.y, parcela.filas.size()},
      numero_{parcela.numero, parcela.filas.size()} {
    x_.redondearComoSeMuestra();
    y_.redondearComoSeMuestra();
    for (const auto& medida : parcela.copa) {
        copa_.emplace_back(medida, cuantas());
    }
    if (parcela.codigo) {
        codigo_ = ColumnaRevisada{*parcela.codigo, cuantas()};
    }
    if (parcela.tamano) {
        tamano_ = ColumnaRevisada{*parcela.tamano, cuantas()};
    }
    clasificarFilas();
    marcarVertices();
    marcarCabeceras();
}

void Lectura::clasificarFilas() {
    esArbol_.assign(cuantas(), false);
    for (Indice i = 0; i < cuantas(); ++i) {
        if (!parcela_.filas[i].enRejilla || (x_.vacia(i) && y_.vacia(i))) {
            continue;
        }
        esArbol_[i] = true;
        arboles_.push_back(i);
        if (x_.esNumero(i) && y_.esNumero(i)) {
            situados_.push_back(i);
        }
    }
}

void Lectura::marcarCabeceras() {
    constexpr std::size_t deCada = 10; // more of them, and the columns are the wrong ones
    const auto esPalabra = [](const ColumnaRevisada& columna, Indice i) {
        const auto* const texto = std::get_if<std::string>(&columna.valor(i));
        return columna.clase(i) == ClaseDeCelda::SinNumero && texto != nullptr && !Recortar(*texto).empty();
    };
    esCabecera_.assign(cuantas(), false);
    std::size_t halladas = 0;
    for (const Indice i : arboles_) {
        esCabecera_[i] = esPalabra(x_, i) && esPalabra(y_, i);
        halladas += esCabecera_[i] ? 1U : 0U;
    }
    if (halladas * deCada > arboles_.size() && halladas > 1) {
        esCabecera_.assign(cuantas(), false);
    }
}

void Lectura::marcarVertices() {
    esVertice_.assign(cuantas(), false);
    if (!parcela_.contorno) {
        return;
    }
    const auto& contorno = *parcela_.contorno;
    std::set<std::pair<double, double>> vertices;
    for (std::size_t k = 0; k < contorno.x.size() && k < contorno.y.size(); ++k) {
        vertices.emplace(contorno.x[k], contorno.y[k]);
    }
    for (const Indice i : situados_) {
        esVertice_[i] = vertices.contains({x_.numero(i), y_.numero(i)});
    }
}

bool Lectura::hayInteriores() const {
    return std::ranges::any_of(situados_, [this](Indice i) { return conTamano(i) && !esVertice_[i]; });
}

double Lectura::diametro(Indice i) const {
    const double tamano = tamano_.existe() ? tamano_.numero(i) : 0;
    return tamano * opciones().cmPorTamano / (opciones().circunferencia ? pi : 1);
}

std::vector<double> Lectura::radios(Indice i) const {
    const double partes = copa_.size() == 2 ? 2 : 1;
    std::vector<double> radios;
    for (const auto& medida : copa_) {
        radios.push_back(medida.numero(i) / (partes * opciones().radiosPorMetro));
    }
    return radios;
}

double Lectura::radioMedio(Indice i) const {
    double suma = 0;
    for (const auto& medida : copa_) {
        suma += medida.numero(i);
    }
    const double medidas = copa_.size() == 2 ? 4 : static_cast<double>(copa_.size());
    return copa_.empty() ? 0 : suma / (medidas * opciones().radiosPorMetro);
}

Hallazgo Lectura::enFila(Gravedad gravedad, Sospecha sospecha, Indice i) const {
    Hallazgo hallazgo;
    hallazgo.gravedad = gravedad;
    hallazgo.sospecha = sospecha;
    hallazgo.fila = parcela_.filas[i].numero;
    hallazgo.arbol = numero_.texto(i);
    return hallazgo;
}

Hallazgo Lectura::enCelda(Gravedad gravedad, Sospecha sospecha, Indice i,
                          const ColumnaRevisada& columna) const {
    Hallazgo hallazgo = enFila(gravedad, sospecha, i);
    hallazgo.columna = columna.columna().cabecera;
    hallazgo.numeroDeColumna = columna.columna().numero;
    hallazgo.texto = columna.texto(i);
    return hallazgo;
}

std::string Lectura::nombrar(Indice i) const {
    const std::string fila = "fila " + std::to_string(parcela_.filas[i].numero);
    const std::string numero = numero_.texto(i);
    return numero.empty() ? "el de la " + fila : "el árbol " + numero + " (" + fila + ")";
}

Hallazgo EnColumna(Gravedad gravedad, Sospecha sospecha, const ColumnaPorRevisar& columna) {
    Hallazgo hallazgo;
    hallazgo.gravedad = gravedad;
    hallazgo.sospecha = sospecha;
    hallazgo.columna = columna.cabecera;
    hallazgo.numeroDeColumna = columna.numero;
    return hallazgo;
}

} // namespace varo
