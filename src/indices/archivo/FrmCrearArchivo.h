// The end of a run: names the results file and writes it.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "formularios/ListasDeArchivos.h"

#include <functional>
#include <string>

namespace varo {

class Programa;

class FrmCrearArchivo : public Formulario {
public:
    explicit FrmCrearArchivo(Programa& programa);

    ListaUnidades DrvLista{*this, "DrvLista"};
    ListaCarpetas DirLista{*this, "DirLista"};
    ListaArchivos FilLista{*this, "FilLista"};
    CajaTexto TxtLista{*this, "TxtLista"};
    Boton CmdAceptar{*this, "CmdAceptar", "Aceptar"};
    Boton CmdCancelar{*this, "CmdCancelar", "Cancelar"};

    void Form_Load() override;
    void FilLista_Click();
    void DirLista_Change();
    void DrvLista_Change();
    void CmdCancelar_Click();
    /// Writes the file. A statement that fails is passed over and the next one runs; the faults stay in
    /// Programa::fallosAlGuardar.
    void CmdAceptar_Click();

private:
    [[nodiscard]] std::string rutaElegida() const;
    void sentencia(const std::function<void()>& acto);

    Programa& programa_;
};

} // namespace varo
