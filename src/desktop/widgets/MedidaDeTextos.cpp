#include "desktop/widgets/MedidaDeTextos.h"

#include "desktop/Texto.h"

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>

namespace varo {

namespace {

constexpr double anchoMayor = 32667 / twipsPorPunto; ///< of a text, in pixels, as in the grid itself

/// Keeps the widest of the texts that it is shown. Laying out a text is slow, so a text of plain letters is
/// laid out only when their widths add up to more than those of any other before.
class MedidorDeColumna {
public:
    using Letras = std::array<double, 128>;

    MedidorDeColumna(const QFontMetricsF& letra, const Letras& letras) : letra_{letra}, letras_{letras} {}

    void mirar(const std::string& texto) {
        double suma = 0;
        for (const char byte : texto) {
            const auto codigo = static_cast<unsigned char>(byte);
            if (codigo >= letras_.size()) {
                medir(texto);
                return;
            }
            suma += letras_.at(codigo);
        }
        if (suma > mayorSuma_) {
            mayorSuma_ = suma;
            medir(texto);
        }
    }
    [[nodiscard]] double ancho() const { return ancho_; }

private:
    void medir(const std::string& texto) {
        if (ancho_ < anchoMayor) {
            ancho_ = std::max(ancho_, letra_.horizontalAdvance(AQt(texto)));
        }
    }

    const QFontMetricsF& letra_;
    const Letras& letras_;
    double mayorSuma_ = 0;
    double ancho_ = 0;
};

} // namespace

std::vector<int> MedirColumnas(const Rejilla& rejilla, const QFontMetricsF& letra) {
    constexpr double margen = 100; // in twips
    MedidorDeColumna::Letras letras{};
    for (std::size_t codigo = 0; codigo < letras.size(); ++codigo) {
        letras.at(codigo) = letra.horizontalAdvance(QChar{static_cast<ushort>(codigo)});
    }
    std::vector<int> anchos;
    for (int columna = 0; columna < rejilla.Cols(); ++columna) {
        MedidorDeColumna medidor{letra, letras};
        medidor.mirar(rejilla.TextMatrix(0, columna == 0 && rejilla.Cols() > 1 ? 1 : columna));
        for (int fila = 1; columna > 0 && fila < rejilla.Rows(); ++fila) {
            medidor.mirar(rejilla.TextMatrix(fila, columna));
        }
        const double ancho = std::min(medidor.ancho(), anchoMayor);
        anchos.push_back(APuntos(static_cast<int>(std::nearbyint(ancho * twipsPorPunto + margen))));
    }
    return anchos;
}

} // namespace varo
