#include "lote/recorrido/ElegirColumnas.h"

#include "basico/Texto.h"
#include "data/Hojadedatos.h"
#include "data/SelColumnas.h"
#include "lote/recorrido/PapelesPedidos.h"
#include "lote/trabajo/ClavesDePapeles.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace varo {

namespace {

SelColumnas& DialogoALaVista(const Programa& programa) {
    const std::array<SelColumnas*, 3> dialogos{programa.cargada<SelCol4R>(), programa.cargada<SelCol2D>(),
                                               programa.cargada<SelColRM>()};
    for (SelColumnas* const dialogo : dialogos) {
        if (dialogo != nullptr && dialogo->Visible()) {
            return *dialogo;
        }
    }
    throw std::logic_error{"el menú del mapa no mostró ninguna selección de columnas"};
}

class Selector {
public:
    explicit Selector(PuestoDeTrabajo& puesto)
        : puesto_{puesto}, opciones_{puesto.programa.tocar<OpcionesPrograma>()},
          rejilla_{puesto.programa.tocar<Hojadedatos>().MSFlexGrid1} {}

    void elegir() {
        puesto_.hacer({"columnas"},
                      [this] { puesto_.usuario.clic(puesto_.programa.tocar<VAROMAIN>().mnuMapa); });
        auto& dialogo = DialogoALaVista(puesto_.programa);
        claves_ = ClavesDePapeles(dialogo.papeles().copa);
        exigirPapelesDelDialogo();
        // The code goes first: afterwards a header with "Código" in it, chosen for another role, can no
        // longer pass for the code and keep its button disabled.
        const int codigo = PapelCodigo(dialogo.papeles().copa);
        darPapel(dialogo, codigo);
        for (int papel = 0; papel < codigo; ++papel) {
            darPapel(dialogo, papel);
        }
        if (const auto* const dap = puesto_.trabajo.columna(claveDAP)) {
            pulsar(dialogo.CmdDAP, *dap);
        }
        exigirCompletas(dialogo);
        exigirDAP();
        puesto_.hacer({"columnas"}, [&] { puesto_.usuario.clic(dialogo.CmdDibujar); });
    }

private:
    [[nodiscard]] bool conCodigo() const { return opciones_.ChCodigo.Value() == 1; }

    void exigirPapelesDelDialogo() const {
        for (const auto& columna : puesto_.trabajo.columnas) {
            const bool conocido = columna.papel == claveDAP ||
                                  std::find(claves_.begin(), claves_.end(), columna.papel) != claves_.end();
            if (!conocido) {
                puesto_.rechazar(columna.lugar(), "los datos de copa elegidos no tienen este papel; tienen " +
                                                      Enumerar(claves_) + " y DAP");
            }
            if (columna.papel == "Codigo" && !conCodigo()) {
                puesto_.rechazar(columna.lugar(), "ChCodigo está a 0: la parcela no tiene código de árbol");
            }
        }
    }

    void darPapel(SelColumnas& dialogo, int papel) {
        if (const auto* const columna = puesto_.trabajo.columna(claves_[static_cast<std::size_t>(papel)])) {
            pulsar(dialogo.Command1(papel), *columna);
        }
    }

    void pulsar(Boton& boton, const ColumnaPedida& pedida) {
        const int columna = columnaDeLaRejilla(pedida);
        if (columna == rejilla_.Cols() - 1) {
            // The grid has no cells of the last field, while the queries read it: half of the indices would
            // be worked out with nothing.
            puesto_.rechazar(pedida.lugar(),
                             "la columna " + std::to_string(columna) + " («" +
                                 rejilla_.TextMatrix(0, columna) +
                                 "») es la última de la hoja, y los datos de la última no se leen: "
                                 "añada otra columna detrás, aunque solo tenga cabecera");
        }
        if (rejilla_.ColWidth(columna) == 0) {
            puesto_.avisar(pedida.lugar(), "la columna " + std::to_string(columna) + " («" +
                                               rejilla_.TextMatrix(0, columna) +
                                               "») no tiene datos en la rejilla");
        }
        puesto_.hacer(pedida.lugar(), [&] {
            puesto_.usuario.seleccionarColumna(rejilla_, columna);
            puesto_.usuario.clic(boton);
        });
    }

    [[nodiscard]] int columnaDeLaRejilla(const ColumnaPedida& pedida) const {
        if (const auto* const numero = std::get_if<std::int64_t>(&pedida.columna)) {
            if (*numero < 0 || *numero >= rejilla_.Cols()) {
                puesto_.rechazar(pedida.lugar(), "no hay columna " + std::to_string(*numero) +
                                                     ": van de la 0 a la " +
                                                     std::to_string(rejilla_.Cols() - 1));
            }
            return static_cast<int>(*numero);
        }
        return columnaConCabecera(pedida, std::get<std::string>(pedida.columna));
    }

    [[nodiscard]] int columnaConCabecera(const ColumnaPedida& pedida, const std::string& cabecera) const {
        std::vector<std::string> cabeceras;
        cabeceras.reserve(static_cast<std::size_t>(rejilla_.Cols()));
        for (int columna = 0; columna < rejilla_.Cols(); ++columna) {
            cabeceras.push_back(rejilla_.TextMatrix(0, columna));
        }
        auto hallada = std::find(cabeceras.begin(), cabeceras.end(), cabecera);
        if (hallada == cabeceras.end()) {
            hallada = std::find_if(cabeceras.begin(), cabeceras.end(),
                                   [&](const std::string& otra) { return MismoNombre(otra, cabecera); });
        }
        if (hallada == cabeceras.end()) {
            puesto_.rechazar(pedida.lugar(), "la hoja no tiene ninguna columna " + CitaLarga(cabecera) +
                                                 "; tiene " + Enumerar(cabeceras));
        }
        return static_cast<int>(hallada - cabeceras.begin());
    }

    void exigirCompletas(const SelColumnas& dialogo) const {
        if (dialogo.CmdDibujar.Enabled()) {
            return;
        }
        std::vector<std::string> faltan;
        for (const auto& papel : claves_) {
            if (puesto_.trabajo.columna(papel) == nullptr && (papel != "Codigo" || conCodigo())) {
                faltan.push_back(papel);
            }
        }
        puesto_.rechazar({"columnas"}, faltan.empty()
                                           ? "el programa no da por completa la selección de columnas"
                                           : "faltan papeles: " + Enumerar(faltan));
    }

    /// The dialog draws without a stem size, and the indices would take the row number for it.
    void exigirDAP() const {
        if (puesto_.trabajo.columna(claveDAP) != nullptr) {
            return;
        }
        const auto piden = PidenDAP(puesto_.trabajo, opciones_);
        if (!piden.empty()) {
            puesto_.rechazar({"columnas"}, std::string{"falta columnas.DAP, "} +
                                               (piden.size() == 1 ? "lo pide " : "lo piden ") +
                                               Enumerar(piden));
        }
    }

    PuestoDeTrabajo& puesto_;
    const OpcionesPrograma& opciones_;
    Rejilla& rejilla_;
    std::vector<std::string> claves_; ///< by role
};

} // namespace

void ElegirColumnas(PuestoDeTrabajo& puesto) {
    Selector{puesto}.elegir();
}

} // namespace varo
