// The layout of each window: where its controls stand.
#pragma once

class QWidget;

namespace varo {

class Formulario;
class FrmCrearArchivo;
class FrmFormato;
class FrmMapa;
class FrmMapa2;
class FrmSeleccion;
class Hojadedatos;
class OpcionesPrograma;
class SelColumnas;
class Vinculos;

/// The content of a window. The main window has none of its own.
QWidget* Disponer(Formulario& ventana, Vinculos& vinculos);

/// False for the windows that have no buttons to minimise and maximise them.
bool SePuedeAgrandar(const Formulario& ventana);

QWidget* DisponerSeleccion(FrmSeleccion& ventana, Vinculos& vinculos);
QWidget* DisponerHoja(Hojadedatos& ventana, Vinculos& vinculos);
QWidget* DisponerColumnas(SelColumnas& ventana, Vinculos& vinculos);
QWidget* DisponerOpciones(OpcionesPrograma& ventana, Vinculos& vinculos);
QWidget* DisponerFormato(FrmFormato& ventana, Vinculos& vinculos);
QWidget* DisponerMapa(FrmMapa& ventana, Vinculos& vinculos);
QWidget* DisponerMapa2(FrmMapa2& ventana, Vinculos& vinculos);
QWidget* DisponerCrearArchivo(FrmCrearArchivo& ventana, Vinculos& vinculos);

} // namespace varo
