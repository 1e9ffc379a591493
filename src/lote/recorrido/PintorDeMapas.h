// Who makes pictures of a map: it stands outside of the jobs, which start no toolkit of their own.
#pragma once

#include <set>
#include <string>

namespace varo {

class FrmMapa;

/// Several jobs may ask it at once.
class PintorDeMapas {
public:
    PintorDeMapas() = default;
    PintorDeMapas(const PintorDeMapas&) = delete;
    PintorDeMapas& operator=(const PintorDeMapas&) = delete;
    virtual ~PintorDeMapas() = default;

    /// The bytes of the picture of a map, in the format of the extension: ".svg", ".pdf" or ".png". What it
    /// cannot do is an ErrorEjecucion.
    virtual std::string pintar(const FrmMapa& mapa, const std::string& extension) = 0;
    /// Those of the fonts that the system does not have: they are painted with others.
    virtual std::set<std::string> fuentesQueFaltan(std::set<std::string> fuentes) = 0;
};

} // namespace varo
