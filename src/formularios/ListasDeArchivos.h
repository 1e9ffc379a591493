// The platform's lists of drives, folders and files; one line of them is selected at a time.
#pragma once

#include "formularios/Control.h"

#include <string>

namespace varo {

/// The drives of the machine: the roots under which paths stand.
class ListaUnidades : public Lista {
public:
    ListaUnidades(Formulario& ventana, Identidad identidad);

    Propiedad<std::string> Drive;
    Suceso Change;

protected:
    void alCambiar(const void* propiedad) override;
};

/// The folders of a folder, the one above first; a double click on a line goes there. A path that cannot be
/// listed throws 68 and changes nothing.
class ListaCarpetas : public Lista {
public:
    ListaCarpetas(Formulario& ventana, Identidad identidad);

    [[nodiscard]] const std::string& Path() const { return ruta_; }
    void Path(const std::string& ruta);
    Suceso Change;

private:
    void entrar();

    std::string ruta_;
};

/// The files of a folder, by name.
class ListaArchivos : public Lista {
public:
    ListaArchivos(Formulario& ventana, Identidad identidad);

    [[nodiscard]] const std::string& Path() const { return ruta_; }
    void Path(const std::string& ruta);
    /// The selected file; the empty text when none is.
    [[nodiscard]] std::string FileName() const;

private:
    std::string ruta_;
};

} // namespace varo
