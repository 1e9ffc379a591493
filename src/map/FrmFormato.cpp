#include "map/FrmFormato.h"

#include "basico/AlSalir.h"
#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "basico/Texto.h"
#include "data/CodigosDeLaRejilla.h"
#include "data/FilasDeArboles.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/PadronDeArboles.h"
#include "data/Papeles.h"
#include "formularios/Reloj.h"
#include "map/DibujarArboles.h"
#include "map/Escala.h"
#include "map/FrmMapa.h"
#include "map/TituloYLeyenda.h"
#include "options/OpcionesPrograma.h"
#include "plot/ConstruirPoligono.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace varo {

namespace {

const char* const filaDeCodigos = "1"; // tag of the first code row and its labels
const char* const botones = "2";       // tag of the two buttons

constexpr Color colorDeLetra = 0x00400040;
constexpr std::array<Color, 8> coloresDeLinea{0x00400040, 0x00B27200, 0x00005ED5, 0x00739E00,
                                              0x000A518C, 0x009933CC, 0x001A1A1A, 0x00B47545};

} // namespace

FrmFormato::FrmFormato(Programa& programa)
    : Formulario{programa, "FrmFormato", TipoVentana::Hija, "Formato"}, programa_{programa} {
    Height = 2700;
    Width = 8000;
    CboTitFont.Font = Fuente{.nombre = "Arial"};
    CboTitColor.BackColor = colorDeLetra;
    LbCodigo.crear(0);
    TxtCodigo.crear(0);
    CboCodFont.crear(0);
    CboCodColor.crear(0);
    CboCodBackColor.crear(0);
    prepararFila(0);
    const std::array<Control*, 10> primeraFila{&Label10, &LbCodigo(0),       &Label7, &TxtCodigo(0),
                                               &Label6,  &CboCodFont(0),     &Label5, &CboCodColor(0),
                                               &Label9,  &CboCodBackColor(0)};
    for (Control* const control : primeraFila) {
        control->Tag = filaDeCodigos;
        control->Top = 1400;
    }
    LbCod.Tag = filaDeCodigos;
    mostrarFilas(false);
    for (Boton* const boton : {&CmdAceptar, &CmdCancelar}) {
        boton->Tag = botones;
        boton->Top = 1790;
    }
    CboTitFont.DropDown = [this] { CboTitFont_DropDown(); };
    CboTitColor.DropDown = [this] { CboTitColor_DropDown(); };
    CboTitBackColor.DropDown = [this] { CboTitBackColor_DropDown(); };
    CmdAceptar.Click = [this] { CmdAceptar_Click(); };
    CmdCancelar.Click = [this] { CmdCancelar_Click(); };
}

Color FrmFormato::colorDeLinea(int codigo) {
    return coloresDeLinea[static_cast<std::size_t>(codigo) % coloresDeLinea.size()];
}

void FrmFormato::prepararFila(int codigo) {
    CboCodColor(codigo).BackColor = colorDeLinea(codigo);
    CboCodFont(codigo).DropDown = [this, codigo] { CboCodFont_DropDown(codigo); };
    CboCodColor(codigo).DropDown = [this, codigo] { CboCodColor_DropDown(codigo); };
    CboCodBackColor(codigo).DropDown = [this, codigo] { CboCodBackColor_DropDown(codigo); };
}

void FrmFormato::mostrarFilas(bool visibles) {
    for (Control* const control : controles()) {
        if (control->Tag == filaDeCodigos) {
            control->Visible = visibles;
        }
    }
}

void FrmFormato::Form_Load() {
    const auto& sesion = programa_.sesion;
    if (programa_.tocar<OpcionesPrograma>().ChCodigo.Value() == 1) {
        const Entero16 columnaCodigo = sesion.Columnas(sesion.UltimaColumna.valor());
        if (columnaCodigo != sesion.Columnas(papelX)) {
            auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
            rejilla.Col(columnaCodigo.valor());
            rejilla.ordenarAscendente();
            ListaCodigos();
            FilasCodigos();
            rejilla.Col(1);
            rejilla.ordenarAscendente();
        }
    }
    CboTitFont.Text = CboTitFont.Font().nombre;
    TxtTitName.Text = "Parcela " + programa_.tocar<FrmSeleccion>().CboHoja.Text();
}

void FrmFormato::ListaCodigos() {
    auto& sesion = programa_.sesion;
    sesion.Codigos = CodigosDeLaRejilla(programa_.tocar<Hojadedatos>().MSFlexGrid1,
                                        sesion.Columnas(sesion.UltimaColumna.valor()).valor());
    sesion.NumCodigos = static_cast<int>(sesion.Codigos.size());
}

void FrmFormato::FilasCodigos() {
    constexpr float altoParaCodigos = 1290;
    constexpr float bajadaDeFila = 600;
    constexpr float bajadaDeBotones = 1320;
    auto& sesion = programa_.sesion;
    if (sesion.NumCodigos > 0) {
        LbCodigo(0).Caption = sesion.Codigos.front();
        mostrarFilas(true);
    }
    CboCodFont(0).Text = CboCodFont(0).Font().nombre;
    if (sesion.VecesFormato == 0) {
        if (sesion.CierresConMapa == 0) {
            sesion.AltoFormato = Entero16{static_cast<double>(Height())};
        } else {
            Height = static_cast<float>(sesion.AltoFormato.valor());
        }
    }
    Height = static_cast<float>(sesion.AltoFormato.valor()) + altoParaCodigos;
    for (Control* const control : controles()) {
        if (control->Tag == filaDeCodigos) {
            control->Top = control->Top() + bajadaDeFila;
        } else if (control->Tag == botones) {
            control->Top = control->Top() + bajadaDeBotones;
        }
    }
    for (int codigo = 1; codigo < sesion.NumCodigos.valor(); ++codigo) {
        crearFila(codigo);
    }
}

void FrmFormato::crearFila(int codigo) {
    constexpr float altoDeFila = 630;
    constexpr float margenDeBotones = 910;
    LbCodigo.crear(codigo, programa_.sesion.Codigos[static_cast<std::size_t>(codigo)]);
    TxtCodigo.crear(codigo);
    auto& fuente = CboCodFont.crear(codigo);
    fuente.Text = fuente.Font().nombre;
    CboCodColor.crear(codigo);
    CboCodBackColor.crear(codigo);
    prepararFila(codigo);
    const auto debajo = [](Control& nuevo, const Control& anterior) {
        nuevo.Left = anterior.Left();
        nuevo.Top = anterior.Top() + altoDeFila;
    };
    debajo(LbCodigo(codigo), LbCodigo(codigo - 1));
    debajo(TxtCodigo(codigo), TxtCodigo(codigo - 1));
    debajo(CboCodFont(codigo), CboCodFont(codigo - 1));
    debajo(CboCodColor(codigo), CboCodColor(codigo - 1));
    debajo(CboCodBackColor(codigo), CboCodBackColor(codigo - 1));
    Height = Height() + altoDeFila;
    for (Boton* const boton : {&CmdAceptar, &CmdCancelar}) {
        boton->Top = Height() - margenDeBotones;
    }
}

void FrmFormato::limpiarRejilla() {
    const auto& sesion = programa_.sesion;
    auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    const int ultima = rejilla.Rows() - 1;
    // Meant: the bound is taken once, so after a removal the walk runs past the end; that fault ends it.
    Saltando([&] {
        for (int fila = 1; fila <= ultima; ++fila) {
            if (rejilla.TextMatrix(fila, sesion.Columnas(papelX).valor()).empty() &&
                rejilla.TextMatrix(fila, sesion.Columnas(papelY).valor()).empty()) {
                rejilla.RemoveItem(fila);
                --fila;
            }
        }
    });
}

void FrmFormato::guardarCampoDelRadio() {
    if (programa_.tocar<OpcionesPrograma>().OptRM.Value) {
        auto& sesion = programa_.sesion;
        sesion.CampoRadio =
            programa_.tocar<Hojadedatos>().MSFlexGrid1.TextMatrix(0, sesion.Columnas(PapelDeCopa(0)).valor());
    }
}

std::vector<double> FrmFormato::LeerColumna(int columna) const {
    const auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    return PorArbol(rejilla, [&](int fila) {
        const std::string& celda = rejilla.TextMatrix(fila, columna);
        return EsNumerico(celda) ? ANumero(celda) : -1.0;
    });
}

Escala FrmFormato::prepararSuperficies() {
    const auto& sesion = programa_.sesion;
    const Escala escala = CalcularEscala(LeerColumna(sesion.Columnas(papelX).valor()),
                                         LeerColumna(sesion.Columnas(papelY).valor()));
    programa_.tocar<FrmMapa>().empezar(escala);
    programa_.tocar<FrmMapa2>().empezar(escala);
    return escala;
}

void FrmFormato::dibujarMapa() {
    DibujarMarco(programa_.tocar<FrmMapa>().lienzo);
    DibujarMarco(programa_.tocar<FrmMapa2>().lienzo);
    PonerTitulo(programa_);
    PonerLeyenda(programa_);
    DibujarArboles(programa_);
}

void FrmFormato::avisarDibujo() {
    if (auto* const mapa = programa_.cargada<FrmMapa>()) {
        mapa->avisarDibujo();
    }
    if (auto* const mapa = programa_.cargada<FrmMapa2>()) {
        mapa->avisarDibujo();
    }
}

/// An overflow that nobody nearer has explained comes of the greatest coordinate.
void FrmFormato::explicarDesbordamiento(ErrorEjecucion& error) const {
    if (error.numero() != fallo::desbordamiento || !error.causa().empty() || error.fila()) {
        return;
    }
    const auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    int columnaMayor = 0;
    std::size_t arbol = 0;
    double mayor = -1;
    for (const int papel : {papelX, papelY}) {
        const int columna = programa_.sesion.Columnas(papel).valor();
        const auto coordenadas = LeerColumna(columna);
        for (std::size_t i = 0; i < coordenadas.size(); ++i) {
            if (std::abs(coordenadas[i]) > mayor) {
                mayor = std::abs(coordenadas[i]);
                arbol = i;
                columnaMayor = columna;
            }
        }
    }
    error.porque("la coordenada " + Cita(rejilla.TextMatrix(static_cast<int>(arbol) + 1, columnaMayor)) +
                 " es demasiado grande");
    PadronDeLaRejilla(programa_).situar(error.en("columna «" + rejilla.TextMatrix(0, columnaMayor) + "»"),
                                        arbol);
}

void FrmFormato::dibujarYMedir() {
    const bool hayDibujo = !prepararSuperficies().sinExtension();
    if (hayDibujo) {
        dibujarMapa();
    } else {
        programa_.tocar<FrmMapa>().decirQueNoHayDibujo();
    }
    // Meant: a fault among the trees leaves the boundary before, and the grid in its order.
    ConstruirPoligono(programa_);
    auto& sesion = programa_.sesion;
    if (hayDibujo && programa_.tocar<OpcionesPrograma>().ChPolExt.Value() == 1) {
        // Meant: no step sets the colour, so it is that of the last tree.
        DibujarContorno(programa_.tocar<FrmMapa>().lienzo, sesion.Poligono.contorno());
    }
    sesion.SupPoligono = SuperficieDelContorno(sesion.Poligono.contorno(), sesion.NumPuntosPoligono.valor());
}

void FrmFormato::CmdAceptar_Click() {
    const auto reloj = PonerReloj(*this);
    limpiarRejilla();
    guardarCampoDelRadio();
    const AlSalir avisar{[this] { avisarDibujo(); }};
    AlFallar([this](ErrorEjecucion& error) { explicarDesbordamiento(error); }, [this] { dibujarYMedir(); });
    auto& marco = programa_.tocar<VAROMAIN>();
    marco.mnuMapa.Enabled = false;
    marco.mnuOpciones.Enabled = true;
    Hide();
    programa_.tocar<FrmMapa>().Show();
}

void FrmFormato::CmdCancelar_Click() {
    programa_.descargar(*this);
}

} // namespace varo
