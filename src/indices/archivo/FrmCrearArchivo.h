// The end of a run: names the results file and writes it.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "formularios/ListasDeArchivos.h"

#include <functional>
#include <optional>
#include <string>

namespace varo {

class ArchivoDeTexto;
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
    /// Programa::fallosAlGuardar. When no file came of it, the last message says why.
    void CmdAceptar_Click();

private:
    [[nodiscard]] std::string rutaElegida() const;
    std::optional<ErrorEjecucion> sentencia(const std::function<void()>& acto);
    void abrir(ArchivoDeTexto& archivo, const std::string& ruta) const;
    void decirNoEscrito(const ErrorEjecucion& causa, const std::string& ruta) const;

    Programa& programa_;
};

} // namespace varo
