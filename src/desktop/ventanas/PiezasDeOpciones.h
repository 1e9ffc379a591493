// The pieces of which the pages of the options dialog are made.
#pragma once

#include "desktop/Vinculos.h"
#include "desktop/formulas/Expresion.h"
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

    [[nodiscard]] QWidget* widget(Etiqueta& control) const { return vinculos_.etiqueta(control); }
    [[nodiscard]] QWidget* widget(Casilla& control) const { return vinculos_.casilla(control); }
    [[nodiscard]] QWidget* widget(Opcion& control) const { return vinculos_.opcion(control); }

    /// A frame with its controls one under the other, or side by side.
    template <class... C>
    [[nodiscard]] QGroupBox* enColumna(Marco& marco, C&... controles) const {
        auto* const grupo = vinculos_.marco(marco);
        llenar(*new QVBoxLayout{grupo}, controles...);
        return grupo;
    }
    template <class... C>
    [[nodiscard]] QGroupBox* enFila(Marco& marco, C&... controles) const {
        auto* const grupo = vinculos_.marco(marco);
        llenar(*new QHBoxLayout{grupo}, controles...);
        return grupo;
    }

    /// A frame whose content is still to come.
    [[nodiscard]] QGroupBox* marco(Marco& marco) const { return vinculos_.marco(marco); }

    static constexpr int separacion = 12; ///< between the parts of a page

    /// A page of one frame, empty still, and the column for what lies in it.
    struct Pagina {
        QWidget* widget;
        QVBoxLayout* contenido;
    };
    /// The frame ends under its content, or goes down to the foot of the page.
    enum class Pie { BajoElContenido, AlFondo };
    [[nodiscard]] Pagina pagina(Marco& marco, Pie pie) const;

    /// Sets a frame without a caption beside frames that have one: what they hold is level.
    [[nodiscard]] static QLayout* bajoTitulo(QGroupBox* grupo);

    [[nodiscard]] QWidget* formula(Imagen& imagen, Parte formula) const;

    /// Puts into the frame first, last and step of a sweep, each behind its label. Of several members of the
    /// fields only one is on show at a time: they stand in the same places, the first one on top.
    [[nodiscard]] QGroupBox* intervalo(Marco& marco, const std::array<Etiqueta*, 3>& rotulos,
                                       const std::vector<int>& miembros) const;

    struct Parametro {
        Etiqueta& rotulo;
        CajaTexto& campo;
    };
    using Renglon = std::vector<Parametro>;
    /// Fields in lines, each behind its label.
    [[nodiscard]] QLayout* parametros(const std::vector<Renglon>& renglones) const;

    /// A list with its buttons beside it, no higher than they are unless there is room to spare.
    [[nodiscard]] QLayout* lista(Lista& lista, const std::vector<Boton*>& botones) const;

    /// A part that comes and goes and leaves its place empty: nothing else moves.
    template <class W>
    static W* conSitioFijo(W* widget) {
        reservarSitio(*widget);
        return widget;
    }

private:
    template <class... C>
    void llenar(QBoxLayout& caja, C&... controles) const {
        (caja.addWidget(widget(controles)), ...);
        caja.addStretch();
    }

    static void reservarSitio(QWidget& widget);
    [[nodiscard]] QLineEdit* campo(CajaTexto& control) const;

    OpcionesPrograma& ventana_;
    Vinculos& vinculos_;
};

} // namespace varo
