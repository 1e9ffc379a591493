// A program of small windows that log each step of their lives.
#pragma once

#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "formularios/ServiciosPreparados.h"
#include "formularios/Ventanas.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace varo {

using Diario = std::vector<std::string>;

struct ProgramaDePrueba : Ventanas {
    using Ventanas::Ventanas;

    template <class F>
    F& tocar() {
        return tocarEn<F>(*this);
    }

    void anotar(std::string linea) { diario.push_back(std::move(linea)); }
    /// What is new in the log since the last look.
    Diario visto() { return std::exchange(diario, {}); }

    Diario diario;
};

/// A window that logs its events as "Load A" and then does what the test asked for.
class VentanaAnotada : public Formulario {
public:
    VentanaAnotada(ProgramaDePrueba& programa, const std::string& nombre, TipoVentana tipo)
        : Formulario{programa, nombre, tipo, "Ventana " + nombre}, programa_{programa} {}

    void Form_Load() override { anotar("Load"); }
    void Form_Activate() override {
        anotar("Activate");
        hacer(alActivar);
    }
    void Form_Deactivate() override {
        anotar("Deactivate");
        hacer(alDesactivar);
    }
    void Form_Resize() override { anotar("Resize"); }
    bool Form_QueryUnload() override {
        anotar("QueryUnload");
        hacer(alPreguntar);
        return acepta;
    }
    void Form_Unload() override {
        anotar("Unload");
        hacer(alDescargarse);
    }

    bool acepta = true;
    Suceso alActivar;
    Suceso alDesactivar;
    Suceso alPreguntar;
    Suceso alDescargarse;

    CajaTexto Texto{*this, "Texto"};
    CajaTexto Otro{*this, "Otro"};
    Boton Cmd{*this, "Cmd", "Pulsar"};

protected:
    void anotar(const std::string& suceso) { programa_.anotar(suceso + " " + nombre()); }

private:
    static void hacer(const Suceso& suceso) {
        if (suceso) {
            suceso();
        }
    }

    ProgramaDePrueba& programa_;
};

struct VentanaA : VentanaAnotada {
    explicit VentanaA(ProgramaDePrueba& programa) : VentanaAnotada{programa, "A", TipoVentana::Libre} {}
};
struct VentanaB : VentanaAnotada {
    explicit VentanaB(ProgramaDePrueba& programa) : VentanaAnotada{programa, "B", TipoVentana::Libre} {}
};
struct VentanaC : VentanaAnotada {
    explicit VentanaC(ProgramaDePrueba& programa) : VentanaAnotada{programa, "C", TipoVentana::Libre} {}
};
struct Principal : VentanaAnotada {
    explicit Principal(ProgramaDePrueba& programa) : VentanaAnotada{programa, "P", TipoVentana::Marco} {}

    Menu mnuArchivo{*this, "mnuArchivo", "&Archivo"};
    Menu mnuAbrir{*this, "mnuAbrir", "&Abrir", &mnuArchivo};
    Menu mnuReciente{*this, "mnuReciente", "&Reciente", &mnuAbrir};
};
struct HijaUna : VentanaAnotada {
    explicit HijaUna(ProgramaDePrueba& programa) : VentanaAnotada{programa, "H1", TipoVentana::Hija} {}
};
struct HijaOtra : VentanaAnotada {
    explicit HijaOtra(ProgramaDePrueba& programa) : VentanaAnotada{programa, "H2", TipoVentana::Hija} {}
};

/// A program and a bare window, for what needs no life cycle.
struct Banco {
    ServiciosPreparados servicios;
    ProgramaDePrueba programa{servicios};
    Formulario ventana{programa, "FrmPrueba", TipoVentana::Libre, "Prueba"};

    /// Logs a line; the name of what happened is all that a test looks at.
    Suceso anotador(std::string linea) {
        return [this, linea = std::move(linea)] { programa.anotar(linea); };
    }
    Diario visto() { return programa.visto(); }
};

} // namespace varo
