// The layout of each window: where its controls stand.
#pragma once

class QWidget;

namespace varo {

class Formulario;
class FrmCrearArchivo;
class FrmFormato;
class FrmMapa;
class FrmMapa2;
class FrmResultados;
class FrmSeleccion;
class Hojadedatos;
class OpcionesPrograma;
class SelColumnas;
class Vinculos;

/// The content of a window, its controls bound by `vinculos`. The main window has no content. Throws
/// std::logic_error for a window without a layout.
QWidget* Disponer(Formulario& ventana, Vinculos& vinculos);

/// Tells whether a child of the main window has buttons to minimise and maximise it. A free window has none.
bool SePuedeAgrandar(const Formulario& ventana);

QWidget* DisponerSeleccion(FrmSeleccion& ventana, Vinculos& vinculos);
QWidget* DisponerHoja(Hojadedatos& ventana, Vinculos& vinculos);
QWidget* DisponerColumnas(SelColumnas& ventana, Vinculos& vinculos);
QWidget* DisponerOpciones(OpcionesPrograma& ventana, Vinculos& vinculos);
QWidget* DisponerFormato(FrmFormato& ventana, Vinculos& vinculos);
QWidget* DisponerMapa(FrmMapa& ventana, Vinculos& vinculos);
QWidget* DisponerMapa2(FrmMapa2& ventana, Vinculos& vinculos);
QWidget* DisponerResultados(FrmResultados& ventana, Vinculos& vinculos);
QWidget* DisponerCrearArchivo(FrmCrearArchivo& ventana, Vinculos& vinculos);

} // namespace varo
