// The pieces of which the pages of the options dialog are made.
#pragma once

#include "desktop/Vinculos.h"
#include "desktop/formulas/CajaDeFormula.h"
#include "options/OpcionesPrograma.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>
#include <vector>

namespace varo {

class PiezasDeOpciones {
public:
    PiezasDeOpciones(OpcionesPrograma& ventana, Vinculos& vinculos)
        : ventana_{ventana}, vinculos_{vinculos} {}

    [[nodiscard]] OpcionesPrograma& ventana() const { return ventana_; }

    static constexpr int separacion = 12; ///< between the parts of a page, in pixels

    [[nodiscard]] QWidget* crear(Etiqueta& control) const { return vinculos_.crearEtiqueta(control); }
    [[nodiscard]] QWidget* crear(Casilla& control) const { return vinculos_.crearCasilla(control); }
    [[nodiscard]] QWidget* crear(Opcion& control) const { return vinculos_.crearOpcion(control); }

    /// A frame without content and without a layout.
    [[nodiscard]] QGroupBox* crearMarco(Marco& marco) const { return vinculos_.crearMarco(marco); }

    /// A frame with its controls one under the other, or side by side.
    template <class... C>
    [[nodiscard]] QGroupBox* crearMarcoEnColumna(Marco& marco, C&... controles) const {
        auto* const grupo = crearMarco(marco);
        llenar(*new QVBoxLayout{grupo}, controles...);
        return grupo;
    }
    template <class... C>
    [[nodiscard]] QGroupBox* crearMarcoEnFila(Marco& marco, C&... controles) const {
        auto* const grupo = crearMarco(marco);
        llenar(*new QHBoxLayout{grupo}, controles...);
        return grupo;
    }

    /// A page of one frame, and the column for what goes into the frame.
    struct Pagina {
        QWidget* widget;
        QVBoxLayout* contenido;
    };
    /// Where the frame ends: under its content, or at the foot of the page.
    enum class Pie { BajoElContenido, AlFondo };
    [[nodiscard]] Pagina crearPagina(Marco& marco, Pie pie) const;

    [[nodiscard]] QWidget* crearFormula(Imagen& imagen, Parte formula) const;

    /// Puts into the frame first, last and step of a sweep, each behind its label. A field has one member or
    /// more; only one shows at a time, so they share a place, the first one on top.
    [[nodiscard]] QGroupBox* crearIntervalo(Marco& marco, const std::array<Etiqueta*, 3>& rotulos,
                                            const std::vector<int>& miembros) const;

    struct Parametro {
        Etiqueta& rotulo;
        CajaTexto& campo;
    };
    using Renglon = std::vector<Parametro>;
    /// Rows of fields, each behind its label.
    [[nodiscard]] QLayout* crearParametros(const std::vector<Renglon>& renglones) const;

    /// The buttons of a function list.
    struct BotonesDeLista {
        Boton& anadir;
        Boton& quitar;
        Boton& vaciar;
    };
    /// A list with its buttons beside it, as high as these or, in a higher page, higher. The key Supr does
    /// what the second one does.
    [[nodiscard]] QLayout* crearLista(Lista& lista, const BotonesDeLista& botones) const;

    /// Two parts side by side, `hueco` pixels apart, at the left of the row.
    [[nodiscard]] static QLayout* crearFila(QWidget* primera, int hueco, QWidget* segunda);

    /// Keeps the place of a part while it is hidden: nothing else moves.
    template <class W>
    static W* conSitioFijo(W* widget) {
        reservarSitio(*widget);
        return widget;
    }

private:
    template <class... C>
    void llenar(QBoxLayout& caja, C&... controles) const {
        (caja.addWidget(crear(controles)), ...);
        caja.addStretch();
    }

    static void reservarSitio(QWidget& widget);
    [[nodiscard]] QLineEdit* crearCampo(CajaTexto& control) const;

    OpcionesPrograma& ventana_;
    Vinculos& vinculos_;
};

} // namespace varo
