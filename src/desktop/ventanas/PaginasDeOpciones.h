// The pages of the options dialog, one for each tab.
#pragma once

class QWidget;

namespace varo {

class PiezasDeOpciones;

QWidget* CrearPaginaDeUnidades(const PiezasDeOpciones& piezas);
QWidget* CrearPaginaDeIndependientes(const PiezasDeOpciones& piezas);
QWidget* CrearPaginaDeISC(const PiezasDeOpciones& piezas);
QWidget* CrearPaginaDeAOI(const PiezasDeOpciones& piezas);
QWidget* CrearPaginaDeDP(const PiezasDeOpciones& piezas);
QWidget* CrearPaginaDeDR(const PiezasDeOpciones& piezas);
QWidget* CrearPaginaDeAPA(const PiezasDeOpciones& piezas);

} // namespace varo
