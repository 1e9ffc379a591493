#include "lote/Lote.h"

#include "basico/AlSalir.h"
#include "basico/Cuadrilla.h"
#include "basico/ErrorEjecucion.h"
#include "lote/LineaDeAvance.h"
#include "lote/LineaDeOrdenes.h"
#include "lote/plantilla/Plantilla.h"
#include "lote/plantilla/Tablas.h"
#include "lote/recorrido/Recorrido.h"
#include "lote/trabajo/Salidas.h"

#include <algorithm>
#include <atomic>
#include <future>
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
        : ordenes_{ordenes}, consola_{consola}, pintor_{pintor}, linea_{consola.errores, consola.ancho,
                                                                        ordenes.trabajos.size()} {}

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
            obreros.emplace_back([&, hilos = hilosDe(cuantos)] {
                Cuadrilla cuadrilla{hilos};
                for (std::size_t j = siguiente++; j < leidos_.size(); j = siguiente++) {
                    promesas[j].set_value(finalDe(j, cuadrilla));
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

    /// The threads of each of the jobs that run at once.
    [[nodiscard]] std::size_t hilosDe(std::size_t aLaVez) const {
        return ordenes_.hilos ? static_cast<std::size_t>(*ordenes_.hilos)
                              : std::max<std::size_t>(1, Cuadrilla::losDeLaMaquina() / aLaVez);
    }

    Final finalDe(std::size_t numero, Cuadrilla& cuadrilla) {
        const AlSalir contarlo{[&] { linea_.acabado(numero); }};
        if (const auto* const final = std::get_if<Final>(&leidos_[numero])) {
            return *final;
        }
        const auto& trabajo = std::get<Trabajo>(leidos_[numero]);
        Final final;
        Seguimiento seguimiento;
        seguimiento.aviso = [&](const std::string& aviso) { final.errores.push_back(aviso); };
        if (linea_.seVe()) {
            seguimiento.etapa = [&](const std::string& etapa) { linea_.etapa(numero, etapa); };
            seguimiento.marcha = [&](const Marcha& marcha, int arboles) {
                linea_.marcha(numero, marcha, arboles);
            };
        }
        Terminar(final, trabajo.ruta, [&] {
            const Informe informe = CorrerTrabajo(trabajo, seguimiento, pintor_, &cuadrilla);
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
                linea_.decir(linea);
            }
            if (final.estado == Estado::Hecho) {
                linea_.decir(final.resumen, consola_.salida);
            } else if (estado == Estado::Hecho) {
                estado = final.estado;
            }
        }
        return estado;
    }

    const Ordenes& ordenes_;
    const Consola& consola_;
    PintorDeMapas* pintor_;
    LineaDeAvance linea_;
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
