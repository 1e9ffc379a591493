#include "indices/vecinos/Arboles.h"

#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "basico/Texto.h"

#include <limits>
#include <unordered_set>
#include <utility>

namespace varo {

namespace {

constexpr double sinNumero = std::numeric_limits<double>::quiet_NaN();

/// The texts of a point as one key. The texts of a vertex hold no line feed, so no other two make its key.
std::string Clave(const std::string& x, const std::string& y) {
    return x + '\n' + y;
}

std::vector<bool> MarcarVertices(const CeldasDeArboles& celdas, const ContornoXY& contorno) {
    std::unordered_set<std::string> vertices;
    for (std::size_t k = 0; k + 1 < contorno.x.size(); ++k) {
        vertices.insert(Clave(ATexto(contorno.x[k]), ATexto(contorno.y[k])));
    }
    std::vector<bool> marcas(celdas.x.cuantas());
    for (std::size_t i = 0; i < marcas.size(); ++i) {
        marcas[i] = vertices.contains(Clave(celdas.x.texto(i), celdas.y.texto(i)));
    }
    return marcas;
}

double ADiametro(double tamano, const FactoresDeTamano& factores) {
    return tamano * static_cast<double>(factores.dap) * static_cast<double>(factores.unidad);
}

} // namespace

ColumnaDeCeldas::ColumnaDeCeldas(std::string nombre, std::vector<std::string> textos,
                                 std::shared_ptr<const Padron> padron)
    : nombre_{std::move(nombre)}, textos_{std::move(textos)}, padron_{std::move(padron)} {
    numeros_.reserve(textos_.size());
    for (const auto& texto : textos_) {
        double numero = sinNumero;
        Saltando([&] { numero = ANumero(texto); }); // `numero` throws the fault again when it is asked for
        numeros_.push_back(numero);
    }
}

void ColumnaDeCeldas::situar(ErrorEjecucion& error, std::size_t i) const {
    padron_->situar(error.en("columna «" + nombre_ + "»"), i);
}

void ColumnaDeCeldas::fallar(std::size_t i) const {
    ErrorEjecucion error = Saltando([&] { ANumero(textos_[i]); }).value();
    situar(error, i);
    throw error;
}

Arboles::Arboles(CeldasDeArboles celdas, const UnidadesTallo& unidades, const ContornoXY& contorno)
    : celdas_{std::move(celdas)}, vertice_{MarcarVertices(celdas_, contorno)} {
    const FactoresDeTamano factores = FactoresDe(unidades);
    diametro_.reserve(cuantos());
    d_.reserve(cuantos());
    for (std::size_t i = 0; i < cuantos(); ++i) {
        const double diametro = celdas_.tamano.legible(i) ? ADiametro(tamano(i), factores) : sinNumero;
        diametro_.push_back(std::isfinite(diametro) ? diametro : sinNumero);
        d_.push_back(diametro_.back() / 100);
    }
}

void Arboles::fallarDiametro(std::size_t i) const {
    static_cast<void>(tamano(i)); // a cell that is no number faults here
    ErrorEjecucion error{fallo::desbordamiento};
    error.porque("el tamaño " + Cita(celdas_.tamano.texto(i)) + " es demasiado grande");
    celdas_.tamano.situar(error, i);
    throw error;
}

FactoresDeTamano FactoresDe(const UnidadesTallo& unidades) {
    FactoresDeTamano factores;
    if (unidades.circunferencia) {
        factores.dap = static_cast<float>(1.0 / numeroPi);
    }
    switch (unidades.unidad) {
    case UnidadLongitud::Centimetros:
        factores.unidad = 1;
        break;
    case UnidadLongitud::Decimetros:
        factores.unidad = 10;
        break;
    case UnidadLongitud::Metros:
        factores.unidad = 100;
        break;
    }
    return factores;
}

} // namespace varo
