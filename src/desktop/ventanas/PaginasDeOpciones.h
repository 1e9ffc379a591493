// The pages of the options dialog: what each tab shows.
#pragma once

class QWidget;

namespace varo {

class PiezasDeOpciones;

QWidget* PaginaDeUnidades(const PiezasDeOpciones& piezas);
QWidget* PaginaDeIndependientes(const PiezasDeOpciones& piezas);
QWidget* PaginaDeISC(const PiezasDeOpciones& piezas);
QWidget* PaginaDeAOI(const PiezasDeOpciones& piezas);
QWidget* PaginaDeDP(const PiezasDeOpciones& piezas);
QWidget* PaginaDeDR(const PiezasDeOpciones& piezas);
QWidget* PaginaDeAPA(const PiezasDeOpciones& piezas);

} // namespace varo
