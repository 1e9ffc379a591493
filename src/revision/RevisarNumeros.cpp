#include "revision/RevisarNumeros.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"
#include "revision/Efectos.h"
#include "revision/FormaDeTexto.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace varo {

namespace {

constexpr double desmedido = 1E+12;

enum class ClaseDeColumna { Coordenada, Tamano, Copa };

/// What is the matter with a cell, before anybody asks what it does.
std::optional<Sospecha> SospechaDe(const ColumnaRevisada& columna, std::size_t i) {
    if (columna.vacia(i)) {
        return columna.textoVacio(i) ? std::optional{Sospecha::TextoVacio} : std::nullopt;
    }
    if (columna.esNumero(i) && std::abs(columna.numero(i)) >= desmedido) {
        return Sospecha::NumeroDesmedido;
    }
    if (columna.clase(i) == ClaseDeCelda::Numero) {
        return std::nullopt;
    }
    const auto* const texto = std::get_if<std::string>(&columna.valor(i));
    if (texto == nullptr) {
        return Sospecha::CeldaDeOtraClase;
    }
    switch (FormaDe(*texto, columna.esNumero(i))) {
    case FormaDeTexto::ConPunto:
        return Sospecha::TextoConPunto;
    case FormaDeTexto::ConGrupos:
        return Sospecha::TextoConGrupos;
    case FormaDeTexto::EnBlanco:
        return Sospecha::CeldaEnBlanco;
    case FormaDeTexto::ConUnidad:
        return Sospecha::TextoConUnidad;
    case FormaDeTexto::OtraCosa:
        return Sospecha::TextoQueNoEsNumero;
    case FormaDeTexto::Corriente:
        break;
    }
    return Sospecha::NumeroComoTexto;
}

bool NoDaNumero(Sospecha sospecha) {
    return sospecha == Sospecha::CeldaEnBlanco || sospecha == Sospecha::TextoConUnidad ||
           sospecha == Sospecha::TextoQueNoEsNumero || sospecha == Sospecha::CeldaDeOtraClase ||
           sospecha == Sospecha::NumeroDesmedido;
}

std::string QueDe(Sospecha sospecha, const ColumnaRevisada& columna, std::size_t i) {
    const std::string cita = "La celda dice " + Cita(columna.texto(i));
    const std::string leido = columna.esNumero(i) ? ATexto(columna.numero(i)) : "";
    switch (sospecha) {
    case Sospecha::CeldaEnBlanco:
        return "La celda parece vacía, pero guarda un blanco, que no es un número.";
    case Sospecha::TextoVacio:
        return "La celda parece vacía, pero guarda un texto vacío, como el que deja una fórmula que da "
               "\"\".";
    case Sospecha::TextoConUnidad:
        return cita + ": lleva la unidad, y así es un texto y no un número.";
    case Sospecha::CeldaDeOtraClase:
        return cita + ": es una fecha o un valor lógico, y no un número.";
    case Sospecha::NumeroDesmedido:
        return cita + ", un número demasiado grande para el cálculo.";
    case Sospecha::TextoConPunto:
        return cita +
               ", un texto con punto. La separación decimal es la coma y los puntos se pasan por alto: "
               "se lee " +
               leido + ".";
    case Sospecha::TextoConGrupos:
        return cita + ", un texto con puntos de millar; se lee " + leido + ".";
    case Sospecha::NumeroComoTexto:
        return cita + ": es un número guardado como texto.";
    default:
        return cita + ", que no es un número.";
    }
}

std::string RemedioDe(Sospecha sospecha, ClaseDeColumna clase) {
    switch (sospecha) {
    case Sospecha::NumeroDesmedido:
        return "Compruebe la coma del número.";
    case Sospecha::CeldaEnBlanco:
    case Sospecha::TextoVacio:
        return clase == ClaseDeColumna::Tamano ? "Escriba el número, o borre el contenido de la celda."
                                               : "Escriba el número.";
    case Sospecha::TextoConUnidad:
        return clase == ClaseDeColumna::Coordenada
                   ? "Deje en la celda solo el número, en metros."
                   : "Deje en la celda solo el número; la unidad se elige en las opciones.";
    case Sospecha::TextoConPunto:
        return "Escriba el número con coma, como número y no como texto.";
    case Sospecha::TextoConGrupos:
        return "Escriba el número sin puntos de millar, como número y no como texto.";
    case Sospecha::NumeroComoTexto:
        return "Convierta los textos de la columna en números: formato de número, y volver a escribirlos.";
    default:
        break;
    }
    switch (clase) {
    case ClaseDeColumna::Coordenada:
        return "Escriba la coordenada; si no se conoce, borre la fila entera.";
    case ClaseDeColumna::Copa:
        return "Escriba la medida; si el árbol no tiene copa por ese lado, escriba 0.";
    case ClaseDeColumna::Tamano:
        break;
    }
    return "Escriba el número, o deje la celda vacía si no se conoce.";
}

class RevisorDeColumna {
public:
    RevisorDeColumna(const Lectura& lectura, Cuaderno& cuaderno, const ColumnaRevisada& columna,
                     ClaseDeColumna clase)
        : lectura_{lectura}, cuaderno_{cuaderno}, columna_{columna}, clase_{clase},
          delTamano_{IndicesDelTamano(lectura.opciones())}, vecinos_{FamiliasDeVecinos(lectura.opciones())} {}

    void revisar() {
        if (revisarVacias()) {
            return;
        }
        contar();
        for (std::size_t i = 0; i < lectura_.cuantas(); ++i) {
            const auto sospecha = lectura_.esCabecera(i) ? std::nullopt : SospechaDe(columna_, i);
            if (sospecha && hayQueDecirlo(*sospecha)) {
                const Gravedad gravedad = gravedadDe(*sospecha, i);
                cuaderno_.anotarFila(gravedad, *sospecha, columna_.columna().numero,
                                     lectura_.parcela().filas[i].numero,
                                     [&] { return hallazgo(gravedad, *sospecha, i); });
            }
        }
    }

private:
    /// True where the column has no data at all.
    bool revisarVacias() {
        constexpr std::size_t pocasFilas = 10;
        constexpr double casiTodas = 0.9;
        const auto& arboles = lectura_.arboles();
        const auto vacias = static_cast<std::size_t>(
            std::ranges::count_if(arboles, [&](std::size_t i) { return columna_.vacia(i); }));
        if (arboles.empty() || clase_ == ClaseDeColumna::Coordenada) {
            return false;
        }
        if (vacias == arboles.size()) {
            cuaderno_.anotar(sinDatos());
        } else if (arboles.size() >= pocasFilas &&
                   static_cast<double>(vacias) >= casiTodas * static_cast<double>(arboles.size())) {
            cuaderno_.anotar(casiSinDatos(arboles.size() - vacias, arboles.size()));
        }
        return vacias == arboles.size();
    }

    [[nodiscard]] Hallazgo sinDatos() const {
        const bool esTamano = clase_ == ClaseDeColumna::Tamano;
        // Without crowns the boundary fails; without sizes the sums have nothing to add.
        const Gravedad gravedad = !esTamano || !delTamano_.empty() ? Gravedad::Fallo
                                  : vecinos_.empty()               ? Gravedad::Mirar
                                                                   : Gravedad::Numeros;
        Hallazgo hallazgo = EnColumna(gravedad, Sospecha::ColumnaSinDatos, columna_.columna());
        hallazgo.que = "La columna «" + columna_.columna().cabecera + "» no tiene ningún dato.";
        if (!esTamano) {
            hallazgo.efecto =
                "El contorno de la parcela necesita las copas de sus árboles, y el dibujo termina "
                "en un fallo.";
        } else if (!delTamano_.empty()) {
            hallazgo.efecto =
                "No hay nada que sumar en " + EnLista(delTamano_) + ", y el cálculo termina en un fallo.";
        } else {
            hallazgo.efecto = "Ningún árbol tiene tamaño: los índices de vecinos ponen a todos la marca -3.";
        }
        hallazgo.remedio = "Elija otra columna. Si es la última de la hoja, añada otra detrás, aunque solo "
                           "tenga cabecera: los datos de la última no se leen.";
        return hallazgo;
    }

    [[nodiscard]] Hallazgo casiSinDatos(std::size_t llenas, std::size_t arboles) const {
        Hallazgo hallazgo = EnColumna(Gravedad::Numeros, Sospecha::ColumnaCasiVacia, columna_.columna());
        hallazgo.que = "La columna «" + columna_.columna().cabecera + "» está casi vacía: solo " +
                       std::to_string(llenas) + " de " + std::to_string(arboles) + " árboles tienen dato.";
        hallazgo.efecto = "Lo que se calcule con ella vale para esos pocos árboles, no para la parcela.";
        hallazgo.remedio = "Compruebe que es la columna que quería elegir.";
        return hallazgo;
    }

    /// A column that is all of one kind has one finding, for all its rows.
    void contar() {
        constexpr std::size_t pocas = 4;
        std::map<Sospecha, std::size_t> cuantos;
        std::map<Sospecha, std::size_t> primero;
        std::size_t llenas = 0;
        for (std::size_t i = 0; i < lectura_.cuantas(); ++i) {
            llenas += columna_.vacia(i) ? 0U : 1U;
            if (const auto sospecha = SospechaDe(columna_, i);
                sospecha && *sospecha != Sospecha::TextoVacio) {
                primero.try_emplace(*sospecha, i);
                ++cuantos[*sospecha];
            }
        }
        for (const auto& [sospecha, veces] : cuantos) {
            if (veces == llenas && llenas >= pocas) {
                deTodaLaColumna_ = sospecha;
                cuaderno_.anotar(deTodas(sospecha, primero[sospecha]));
            }
        }
    }

    [[nodiscard]] Hallazgo deTodas(Sospecha sospecha, std::size_t primero) const {
        Gravedad gravedad = Gravedad::Mirar;
        for (std::size_t i = 0; i < lectura_.cuantas(); ++i) {
            if (!columna_.vacia(i)) {
                gravedad = std::min(gravedad, gravedadDe(sospecha, i));
            }
        }
        Hallazgo una = hallazgo(gravedad, sospecha, primero);
        una.fila = 0;
        una.arbol.clear();
        una.que = "Todas las celdas de la columna son así. " + una.que;
        return una;
    }

    /// An empty text is a cell like others for all but the queries.
    [[nodiscard]] bool hayQueDecirlo(Sospecha sospecha) const {
        return sospecha == Sospecha::TextoVacio ? laConsultan() : deTodaLaColumna_ != sospecha;
    }

    [[nodiscard]] Gravedad gravedadDe(Sospecha sospecha, std::size_t i) const {
        if (sospecha == Sospecha::TextoVacio) {
            return laConsultan() ? Gravedad::Fallo : Gravedad::Mirar;
        }
        if (NoDaNumero(sospecha)) {
            return terminaEnFallo(i) ? Gravedad::Fallo : seUsa(i) ? Gravedad::Numeros : Gravedad::Mirar;
        }
        if (sospecha == Sospecha::TextoConPunto) {
            return estropeaElVertice(i) || rompeLaConsulta(i) ? Gravedad::Fallo : Gravedad::Numeros;
        }
        const bool esTamano = clase_ == ClaseDeColumna::Tamano;
        if (sospecha == Sospecha::TextoConGrupos && esTamano) {
            if (rompeLaConsulta(i)) {
                return Gravedad::Fallo;
            }
            // Some ratios read the point as a decimal one, and others as a group.
            return delTamano_.empty() ? Gravedad::Mirar : Gravedad::Numeros;
        }
        return estropeaElVertice(i) ? Gravedad::Fallo : Gravedad::Mirar;
    }

    [[nodiscard]] bool terminaEnFallo(std::size_t i) const {
        const bool arbol = lectura_.esArbol(i);
        switch (clase_) {
        case ClaseDeColumna::Coordenada:
            return arbol;
        case ClaseDeColumna::Copa:
            return arbol || lectura_.opciones().datosDeParcela;
        case ClaseDeColumna::Tamano:
            break;
        }
        return !delTamano_.empty() || (arbol && (!vecinos_.empty() || lectura_.puedeSerVertice(i)));
    }

    /// Whether a query adds up the cells of the column.
    [[nodiscard]] bool laConsultan() const {
        return clase_ == ClaseDeColumna::Tamano
                   ? !delTamano_.empty()
                   : clase_ == ClaseDeColumna::Copa && lectura_.opciones().datosDeParcela;
    }

    [[nodiscard]] bool seUsa(std::size_t i) const {
        return clase_ == ClaseDeColumna::Tamano && lectura_.esArbol(i) &&
               lectura_.opciones().independientes.areaDeMayores;
    }

    /// The basal area of the larger trees asks with the text itself, each comma a point: two of them are no
    /// number.
    [[nodiscard]] bool rompeLaConsulta(std::size_t i) const {
        const std::string texto = columna_.texto(i);
        return clase_ == ClaseDeColumna::Tamano && lectura_.opciones().independientes.areaDeMayores &&
               lectura_.esArbol(i) &&
               std::ranges::count_if(texto, [](char c) { return c == '.' || c == ','; }) > 1;
    }

    /// A tree of the boundary is known by the texts of its cells: another text of the same number is no
    /// vertex.
    [[nodiscard]] bool estropeaElVertice(std::size_t i) const {
        return clase_ == ClaseDeColumna::Coordenada && !vecinos_.empty() && lectura_.esArbol(i) &&
               lectura_.puedeSerVertice(i) && columna_.texto(i) != ATexto(columna_.numero(i));
    }

    [[nodiscard]] Hallazgo hallazgo(Gravedad gravedad, Sospecha sospecha, std::size_t i) const {
        Hallazgo nuevo = lectura_.enCelda(gravedad, sospecha, i, columna_);
        nuevo.que = QueDe(sospecha, columna_, i);
        nuevo.efecto = efectoDe(gravedad, sospecha);
        nuevo.remedio = RemedioDe(sospecha, clase_);
        return nuevo;
    }

    [[nodiscard]] std::string efectoDe(Gravedad gravedad, Sospecha sospecha) const {
        if (gravedad == Gravedad::Fallo && !NoDaNumero(sospecha) && clase_ == ClaseDeColumna::Coordenada) {
            return std::string{
                       sospecha == Sospecha::TextoConPunto
                           ? "El árbol se dibuja en otro sitio, y cambian el contorno y la superficie. "
                           : ""} +
                   "El árbol está, o puede estar, en el contorno, y no se reconocerá porque su coordenada no "
                   "está escrita como un número corriente: en lugar de la marca -1 recibirá otro valor en " +
                   EnLista(vecinos_) + ", o el cálculo terminará en un fallo.";
        }
        if (gravedad == Gravedad::Fallo && sospecha == Sospecha::TextoVacio) {
            return "Termina en un fallo el cálculo " +
                   (clase_ == ClaseDeColumna::Tamano ? DeLista(delTamano_) : "de los datos de parcela") + ".";
        }
        if (gravedad == Gravedad::Fallo &&
            (sospecha == Sospecha::TextoConGrupos || sospecha == Sospecha::TextoConPunto)) {
            return "El área basimétrica de los mayores pregunta por ese texto y termina en un fallo.";
        }
        if (gravedad == Gravedad::Fallo) {
            return clase_ == ClaseDeColumna::Tamano
                       ? quienLee()
                       : "Todo el cálculo termina en un fallo al dibujar el árbol o al medir su copa.";
        }
        if (gravedad == Gravedad::Mirar) {
            return NoDaNumero(sospecha)
                       ? "Con las opciones de ahora no la lee ningún cálculo."
                       : "El número se lee bien; conviene saberlo por si otro programa no lo lee.";
        }
        switch (clase_) {
        case ClaseDeColumna::Coordenada:
            return "El árbol se dibuja en otro sitio, y cambian el contorno, la superficie y todas las "
                   "cifras "
                   "por hectárea.";
        case ClaseDeColumna::Copa:
            return "La copa sale de otro tamaño en el mapa y en ISC y los datos de parcela.";
        case ClaseDeColumna::Tamano:
            break;
        }
        return "El tronco sale de otro tamaño en todos los índices que lo usan, y no en todos del mismo.";
    }

    [[nodiscard]] std::string quienLee() const {
        const Indices quienes = Juntos(delTamano_, vecinos_);
        return quienes.empty() ? "Si el árbol está en el contorno, el dibujo termina en un fallo."
                               : "Terminan en un fallo: " + EnLista(quienes) + ".";
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    const ColumnaRevisada& columna_;
    ClaseDeColumna clase_;
    Indices delTamano_;
    Indices vecinos_;
    std::optional<Sospecha> deTodaLaColumna_;
};

} // namespace

void RevisarNumeros(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeColumna{lectura, cuaderno, lectura.x(), ClaseDeColumna::Coordenada}.revisar();
    RevisorDeColumna{lectura, cuaderno, lectura.y(), ClaseDeColumna::Coordenada}.revisar();
    for (const auto& medida : lectura.copa()) {
        RevisorDeColumna{lectura, cuaderno, medida, ClaseDeColumna::Copa}.revisar();
    }
    if (lectura.tamano().existe()) {
        RevisorDeColumna{lectura, cuaderno, lectura.tamano(), ClaseDeColumna::Tamano}.revisar();
    }
}

} // namespace varo
