// The choice of the sheet that holds the plot, and its copy into the grid of the data window.
#pragma once

#include "basico/Avance.h"
#include "basico/Entero16.h"
#include "basico/ErrorEjecucion.h"
#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "motor/Recordset.h"

#include <optional>
#include <string>

namespace varo {

class Programa;

/// It stays loaded, hidden, while a sheet is open: the text of CboHoja is the name of the open table.
class FrmSeleccion : public Formulario {
public:
    explicit FrmSeleccion(Programa& programa);

    Etiqueta Label1{*this, "Label1", "Seleccione la hoja que contiene los datos"};
    Desplegable CboHoja{*this, "CboHoja"};
    Boton CmdAceptar{*this, "CmdAceptar", "Aceptar"};
    Boton CmdCancelar{*this, "CmdCancelar", "Cancelar"};

    void CmdAceptar_Click();
    void CmdCancelar_Click();

    /// Copies a table into the grid as texts. The data of the last field never arrive, blank rows go, and
    /// columns without data are hidden. One that is cancelled leaves the grid and its connection as they
    /// were.
    void RellenarGrid(const std::string& hoja);

    /// Told whatever the fault is.
    static constexpr const char* hojaNoEncontrada =
        "No se ha encontrado la hoja seleccionada. Intente de nuevo";
    /// The fault behind the last one of these messages.
    [[nodiscard]] const std::optional<ErrorEjecucion>& ultimoFallo() const { return ultimoFallo_; }

private:
    void abrirHoja();
    void copiarTabla(const std::string& hoja, const Avance& avance);
    void escribirEncabezados(const std::string& hoja);
    void copiarFilas(const std::string& hoja, const Avance& avance);
    void copiarFila(const Recordset& filas, int campos, Entero16& contador);

    Programa& programa_;
    std::optional<ErrorEjecucion> ultimoFallo_;
};

} // namespace varo
