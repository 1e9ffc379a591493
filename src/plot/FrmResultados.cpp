#include "plot/FrmResultados.h"

#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "shell/Programa.h"

#include <cstddef>
#include <string_view>

namespace varo {

namespace {

const char* const movibles = "1"; // tag of the labels that move with the number of codes
constexpr double separacion = 720.0;
constexpr double holgura = 500.0;
const Fuente deRotulo{.nombre = "Arial", .tamano = 10, .negrita = true};
const Fuente deTabla{.nombre = "Times New Roman", .tamano = 10};

struct Hueco {
    double izquierda;
    double arriba;
    double ancho;
    double alto;
};

void Disenar(Etiqueta& etiqueta, const Hueco& hueco, const Fuente& fuente) {
    etiqueta.Left = hueco.izquierda;
    etiqueta.Top = hueco.arriba;
    etiqueta.Width = hueco.ancho;
    etiqueta.Height = hueco.alto;
    etiqueta.Font = fuente;
}

/// A member like member 0, out of sight and without its text and its tag.
void CrearComoElPrimero(Matriz<Etiqueta>& etiquetas, int indice) {
    Etiqueta& nueva = etiquetas.crear(indice, " ");
    const Etiqueta& primera = etiquetas(0);
    nueva.Visible = false;
    Disenar(nueva, {primera.Left, primera.Top, primera.Width, primera.Height}, primera.Font);
}

/// One of the two tables and what it shows.
struct TablaDeCifras {
    const Etiqueta& rotulo;
    Matriz<Etiqueta>& codigos;
    Matriz<Etiqueta>& valores;
    const MatrizDinamica<double>& porCodigo;
    std::string_view formato;
    double total;
    std::string_view formatoDelTotal;
};

const std::string& CodigoDe(const CifrasDeParcela& cifras, int c) {
    if (c >= static_cast<int>(cifras.codigos.size())) {
        throw ErrorEjecucion{fallo::fueraDeIndice};
    }
    return cifras.codigos[static_cast<std::size_t>(c)];
}

void PonerColumna(const TablaDeCifras& tabla, const CifrasDeParcela& cifras, int c) {
    Saltando([&] { tabla.valores(c).Caption = Formato(tabla.porCodigo(c), tabla.formato); });
    Saltando([&] { tabla.codigos(c).Caption = CodigoDe(cifras, c); });
}

void PonerTotal(const TablaDeCifras& tabla, int c) {
    Saltando([&] { tabla.valores(c).Caption = Formato(tabla.total, tabla.formatoDelTotal); });
    Saltando([&] { tabla.codigos(c).Caption = "Total"; });
}

/// Columns 0 to the number of codes, the last one for the total.
void Recorrer(const TablaDeCifras& tabla, const CifrasDeParcela& cifras) {
    for (int c = 0; c <= cifras.numCodigos.valor(); ++c) {
        if (c == 0) {
            // Meant: without codes this is the only column, and the total has none.
            Saltando([&] { tabla.valores(0).Left = tabla.rotulo.Left() + separacion; });
            Saltando([&] { tabla.codigos(0).Left = tabla.rotulo.Left() + separacion; });
            PonerColumna(tabla, cifras, c);
            continue;
        }
        // A window that is still loaded has members already: those stay, and take their new place.
        Saltando([&] { CrearComoElPrimero(tabla.valores, c); });
        Saltando([&] { CrearComoElPrimero(tabla.codigos, c); });
        Saltando([&] { tabla.valores(c).Left = tabla.valores(0).Left() * (c + 1); });
        Saltando([&] { tabla.codigos(c).Left = tabla.codigos(0).Left() * (c + 1); });
        if (c == cifras.numCodigos.valor()) {
            PonerTotal(tabla, c);
        } else {
            PonerColumna(tabla, cifras, c);
        }
        Saltando([&] { tabla.valores(c).Visible = true; });
        Saltando([&] { tabla.codigos(c).Visible = true; });
    }
}

std::string Metros(double area) {
    return Formato(area, "###0.0") + " m2";
}

} // namespace

FrmResultados::FrmResultados(Programa& programa)
    : Formulario{programa, "FrmResultados", TipoVentana::Hija, "Datos de parcela"}, programa_{programa} {
    constexpr float lado = 6700;
    Width = lado;
    Height = lado;
    for (Matriz<Etiqueta>* const cifras : {&LbPiesHaCodigo, &LbPiesHaValor, &LbAbHaCodigo, &LbAbHaValor}) {
        cifras->crear(0, " ");
    }
    Fuente deTitulo = deRotulo;
    deTitulo.tamano = 18;
    Disenar(LbParcela, {1080, 120, 3975, 495}, deTitulo);
    Disenar(LbAreaTotal, {1080, 720, 945, 240}, deRotulo);
    Disenar(LbPiesHa, {1080, 1200, 1275, 240}, deRotulo);
    Disenar(LbCodPha, {360, 1680, 495, 255}, deTabla);
    Disenar(LbPiesHaCodigo(0), {1080, 1680, 855, 255}, deRotulo);
    Disenar(LbValorPha, {360, 2040, 495, 255}, deTabla);
    Disenar(LbPiesHaValor(0), {1080, 2040, 855, 255}, deTabla);
    Disenar(LbAbHa, {1080, 2520, 2535, 255}, deRotulo);
    Disenar(LbCodAbha, {360, 3000, 495, 255}, deTabla);
    Disenar(LbAbHaCodigo(0), {1080, 3000, 855, 255}, deRotulo);
    Disenar(LbValorAbha, {360, 3360, 495, 255}, deTabla);
    Disenar(LbAbHaValor(0), {1080, 3360, 855, 255}, deTabla);
    Disenar(LbSupCop, {1080, 3840, 60, 240}, deRotulo);
    Disenar(LbAreaCopas, {1080, 3960, 5175, 255}, deRotulo);
    Disenar(LbAreaCopasInterior, {1080, 4560, 5175, 255}, deRotulo);
    Disenar(LbAreaIntersecCopas, {1080, 5160, 5175, 255}, deRotulo);
    Disenar(LbFcc, {1080, 5760, 5175, 255}, deRotulo);
    for (Etiqueta* const etiqueta :
         {&LbCodPha, &LbValorPha, &LbCodAbha, &LbValorAbha, &LbPiesHaCodigo(0), &LbPiesHaValor(0)}) {
        etiqueta->Tag = movibles;
    }
}

void FrmResultados::tablasConCodigos(const CifrasDeParcela& cifras) {
    const auto partes = [&] { return (cifras.numCodigos + 2).valor(); };
    const auto anchoDeTodas = [&] { return LbPiesHaValor(0).Width() * partes(); };
    if (PruebaSaltando([&] { return anchoDeTodas() > static_cast<double>(Width()); })) {
        Saltando([&] { Width = static_cast<float>(anchoDeTodas() + holgura); });
    }
    for (Control* const control : controles()) {
        if (control->Tag == movibles) {
            Saltando([&] { control->Left = static_cast<double>(Width()) / partes() - separacion; });
        }
    }
    Recorrer({LbValorPha, LbPiesHaCodigo, LbPiesHaValor, cifras.piesHaCodigo, "##.0;;0", cifras.piesHa,
              "###.0;;0"},
             cifras);
    Saltando([&] { Width = static_cast<float>(static_cast<double>(Width()) + holgura); });
    // Meant: only the table of stems makes the window wider.
    Recorrer({LbValorAbha, LbAbHaCodigo, LbAbHaValor, cifras.abHaCodigo, "#0.0", cifras.abHa, "##0.0"},
             cifras);
}

void FrmResultados::tablasSinCodigos(const CifrasDeParcela& cifras) {
    const auto poner = [this](Etiqueta& valor, Etiqueta& codigo, const std::string& texto) {
        const double izquierda = static_cast<double>(Width()) / 2.0 - valor.Width() / 2.0;
        valor.Left = izquierda;
        codigo.Left = izquierda;
        valor.Caption = texto;
        codigo.Caption = "Total";
    };
    poner(LbPiesHaValor(0), LbPiesHaCodigo(0), Formato(cifras.piesHa, "##.0;;0"));
    LbCodPha.Left = LbPiesHaValor(0).Left() - separacion;
    LbValorPha.Left = LbPiesHaValor(0).Left() - separacion;
    poner(LbAbHaValor(0), LbAbHaCodigo(0), Formato(cifras.abHa, "#0.0;;0"));
    LbCodAbha.Left = LbAbHaValor(0).Left() - separacion;
    LbValorAbha.Left = LbAbHaValor(0).Left() - separacion;
}

void FrmResultados::resumen(const CifrasDeParcela& cifras) {
    const auto poner = [](Etiqueta& etiqueta, const char* delante, const std::optional<double>& area) {
        if (area) {
            etiqueta.Caption = delante + Metros(*area);
        }
    };
    LbParcela.Left = static_cast<double>(Width()) / 2.0 - LbParcela.Width() / 2.0;
    if (cifras.titulo) {
        LbParcela.Caption = *cifras.titulo;
    }
    poner(LbAreaTotal, "Area: ", cifras.superficie);
    poner(LbAreaCopas, "Area total de copas: ", cifras.areaCopas);
    poner(LbAreaCopasInterior, "Area total de copas dentro de parcela: ", cifras.areaCopasInterior);
    poner(LbAreaIntersecCopas, "Area total de intersección de copas: ", cifras.areaIntersecCopas);
    if (cifras.fcc) {
        LbFcc.Caption = "Fcc: " + Formato(*cifras.fcc, "0.00");
    }
}

void FrmResultados::Form_Unload() {
    programa_.sesion.AbHaActual = 0;
    programa_.sesion.PiesHaActual = 0;
}

} // namespace varo
