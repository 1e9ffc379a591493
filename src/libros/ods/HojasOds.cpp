#include "libros/ods/HojasOds.h"

#include "libros/ClaseDeComprimido.h"
#include "libros/LectorXml.h"
#include "libros/Referencias.h"
#include "libros/ods/TextoOds.h"
#include "libros/ods/ValorOds.h"

#include <algorithm>
#include <utility>

namespace varo {
namespace {

enum class SitioDeOds {
    Documento,
    Contenido,
    Cuerpo,
    Libro,
    Nombres,
    Hoja,
    Grupo, ///< of rows
    Fila,
    Celda,
    Parrafo,
    Tramo, ///< of a paragraph
    Nada
};

/// LibreOffice keeps what it read in other workbooks in tables with such names as 'file:///home/x.ods'#Hoja1.
bool EsDeOtroLibro(std::string_view tabla) {
    return tabla.starts_with('\'') && tabla.find("'#") != std::string_view::npos;
}

class LectorDeHojasOds : public OyenteConSitios<SitioDeOds> {
public:
    explicit LectorDeHojasOds(LimitesDeLectura& limites) : limites_{limites}, texto_{limites} {}

    LibroOds libro;
    bool esLibro = false;

protected:
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        switch (donde) {
        case SitioXml::Documento:
            return elemento.es(EspacioXml::Oficina, "document-content") ? SitioXml::Contenido
                                                                        : SitioXml::Nada;
        case SitioXml::Contenido:
            return elemento.es(EspacioXml::Oficina, "body") ? SitioXml::Cuerpo : SitioXml::Nada;
        case SitioXml::Cuerpo:
            esLibro = esLibro || elemento.es(EspacioXml::Oficina, "spreadsheet");
            return elemento.es(EspacioXml::Oficina, "spreadsheet") ? SitioXml::Libro : SitioXml::Nada;
        case SitioXml::Celda:
            return enLaCelda(elemento);
        case SitioXml::Parrafo:
        case SitioXml::Tramo:
            return enElParrafo(elemento);
        default:
            return elemento.nombre().espacio == EspacioXml::Tabla ? enLasTablas(donde, elemento)
                                                                  : SitioXml::Nada;
        }
    }

    void escribir(SitioXml donde, std::string_view trozo) override {
        if (donde == SitioXml::Parrafo || donde == SitioXml::Tramo) {
            texto_.escribir(trozo);
        }
    }

    void salir(SitioXml dejado) override {
        if (dejado == SitioXml::Parrafo) {
            texto_.cerrarParrafo();
        } else if (dejado == SitioXml::Celda) {
            conDefecto([&] { acabarCelda(); });
        } else if (dejado == SitioXml::Fila) {
            conDefecto([&] { acabarFila(); });
        } else if (dejado == SitioXml::Hoja) {
            libro.hojas.back().hoja.cerrar();
        }
    }

private:
    SitioXml enLasTablas(SitioXml donde, const ElementoXml& elemento) {
        const auto nombre = elemento.nombre().nombre;
        if (donde == SitioXml::Libro) {
            return nombre == "table"               ? empezarHoja(elemento)
                   : nombre == "named-expressions" ? SitioXml::Nombres
                                                   : SitioXml::Nada;
        }
        if (donde == SitioXml::Nombres && nombre == "named-range") {
            anadirNombre(elemento);
        }
        if (donde == SitioXml::Hoja || donde == SitioXml::Grupo) {
            if (nombre == "table-row" && !libro.hojas.back().defecto) {
                return empezarFila(elemento);
            }
            const bool grupo =
                nombre == "table-row-group" || nombre == "table-header-rows" || nombre == "table-rows";
            return grupo ? SitioXml::Grupo : SitioXml::Nada;
        }
        if (donde == SitioXml::Fila && (nombre == "table-cell" || nombre == "covered-table-cell") &&
            !libro.hojas.back().defecto) {
            return empezarCelda(elemento);
        }
        return SitioXml::Nada;
    }

    /// What stands beside the paragraphs, as notes and drawings, is no part of the text.
    SitioXml enLaCelda(const ElementoXml& elemento) {
        if (!elemento.es(EspacioXml::Texto, "p")) {
            return SitioXml::Nada;
        }
        texto_.abrirParrafo();
        return SitioXml::Parrafo;
    }

    SitioXml enElParrafo(const ElementoXml& elemento) {
        const auto [espacio, nombre] = elemento.nombre();
        bool esElemento = false;
        conDefecto([&] { esElemento = texto_.escribirElemento(elemento); });
        const bool deLetras = espacio == EspacioXml::Texto && nombre != "note" && nombre != "ruby-text";
        return deLetras && !esElemento ? SitioXml::Tramo : SitioXml::Nada;
    }

    SitioXml empezarHoja(const ElementoXml& elemento) {
        const auto nombre = elemento.atributo({EspacioXml::Tabla, "name"}).value_or("");
        if (EsDeOtroLibro(nombre)) {
            return SitioXml::Nada;
        }
        limites_.contarTablas(1); // all of them are here before the first is a table
        libro.hojas.push_back({std::string{nombre}, {}, {}});
        fila_ = 0;
        return SitioXml::Hoja;
    }

    void anadirNombre(const ElementoXml& elemento) {
        const auto zona =
            ZonaDeOds(elemento.atributo({EspacioXml::Tabla, "cell-range-address"}).value_or(""));
        if (zona) {
            libro.nombres.push_back(
                {std::string{elemento.atributo({EspacioXml::Tabla, "name"}).value_or("")}, *zona});
        }
    }

    SitioXml empezarFila(const ElementoXml& elemento) {
        vecesLaFila_ = VecesEscritas(
            elemento.atributo({EspacioXml::Tabla, "number-rows-repeated"}).value_or("1"), filasDeUnLibro);
        columna_ = 0;
        comienzoDeFila_ = celdas().size();
        return SitioXml::Fila;
    }

    SitioXml empezarCelda(const ElementoXml& elemento) {
        celda_ = CeldaEscritaEnOds(elemento);
        texto_.empezar();
        return SitioXml::Celda;
    }

    void acabarCelda() {
        const auto parrafos = texto_.hay() ? std::optional<std::string_view>{texto_.texto()} : std::nullopt;
        if (const auto valor = ValorDe(celda_, parrafos)) {
            if (columna_ >= columnasDeUnLibro || fila_ >= filasDeUnLibro) {
                ArchivoDanado("una celda está fuera de la hoja");
            }
            const auto veces = std::min(celda_.veces, columnasDeUnLibro - columna_);
            limites_.contarCeldas(veces);
            for (std::size_t i = 0; i < veces; ++i) {
                limites_.contarTextoDeCelda(valor->texto().size());
                celdas().anadir(fila_, columna_ + i, *valor);
            }
        }
        columna_ = std::min(columna_ + celda_.veces, columnasDeUnLibro);
    }

    /// Puts the cells of the row into the rows that are the same.
    void acabarFila() {
        const auto fin = celdas().size();
        const auto siguiente = std::min(fila_ + vecesLaFila_, filasDeUnLibro);
        for (auto fila = fila_ + 1; fila < siguiente && fin > comienzoDeFila_; ++fila) {
            limites_.contarCeldas(fin - comienzoDeFila_);
            for (auto i = comienzoDeFila_; i < fin; ++i) {
                limites_.contarTextoDeCelda(celdas().valor(i).texto().size());
                celdas().anadir(fila, celdas().columna(i), celdas().valor(i));
            }
        }
        fila_ = siguiente;
    }

    CeldasJuntas& celdas() { return libro.hojas.back().hoja.celdas; }

    /// What is wrong with a sheet is told when it is opened; the rest of it is not read.
    template <class Acto>
    void conDefecto(Acto acto) {
        auto& hoja = libro.hojas.back();
        if (hoja.defecto) {
            return;
        }
        try {
            acto();
        } catch (const ErrorMotor& error) {
            hoja.defecto.emplace(error.numero(),
                                 error.descripcion() + ", celda " + NombreDeCelda({fila_, columna_}));
            hoja.hoja = {};
        }
    }

    LimitesDeLectura& limites_;
    TextoOds texto_;
    CeldaOds celda_;
    std::size_t fila_ = 0;
    std::size_t columna_ = 0;
    std::size_t vecesLaFila_ = 1;
    std::size_t comienzoDeFila_ = 0; // in the cells of the sheet
};

} // namespace

LibroOds LeerHojasOds(const ArchivoZip& archivo, LimitesDeLectura& limites, const Avance& avance) {
    LectorDeHojasOds lector{limites};
    LeerXml(archivo, "content.xml", lector, [&](std::size_t bytes) {
        limites.crecer(bytes);
        avance.paso(bytes);
    });
    if (!lector.esLibro) {
        throw ErrorMotor{fallo::formatoNoReconocido, QueComprimidoEs(archivo)};
    }
    return std::move(lector.libro);
}

} // namespace varo
