#include "libros/xlsx/HojaXlsx.h"

#include "basico/Texto.h"
#include "libros/LectorXml.h"
#include "libros/Referencias.h"
#include "libros/ValoresEscritos.h"
#include "libros/xlsx/TextoXlsx.h"
#include "motor/lectores/FechasBiff.h"

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace varo {
namespace {

using namespace std::string_view_literals;

enum class SitioDeHoja { Documento, Hoja, Filas, Fila, Celda, Resultado, Texto, Tramo, Letras, Nada };

enum class ClaseEscrita { Numero, Compartido, Formula, Propio, Verdad, Error, Momento };

constexpr std::array<std::pair<std::string_view, ClaseEscrita>, 7> clases{
    {{"n"sv, ClaseEscrita::Numero},
     {"s"sv, ClaseEscrita::Compartido},
     {"str"sv, ClaseEscrita::Formula},
     {"inlineStr"sv, ClaseEscrita::Propio},
     {"b"sv, ClaseEscrita::Verdad},
     {"e"sv, ClaseEscrita::Error},
     {"d"sv, ClaseEscrita::Momento}}};

/// Those at the ends, which XML that is indented has around values.
void QuitarBlancos(std::string& texto) {
    const auto limpio = SinBlancosDeXml(texto);
    if (limpio.size() != texto.size()) {
        texto = std::string{limpio};
    }
}

class LectorDeHojaXlsx : public OyenteConSitios<SitioDeHoja> {
public:
    LectorDeHojaXlsx(const LibroXlsx& libro, LimitesDeLectura& limites) : libro_{libro}, limites_{limites} {}

    HojaDeCalculo acabar() {
        if (!esHoja_) {
            ArchivoDanado("una hoja no es de la clase que el libro dice");
        }
        hoja_.cerrar();
        return std::move(hoja_);
    }

protected:
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        if (elemento.nombre().espacio != EspacioXml::Hoja) {
            return SitioXml::Nada;
        }
        const auto nombre = elemento.nombre().nombre;
        switch (donde) {
        case SitioXml::Documento:
            esHoja_ = nombre == "worksheet";
            return esHoja_ ? SitioXml::Hoja : SitioXml::Nada;
        case SitioXml::Hoja:
            return nombre == "sheetData" ? SitioXml::Filas : SitioXml::Nada;
        case SitioXml::Filas:
            return nombre == "row" ? empezarFila(elemento) : SitioXml::Nada;
        case SitioXml::Fila:
            return nombre == "c" ? empezarCelda(elemento) : SitioXml::Nada;
        case SitioXml::Celda:
            return enLaCelda(nombre);
        case SitioXml::Texto:
        case SitioXml::Tramo:
            return enElTexto(donde, nombre, elemento);
        default:
            return SitioXml::Nada;
        }
    }

    void escribir(SitioXml donde, std::string_view trozo) override {
        if (donde == SitioXml::Resultado) {
            resultado_ += trozo;
        } else if (donde == SitioXml::Letras) {
            texto_.escribir(trozo);
        }
    }

    void salir(SitioXml dejado) override {
        if (dejado == SitioXml::Celda) {
            acabarCelda();
        } else if (dejado == SitioXml::Fila) {
            siguiente_ = {fila_ + 1, 0};
        }
    }

private:
    /// Rows and cells that do not say where they are follow the one before.
    SitioXml empezarFila(const ElementoXml& fila) {
        if (const auto numero = fila.atributo("r")) {
            const auto leido = EnteroEscrito(*numero);
            if (leido.value_or(0) == 0) {
                ArchivoDanado("una fila no dice bien cuál es: " + std::string{*numero});
            }
            siguiente_.fila = *leido - 1;
        }
        fila_ = siguiente_.fila;
        siguiente_.columna = 0;
        return SitioXml::Fila;
    }

    SitioXml empezarCelda(const ElementoXml& celda) {
        estilo_ = 0;
        tieneFormula_ = false;
        tieneResultado_ = false;
        tieneTexto_ = false;
        resultado_.clear();
        std::optional<std::string_view> sitio;
        std::optional<std::string_view> clase;
        for (const auto& [nombre, valor] : celda.atributos()) {
            if (nombre == NombreXml{EspacioXml::Ninguno, "r"}) {
                sitio = valor;
            } else if (nombre == NombreXml{EspacioXml::Ninguno, "s"}) {
                estilo_ = EnteroEscrito(valor).value_or(0);
            } else if (nombre == NombreXml{EspacioXml::Ninguno, "t"}) {
                clase = valor;
            }
        }
        situar(sitio);
        clase_ = clase ? claseDe(*clase) : ClaseEscrita::Numero;
        return SitioXml::Celda;
    }

    void situar(std::optional<std::string_view> sitio) {
        celda_ = siguiente_;
        if (sitio) {
            const auto leido = CeldaEscrita(*sitio);
            if (!leido) {
                ArchivoDanado("una celda no dice bien cuál es: " + std::string{*sitio});
            }
            celda_ = *leido;
        }
        if (celda_.fila >= filasDeUnLibro || celda_.columna >= columnasDeUnLibro) {
            danada("está fuera de la hoja");
        }
        siguiente_ = {celda_.fila, celda_.columna + 1};
    }

    [[noreturn]] void danada(const std::string& que) const {
        ArchivoDanado("su celda " + NombreDeCelda(celda_) + " " + que);
    }

    [[nodiscard]] ClaseEscrita claseDe(std::string_view escrita) const {
        for (const auto& [nombre, clase] : clases) {
            if (nombre == escrita) {
                return clase;
            }
        }
        danada("es de una clase que no hay: " + std::string{escrita});
    }

    SitioXml enLaCelda(std::string_view nombre) {
        if (nombre == "v") {
            tieneResultado_ = true;
            return SitioXml::Resultado;
        }
        if (nombre == "is") {
            tieneTexto_ = true;
            texto_.empezar();
            return SitioXml::Texto;
        }
        tieneFormula_ = tieneFormula_ || nombre == "f";
        return SitioXml::Nada;
    }

    SitioXml enElTexto(SitioXml donde, std::string_view nombre, const ElementoXml& elemento) {
        if (nombre == "t") {
            texto_.abrirTramo(elemento);
            return SitioXml::Letras;
        }
        return nombre == "r" && donde == SitioXml::Texto ? SitioXml::Tramo : SitioXml::Nada;
    }

    void acabarCelda() {
        if (clase_ != ClaseEscrita::Formula) {
            QuitarBlancos(resultado_);
        }
        switch (clase_) {
        case ClaseEscrita::Compartido:
            anadirCompartido();
            break;
        case ClaseEscrita::Formula:
            if (tieneResultado_ || tieneFormula_) {
                anadirTexto(SinEscapes(resultado_));
            }
            break;
        case ClaseEscrita::Propio:
            if (tieneTexto_) {
                anadirTexto(texto_.texto());
            }
            break;
        case ClaseEscrita::Error:
            anadir({});
            break;
        default:
            anadirEscrito();
        }
    }

    /// A cell without content is none, but a formula is one before it is computed.
    void anadirEscrito() {
        if (resultado_.empty() || esCeroPorCalcular()) {
            if (tieneFormula_) {
                anadir({});
            }
        } else if (clase_ == ClaseEscrita::Verdad) {
            anadir({ValorDeCelda::Clase::Verdad, verdad() ? 1.0 : 0.0});
        } else if (clase_ == ClaseEscrita::Momento) {
            anadir(ValorDeCelda{momento()});
        } else {
            anadir(numero());
        }
    }

    /// What programs that do not compute write as the result of any formula.
    [[nodiscard]] bool esCeroPorCalcular() const {
        return libro_.porCalcular && tieneFormula_ && clase_ == ClaseEscrita::Numero && resultado_ == "0";
    }

    void anadirCompartido() {
        if (resultado_.empty()) {
            return;
        }
        const auto cual = EnteroEscrito(resultado_);
        if (!cual || *cual >= libro_.textos.size()) {
            danada("pide un texto que no hay");
        }
        anadirTexto(libro_.textos[*cual]);
    }

    void anadirTexto(std::string_view texto) {
        limites_.contarTextoDeCelda(texto.size());
        anadir(ValorDeCelda{texto});
    }

    void anadir(const ValorDeCelda& valor) {
        limites_.contarCeldas(1);
        hoja_.celdas.anadir(celda_.fila, celda_.columna, valor);
    }

    [[nodiscard]] bool verdad() const {
        const auto escrita = Minusculas(resultado_);
        if (!EsVerdad(escrita) && escrita != "0" && escrita != "false") {
            danada("no es ni verdadera ni falsa: " + resultado_);
        }
        return EsVerdad(escrita);
    }

    [[nodiscard]] Valor momento() const {
        if (const auto hora = ParteDelDia(resultado_)) {
            return Fecha{*hora};
        }
        const auto fecha = FechaEscrita(resultado_);
        if (!fecha) {
            danada("no lleva una fecha: " + resultado_);
        }
        return *fecha;
    }

    /// What is no finite number shows as an error in a sheet, and is null like one.
    [[nodiscard]] ValorDeCelda numero() const {
        const auto leido = NumeroEscrito(resultado_);
        if (!leido) {
            danada("no lleva un número: " + resultado_);
        }
        if (!std::isfinite(*leido)) {
            return {};
        }
        const bool esFecha = estilo_ < libro_.estiloEsFecha.size() && libro_.estiloEsFecha[estilo_];
        return esFecha ? ValorDeCelda{FechaDeSerie(*leido, libro_.calendario1904)}
                       : ValorDeCelda{ValorDeCelda::Clase::Numero, *leido};
    }

    const LibroXlsx& libro_;
    LimitesDeLectura& limites_;
    HojaDeCalculo hoja_;
    bool esHoja_ = false;
    std::size_t fila_ = 0; // the one that is open
    SitioDeCelda siguiente_;
    SitioDeCelda celda_;
    ClaseEscrita clase_ = ClaseEscrita::Numero;
    std::size_t estilo_ = 0;
    bool tieneFormula_ = false;
    bool tieneResultado_ = false;
    bool tieneTexto_ = false;
    std::string resultado_;
    TextoXlsx texto_;
};

} // namespace

HojaDeCalculo LeerHojaXlsx(const ArchivoZip& archivo, const std::string& parte, const LibroXlsx& libro,
                           LimitesDeLectura& limites, const Avance& avance) {
    LectorDeHojaXlsx lector{libro, limites};
    LeerXml(archivo, parte, lector, [&](std::size_t bytes) {
        limites.crecer(bytes);
        avance.paso(bytes);
    });
    return lector.acabar();
}

} // namespace varo
