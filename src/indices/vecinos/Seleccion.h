// The choice of the competitors of a subject among its candidates, by one of four rules, with the border
// detection and the ranks that belong to them.
#pragma once

#include "indices/vecinos/FuncionesDeLista.h"
#include "indices/vecinos/Lado.h"
#include "indices/vecinos/Marcas.h"
#include "indices/vecinos/Vecindad.h"

#include <cassert>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varo {

enum class ReglaDeSeleccion {
    BAF,        ///< seen under a wider angle than the basal area factor p asks for (m2/ha)
    NumeroFijo, ///< the first p in rank
    Funcion,    ///< within the distance that a function gives for the subject's diameter
    Distancia   ///< within the distance p (m)
};

/// What ranks the trees round a subject: how large they look (d / L), or how near they stand.
enum class OrdenDeRango { PorAngulo, PorDistancia };

/// The rank counts the strictly better trees, smaller ones included in a unilateral pass too.
struct Veredicto {
    enum class Juicio { Rechazado, Borde, Aceptado };
    Juicio juicio = Juicio::Rechazado;
    int rango = 1; ///< holds only for an accepted candidate, ranked by angle or under a fixed number
};

/// A candidate and what became of it.
struct Juzgado {
    Cuadricula::Fila fila = 0;
    double d = 0; ///< m
    double L = 0; ///< its distance to the subject (m)
    Veredicto veredicto;
};

/// Distances in metres. Faults of two trees in one place: 11 under BAF, and wherever angles are ranked. The
/// order of the calls: `poner`, then `empezar` for each subject, then the rest.
class Seleccion {
public:
    using Fila = Cuadricula::Fila;

    /// Distances, both ends included.
    struct Distancias {
        double desde = 0, hasta = 0;
    };

    Seleccion(Vecindad& vecindad, ReglaDeSeleccion regla, OrdenDeRango orden);

    /// The parameter of a column: the value p, or with the rule Funcion an entry of the list of functions.
    void poner(double p);
    void poner(std::string entrada);

    /// Takes a subject with a size, and finds its candidates.
    void empezar(std::size_t i, Lado lado);
    /// In the order of the rows; the subject itself and trees without a size may be among them. A tree that
    /// is left out would be rejected without a fault, or its turn never comes, since the first one that the
    /// side rule lets through ends the subject.
    [[nodiscard]] std::span<const Fila> candidatos() const {
        assert(sujeto_);
        return candidatos_;
    }
    /// The distances at which the trees that would be rejected may stand; nothing when none is left out.
    [[nodiscard]] std::optional<Distancias> distanciasDeApartados() const;
    /// Makes every tree a candidate, for a caller that may fault on a rejected one too.
    void mirarTodos() {
        assert(sujeto_);
        candidatos_ = vecindad_.todas;
        sinFallos_ = false;
    }

    /// Whether no candidate can fault here. Then `juzgados` gives what `candidatos` and `juzgar` would.
    [[nodiscard]] bool sinFallos() const {
        assert(sujeto_);
        return sinFallos_;
    }
    /// The candidates that the side rule lets through, in the order of the rows and judged; the last one is
    /// the first that makes the subject a border tree.
    [[nodiscard]] std::span<const Juzgado> juzgados();

    /// Sizes and distances of candidates (m), side by side.
    struct Medidas {
        std::span<const double> d, L;
        double limite = 0; ///< those within this distance are accepted, the others rejected
    };
    /// Whether no candidate can fault and the distance alone judges. Then `medidas` serves as `juzgados`
    /// does.
    [[nodiscard]] bool bastaLaDistancia() const {
        return sinFallos() && limita() && orden_ == OrdenDeRango::PorDistancia;
    }
    /// Of the candidates that the side rule lets through, in the order of the rows.
    [[nodiscard]] Medidas medidas();

    /// Judges a candidate that the side rule let through.
    Veredicto juzgar(std::size_t j);

    /// The distance of the subject to a tree.
    [[nodiscard]] double L(std::size_t j) const;

private:
    [[nodiscard]] double razon(std::size_t j) const;
    [[nodiscard]] double clave(std::size_t j) const;
    /// Whether the rule asks for trees within a distance.
    [[nodiscard]] bool limita() const {
        return regla_ == ReglaDeSeleccion::Funcion || regla_ == ReglaDeSeleccion::Distancia;
    }
    [[nodiscard]] double limite();

    void empezarPorAngulo();
    void empezarPorNumero();
    void empezarPorLimite();
    void dejarElPrimero();
    void confiar();
    void medirCercanas();
    [[nodiscard]] Veredicto juzgarSinFallos(double d, double L);
    [[nodiscard]] int rangoDe(double clave);
    void proponer(double alcance);
    void dejarLosPrimeros(double puesto);

    Veredicto juzgarPorAngulo(std::size_t j);
    Veredicto juzgarPorNumero(std::size_t j);
    Veredicto juzgarPorLimite(std::size_t j);
    Veredicto aceptar(std::size_t j);

    [[nodiscard]] double claveDe(double d, double L) const;
    int rango(std::size_t j);
    int rangoPasoAPaso(std::size_t j);
    bool adelanta(std::size_t m, std::size_t j);
    [[nodiscard]] bool pasaDelNumero(int rango) const;
    void reunirClaves();
    void ordenarClaves();

    Vecindad& vecindad_;
    const Arboles& arboles_;
    ReglaDeSeleccion regla_;
    OrdenDeRango orden_;
    double p_ = 0;
    std::string entrada_;
    std::optional<FuncionDeLimite> funcion_; ///< the entry, once it was read

    bool puesta_ = false; ///< has a parameter
    std::optional<std::size_t> sujeto_;
    Lado lado_ = Lado::Bilateral;
    bool pasoAPaso_ = false; ///< some step of the ranks may fault
    bool sinFallos_ = false;
    double alturaMinima_ = 0; ///< of the subject over the sides (m), where nothing faults
    std::optional<double> limite_;
    double alcance_ = 0; ///< trees that would be rejected and are no candidates stand farther
    std::span<const Fila> candidatos_;
    bool clavesListas_ = false, clavesEnOrden_ = false;
    std::vector<double> claves_; ///< of the trees that count in ranks; in order, from the best to the worst

    ArbolesCercanos cercanas_;
    std::vector<double> distancias_, tamanos_; ///< of each of them (m), where nothing faults
    std::vector<Juzgado> juzgados_;
};

/// Visits them as RecorrerCompetidores visits candidates.
template <class Visita>
bool RecorrerJuzgados(std::span<const Juzgado> juzgados, Pareja& pareja, Visita visita) {
    for (const Juzgado& juzgado : juzgados) {
        pareja.vecino = juzgado.fila;
        if (!visita(juzgado)) {
            return false;
        }
    }
    pareja.vecino = pareja.sujeto;
    return true;
}

} // namespace varo
