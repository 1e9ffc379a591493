#include "lote/Lote.h"

#include "basico/AlSalir.h"
#include "basico/Cuadrilla.h"
#include "basico/ErrorEjecucion.h"
#include "lote/FinalDeTrabajo.h"
#include "lote/LineaDeAvance.h"
#include "lote/LineaDeOrdenes.h"
#include "lote/plantilla/Plantilla.h"
#include "lote/plantilla/Tablas.h"
#include "lote/recorrido/Recorrido.h"
#include "lote/revision/RevisarTrabajos.h"
#include "lote/trabajo/Salidas.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <ostream>
#include <thread>
#include <variant>

namespace varo {

namespace {

using TrabajoLeido = std::variant<Trabajo, FinalDeTrabajo>;

class Lote {
public:
    Lote(const Ordenes& ordenes, const Consola& consola, PintorDeMapas* pintor)
        : ordenes_{ordenes}, consola_{consola}, pintor_{pintor}, linea_{consola.errores, consola.ancho,
                                                                        ordenes.trabajos.size()} {}

    Estado correr() {
        leer();
        RechazarSalidasEnConflicto(correctos());
        std::vector<std::promise<FinalDeTrabajo>> promesas(leidos_.size());
        std::vector<std::future<FinalDeTrabajo>> finales;
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
            FinalDeTrabajo final;
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

    FinalDeTrabajo finalDe(std::size_t numero, Cuadrilla& cuadrilla) {
        const AlSalir contarlo{[&] { linea_.acabado(numero); }};
        if (const auto* const final = std::get_if<FinalDeTrabajo>(&leidos_[numero])) {
            return *final;
        }
        const auto& trabajo = std::get<Trabajo>(leidos_[numero]);
        FinalDeTrabajo final;
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
    Estado contar(std::vector<std::future<FinalDeTrabajo>>& finales) {
        Estado estado = Estado::Hecho;
        for (auto& futuro : finales) {
            const FinalDeTrabajo final = futuro.get();
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
    } else if (ordenes.revisar) {
        return RevisarTrabajos(ordenes, consola);
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
