// The figures of one plot data run: stems and basal area per hectare, crowns and cover.
#pragma once

#include "basico/Entero16.h"
#include "basico/MatrizDinamica.h"
#include "formularios/Control.h"
#include "formularios/Formulario.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

class Programa;

/// What a run hands over to the window.
struct CifrasDeParcela {
    // By code, when the run has codes.
    Entero16 numCodigos{};
    std::vector<std::string> codigos{}; ///< may hold more than numCodigos says
    MatrizDinamica<double> piesHaCodigo{};
    MatrizDinamica<double> abHaCodigo{};

    double piesHa = 0; ///< stems/ha
    double abHa = 0;   ///< m2/ha

    // A figure without a value keeps its caption.
    std::optional<std::string> titulo{};
    std::optional<double> superficie{}; ///< m2, as all areas
    std::optional<double> areaCopas{};
    std::optional<double> areaCopasInterior{};
    std::optional<double> areaIntersecCopas{};
    std::optional<float> fcc{};
};

/// It has no commands: a person reads it and closes it. What a run writes stays while it is loaded.
class FrmResultados : public Formulario {
public:
    explicit FrmResultados(Programa& programa);

    Etiqueta LbParcela{*this, "LbParcela", "Label1"};
    Etiqueta LbAreaTotal{*this, "LbAreaTotal", "Superficie"};
    Etiqueta LbPiesHa{*this, "LbPiesHa", "Nº de pies/ha:"};
    Etiqueta LbCodPha{*this, "LbCodPha", "Cod:"};
    Matriz<Etiqueta> LbPiesHaCodigo{*this, "LbPiesHaCodigo"};
    Etiqueta LbValorPha{*this, "LbValorPha", "Valor:"};
    Matriz<Etiqueta> LbPiesHaValor{*this, "LbPiesHaValor"};
    Etiqueta LbAbHa{*this, "LbAbHa", "Area basimétrica (m2/ha):"};
    Etiqueta LbCodAbha{*this, "LbCodAbha", "Cod:"};
    Matriz<Etiqueta> LbAbHaCodigo{*this, "LbAbHaCodigo"};
    Etiqueta LbValorAbha{*this, "LbValorAbha", "Valor:"};
    Matriz<Etiqueta> LbAbHaValor{*this, "LbAbHaValor"};
    Etiqueta LbSupCop{*this, "LbSupCop"};
    Etiqueta LbAreaCopas{*this, "LbAreaCopas", "Area total de Copas:"};
    Etiqueta LbAreaCopasInterior{*this, "LbAreaCopasInterior", "Area total de Copas interior:"};
    Etiqueta LbAreaIntersecCopas{*this, "LbAreaIntersecCopas", "Area de Intersección de copas:"};
    Etiqueta LbFcc{*this, "LbFcc", "Fcc:"};

    /// Both tables, a column for each code and one for the total; the window grows with them. Each statement
    /// that fails is passed over, here and in the other two.
    void tablasConCodigos(const CifrasDeParcela& cifras);
    /// Both tables with the total alone.
    void tablasSinCodigos(const CifrasDeParcela& cifras);
    /// The title and the captions that are no table.
    void resumen(const CifrasDeParcela& cifras);

    void Form_Unload() override;

private:
    Programa& programa_;
};

} // namespace varo
