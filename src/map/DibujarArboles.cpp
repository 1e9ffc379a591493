#include "map/DibujarArboles.h"

#include "data/CeldasSituadas.h"
#include "data/Hojadedatos.h"
#include "data/PadronDeArboles.h"
#include "data/Papeles.h"
#include "map/DibujarCopa.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "map/ValoresDeFormato.h"
#include "options/OpcionesPrograma.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <optional>
#include <unordered_map>

namespace varo {

namespace {

constexpr Color negro = 0;

/// The rows of the format window by their codes; of two rows with one code the first.
std::unordered_map<std::string, int> FilasPorCodigo(Programa& programa) {
    const auto& etiquetas = programa.tocar<FrmFormato>().LbCodigo;
    std::unordered_map<std::string, int> filas;
    for (int codigo = 0; codigo < programa.sesion.NumCodigos.valor(); ++codigo) {
        filas.emplace(etiquetas(codigo).Caption(), codigo);
    }
    return filas;
}

class DibujanteDeArboles {
public:
    explicit DibujanteDeArboles(Programa& programa)
        : sesion_{programa.sesion}, opciones_{programa.tocar<OpcionesPrograma>()},
          mapa_{programa.tocar<FrmMapa>()}, rejilla_{programa.tocar<Hojadedatos>().MSFlexGrid1},
          celdas_{rejilla_, PadronDeLaRejilla(programa)}, datos_{DatosDeLaCopa(opciones_)},
          conCodigo_{opciones_.ChCodigo.Value() == 1}, codigos_{FilasPorCodigo(programa)},
          avance_{programa.servicios().avance()} {}

    void dibujar() {
        mapa_.arboles.reserve(static_cast<std::size_t>(rejilla_.Rows()));
        avance_.etapa("Dibujo del mapa");
        avance_.empezar(static_cast<std::size_t>(rejilla_.Rows()) - 1);
        for (int fila = 1; fila < rejilla_.Rows(); ++fila) {
            dibujar(fila);
            avance_.paso();
        }
    }

private:
    void dibujar(int fila) {
        const ArbolDelMapa arbol = leer(fila);
        const auto codigo = buscarCodigo(arbol.codigo);
        Lienzo& lienzo = mapa_.lienzo;
        if (conCodigo_) {
            lienzo.ForeColor = codigo ? ColorDeTexto(sesion_.CodColor(*codigo)) : negro;
        }
        lienzo.FillColor = rellenoDe(codigo);
        if (opciones_.OptElipse.Value) {
            DibujarCopa(lienzo, arbol.copa);
        } else if (opciones_.Optcirc.Value) {
            DibujarCirculo(lienzo, arbol.copa);
        }
        lienzo.FillColor.reset();
        rotular(fila, arbol, codigo);
        mapa_.arboles.push_back(arbol);
    }

    [[nodiscard]] ArbolDelMapa leer(int fila) const {
        ArbolDelMapa arbol;
        arbol.copa.x = celdas_.numero(fila, columna(papelX));
        arbol.copa.y = celdas_.numero(fila, columna(papelY));
        ponerRadios(arbol.copa, fila);
        arbol.numero = celdas_.texto(fila, columna(PapelIndice(datos_)));
        if (conCodigo_) {
            arbol.codigo = celdas_.texto(fila, columna(PapelCodigo(datos_)));
        }
        const int columnaDAP = sesion_.ColumnaDAP.valor();
        if (columnaDAP > 0 && columnaDAP < rejilla_.Cols()) {
            arbol.tamano = celdas_.texto(fila, columnaDAP);
        }
        return arbol;
    }

    void ponerRadios(Copa& copa, int fila) const {
        switch (datos_) {
        case DatosDeCopa::CuatroRadios:
            copa.N = metros(fila, 0);
            copa.E = metros(fila, 1);
            copa.S = metros(fila, 2);
            copa.W = metros(fila, 3);
            break;
        case DatosDeCopa::DosDiametros:
            copa.N = copa.S = metros(fila, 0) / 2;
            copa.E = copa.W = metros(fila, 1) / 2;
            break;
        case DatosDeCopa::RadioMedio:
            copa.N = copa.E = copa.S = copa.W = metros(fila, 0);
            break;
        }
    }

    /// A measure of the crown; an empty cell counts as 0.
    [[nodiscard]] double metros(int fila, int medida) const {
        const int columnaDeMedida = columna(PapelDeCopa(medida));
        if (celdas_.texto(fila, columnaDeMedida).empty()) {
            return 0;
        }
        return celdas_.numero(fila, columnaDeMedida) / FactorDeRadios(opciones_);
    }

    [[nodiscard]] std::optional<int> buscarCodigo(const std::string& codigo) const {
        const auto hallado = codigos_.find(codigo);
        return conCodigo_ && hallado != codigos_.end() ? std::optional{hallado->second} : std::nullopt;
    }

    /// Crowns of four radii alone are filled, and only with a background that somebody chose.
    [[nodiscard]] Relleno rellenoDe(const std::optional<int>& codigo) const {
        if (datos_ != DatosDeCopa::CuatroRadios || !codigo || !FondoElegido(sesion_, *codigo)) {
            return std::nullopt;
        }
        return ColorDeTexto(sesion_.CodColorFondo(*codigo));
    }

    void rotular(int fila, const ArbolDelMapa& arbol, const std::optional<int>& codigo) {
        constexpr double metrosAlNorte = 2;
        Etiqueta& etiqueta = mapa_.crearCodigo(fila);
        if (codigo) {
            etiqueta.ForeColor = ColorDeTexto(sesion_.CodColor(*codigo));
        }
        etiqueta.Left = arbol.copa.x;
        etiqueta.Top = arbol.copa.y + metrosAlNorte;
        etiqueta.Caption = arbol.numero;
        mapa_.mostrar(etiqueta);
    }

    [[nodiscard]] int columna(int papel) const { return sesion_.Columnas(papel).valor(); }

    const Sesion& sesion_;
    const OpcionesPrograma& opciones_;
    FrmMapa& mapa_;
    const Rejilla& rejilla_;
    CeldasSituadas celdas_;
    DatosDeCopa datos_;
    bool conCodigo_;
    std::unordered_map<std::string, int> codigos_;
    Avance avance_;
};

} // namespace

void DibujarArboles(Programa& programa) {
    DibujanteDeArboles{programa}.dibujar();
}

} // namespace varo
