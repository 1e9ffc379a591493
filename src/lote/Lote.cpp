#include "lote/Lote.h"

#include "basico/ErrorEjecucion.h"
#include "lote/LineaDeOrdenes.h"
#include "lote/plantilla/Plantilla.h"
#include "lote/plantilla/Tablas.h"
#include "lote/recorrido/Recorrido.h"
#include "lote/trabajo/Salidas.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <mutex>
#include <ostream>
#include <thread>
#include <variant>

namespace varo {

namespace {

/// How one job ended, and what it has to say, line by line.
struct Final {
    Estado estado = Estado::Hecho;
    std::string resumen;
    std::vector<std::string> errores; ///< warnings, and at most one error behind them
};

using TrabajoLeido = std::variant<Trabajo, Final>;

/// Runs a piece of a job; how it fails becomes part of its end.
template <class Acto>
void Terminar(Final& final, const std::filesystem::path& trabajo, Acto&& acto) {
    try {
        std::forward<Acto>(acto)();
    } catch (const ErrorTrabajo& error) {
        final.estado = error.estado();
        final.errores.emplace_back(error.what());
    } catch (const std::exception& error) {
        final.estado = Estado::ErrorInterno;
        final.errores.push_back(LineaDeAviso(trabajo, {}, std::string{"error interno: "} + error.what()));
    }
}

class Lote {
public:
    Lote(const Ordenes& ordenes, const Consola& consola, PintorDeMapas* pintor)
        : ordenes_{ordenes}, consola_{consola}, pintor_{pintor} {}

    Estado correr() {
        leer();
        RechazarSalidasEnConflicto(correctos());
        std::vector<std::promise<Final>> promesas(leidos_.size());
        std::vector<std::future<Final>> finales;
        finales.reserve(promesas.size());
        for (auto& promesa : promesas) {
            finales.push_back(promesa.get_future());
        }
        std::atomic<std::size_t> siguiente{0};
        std::vector<std::jthread> obreros;
        const std::size_t cuantos = std::min(static_cast<std::size_t>(ordenes_.aLaVez), leidos_.size());
        for (std::size_t i = 0; i < cuantos; ++i) {
            obreros.emplace_back([&] {
                for (std::size_t j = siguiente++; j < leidos_.size(); j = siguiente++) {
                    promesas[j].set_value(finalDe(leidos_[j]));
                }
            });
        }
        return contar(finales);
    }

private:
    void leer() {
        for (const auto& ruta : ordenes_.trabajos) {
            Final final;
            Terminar(final, ruta, [&] { leidos_.emplace_back(LeerTrabajo(ruta, ordenes_.cambios)); });
            if (final.estado != Estado::Hecho) {
                leidos_.emplace_back(std::move(final));
            }
        }
    }

    [[nodiscard]] std::vector<Trabajo> correctos() const {
        std::vector<Trabajo> trabajos;
        for (const auto& leido : leidos_) {
            if (const auto* const trabajo = std::get_if<Trabajo>(&leido)) {
                trabajos.push_back(*trabajo);
            }
        }
        return trabajos;
    }

    Final finalDe(const TrabajoLeido& leido) {
        if (const auto* const final = std::get_if<Final>(&leido)) {
            return *final;
        }
        const auto& trabajo = std::get<Trabajo>(leido);
        Final final;
        Seguimiento seguimiento;
        seguimiento.aviso = [&](const std::string& aviso) { final.errores.push_back(aviso); };
        if (consola_.conAvance) {
            seguimiento.etapa = [this](const std::string& etapa) { decir(etapa); };
        }
        Terminar(final, trabajo.ruta, [&] {
            const Informe informe = CorrerTrabajo(trabajo, seguimiento, pintor_);
            final.resumen = LineaDeAviso(trabajo.ruta, {}, informe.texto(trabajo));
        });
        return final;
    }

    /// Tells the ends of the jobs in their order, each as soon as it is known.
    Estado contar(std::vector<std::future<Final>>& finales) {
        Estado estado = Estado::Hecho;
        for (auto& futuro : finales) {
            const Final final = futuro.get();
            for (const auto& linea : final.errores) {
                decir(linea);
            }
            if (final.estado == Estado::Hecho) {
                consola_.salida << final.resumen << '\n' << std::flush;
            } else if (estado == Estado::Hecho) {
                estado = final.estado;
            }
        }
        return estado;
    }

    void decir(const std::string& linea) {
        const std::lock_guard turno{consolaLibre_};
        consola_.errores << linea << '\n' << std::flush;
    }

    const Ordenes& ordenes_;
    const Consola& consola_;
    PintorDeMapas* pintor_;
    std::mutex consolaLibre_;
    std::vector<TrabajoLeido> leidos_;
};

Estado Ejecutar(const Ordenes& ordenes, const Consola& consola, PintorDeMapas* pintor) {
    if (ordenes.texto) {
        consola.salida << *ordenes.texto;
    } else if (ordenes.tablas) {
        consola.salida << ListaDeTablas(*ordenes.tablas);
    } else if (ordenes.plantilla) {
        consola.salida << PlantillaDeTrabajo(*ordenes.plantilla);
    } else {
        return Lote{ordenes, consola, pintor}.correr();
    }
    return Estado::Hecho;
}

} // namespace

Estado EjecutarLote(const std::vector<std::string>& argumentos, const Consola& consola,
                    PintorDeMapas* pintor) {
    try {
        const Estado estado = Ejecutar(LeerOrdenes(argumentos), consola, pintor);
        if (!consola.salida.flush()) {
            consola.errores << "varo-lote: no se puede escribir en la salida\n";
            return estado == Estado::Hecho ? Estado::ErrorDeArchivo : estado;
        }
        return estado;
    } catch (const ErrorDeOrden& error) {
        consola.errores << "varo-lote: " << error.what() << '\n';
        return Estado::Rechazado;
    } catch (const ErrorTrabajo& error) {
        consola.errores << error.what() << '\n';
        return error.estado();
    } catch (const ErrorEjecucion& error) {
        consola.errores << "varo-lote: " << error.what() << '\n';
        return Estado::ErrorDeArchivo;
    }
}

} // namespace varo
