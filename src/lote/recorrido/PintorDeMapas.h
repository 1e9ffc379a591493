// Who makes pictures of a map: it stands outside of the jobs, which start no toolkit of their own.
#pragma once

#include <functional>
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

    /// The bytes of the picture of a map, in the format of the extension: ".svg", ".pdf" or ".png". `avisar`
    /// hears of what it shows otherwise than asked, such as a font that is not installed. What it cannot do
    /// is an ErrorEjecucion.
    virtual std::string pintar(const FrmMapa& mapa, const std::string& extension,
                               const std::function<void(const std::string&)>& avisar) = 0;
};

} // namespace varo
