// The choice of the competitors of a subject among its candidates, by one of four rules, with the border
// detection and the ranks that belong to them.
#pragma once

#include "indices/vecinos/FuncionesDeLista.h"
#include "indices/vecinos/Vecindad.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varo {

enum class ReglaDeSeleccion {
    BAF,        ///< seen under a wider angle than the basal area factor p asks for (m2/ha)
    NumeroFijo, ///< the first p in rank
    Funcion,    ///< within a distance that a function gives for the subject's diameter
    Distancia   ///< within the distance p (m)
};

/// What ranks the trees round a subject: how large they look (d / L), or how near they stand.
enum class OrdenDeRango { PorAngulo, PorDistancia };

/// The rank counts the strictly better trees, smaller ones included in a unilateral pass too.
struct Veredicto {
    enum class Clase { Rechazado, Borde, Aceptado };
    Clase clase = Clase::Rechazado;
    int rango = 1; ///< meant only for an accepted candidate, ranked by angle or under a fixed number
};

/// Distances in metres. Faults of two trees in one place: 11 under BAF, and wherever angles are ranked.
class Seleccion {
public:
    using Fila = Vecindario::Fila;

    Seleccion(Vecindad& vecindad, ReglaDeSeleccion regla, OrdenDeRango orden);

    /// The parameter of a column: the value p, or an entry of the list of functions.
    void poner(double p) { p_ = p; }
    void poner(std::string entrada);

    /// Takes a subject, and works out its candidates.
    void empezar(std::size_t i, bool unilateral);
    /// In the order of the rows; the subject itself and trees without a size may be among them. A tree that
    /// is left out is farther than `alcance` and would be rejected without a fault, or its turn never comes,
    /// since the first one that the side rule lets through ends the subject.
    [[nodiscard]] std::span<const Fila> candidatos() const { return candidatos_; }
    [[nodiscard]] double alcance() const { return alcance_; }
    /// Makes every tree a candidate, for who does with a rejected one what may fault.
    void mirarTodos() { candidatos_ = vecindad_.todas; }

    /// Judges a candidate that the side rule let through.
    Veredicto juzgar(std::size_t j);

    /// The distance of the subject to a tree.
    [[nodiscard]] double L(std::size_t j) const;

private:
    [[nodiscard]] double razon(std::size_t j) const;
    [[nodiscard]] double clave(std::size_t j) const;
    [[nodiscard]] bool limita() const { return regla_ >= ReglaDeSeleccion::Funcion; }
    [[nodiscard]] double limite();

    void empezarPorAngulo();
    void empezarPorNumero();
    void empezarPorLimite(bool unilateral);
    void proponer(double alcance);
    void dejarLosPrimeros(double puesto);

    Veredicto juzgarPorAngulo(std::size_t j);
    Veredicto juzgarPorNumero(std::size_t j);
    Veredicto juzgarPorLimite(std::size_t j);
    Veredicto aceptar(std::size_t j);

    int rango(std::size_t j);
    int rangoPasoAPaso(std::size_t j);
    void ordenarClaves();

    Vecindad& vecindad_;
    const Arboles& arboles_;
    ReglaDeSeleccion regla_;
    OrdenDeRango orden_;
    double p_ = 0;
    std::string entrada_;
    std::optional<FuncionDeLimite> funcion_; ///< the entry, once it was read

    std::size_t sujeto_ = 0;
    bool pasoAPaso_ = false; ///< some step of the ranks may fault
    std::optional<double> limite_;
    double alcance_ = 0;
    std::span<const Fila> candidatos_;
    bool clavesListas_ = false;
    std::vector<double> claves_; ///< of the trees that count in ranks, from the best to the worst

    std::vector<Fila> cercanas_;
};

} // namespace varo
