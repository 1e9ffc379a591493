// A plot on whose map all families of neighbours can be run.
#pragma once

#include "apoyo/Jornada.h"
#include "apoyo/OyenteDePrueba.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {

/// Five trees, no two of one x or one y.
inline Filas Torcidas() {
    Filas filas = CuadradoConCentro();
    const std::vector<std::pair<double, double>> lugares{{0, 1}, {1, 11}, {12, 10}, {11, 0}, {5, 6}};
    for (std::size_t i = 0; i < lugares.size(); ++i) {
        filas[i + 1][1] = lugares[i].first;
        filas[i + 1][2] = lugares[i].second;
    }
    return filas;
}

/// The map is up, and all families of neighbours and ABj are asked for.
struct CorridaDePrueba : Jornada {
    explicit CorridaDePrueba(bool circulos) {
        abrirParcela(Torcidas());
        dibujarCuadrado();
        auto& o = opciones();
        o.OptDAP.Value = true;
        o.OptMDIA.Value = true;
        o.Optcirc.Value = circulos;
        o.ChABj.Value = 1;
        o.ChSupCopa.Value = 1;
        o.ChISCUni.Value = 1;
        o.ChAOIActivar.Value = 1;
        o.LstAOI.AddItem("a: 1,0000; b: 0,0000; c: 1,0000; d: 0,0000; e: 0,0000");
        barrer(6, "0", "1", "0,5");
        o.ChIDPActivar.Value = 1;
        o.OptRadioFijo(0).Value = true;
        barrer(0, "20", "20", "0");
        o.ChDRActivar.Value = 1;
        o.OptNumFijo(1).Value = true;
        barrer(3, "1", "2", "1");
        barrer(4, "0", "0", "0");
        o.LstDist.AddItem("HIP, a: 1,0000; b: 0,0000; c: 1,0000; d: 0,0000; e: 0,0000");
        o.ChAPA.Value = 1;
        barrer(8, "1", "1", "0");
    }
    void barrer(int i, const std::string& desde, const std::string& hasta, const std::string& paso) {
        opciones().TxtBAF1(i).Text = desde;
        opciones().TxtBAF2(i).Text = hasta;
        opciones().TxtBAF3(i).Text = paso;
    }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
    FrmCrearArchivo* dialogo() { return programa.cargada<FrmCrearArchivo>(); }
    void correr() { usuario.clic(mapa().mnuIndices); }
    /// Runs until the step with this number, and no further.
    void cancelarEn(std::size_t paso) {
        OyenteDePrueba oyente;
        oyente.cancelarEn = paso;
        servicios.oyente = &oyente;
        correr();
        servicios.oyente = nullptr;
        EXPECT_EQ(oyente.oidos, paso);
    }
    /// The file that the dialog on show writes now.
    std::string guardar() {
        dialogo()->DirLista.Path(carpeta.ruta().string());
        const std::string nombre = "indices" + std::to_string(++guardados_) + ".txt";
        usuario.escribir(dialogo()->TxtLista, nombre);
        servicios.esperarMensaje(carpeta.archivo(nombre) + " fue creado correctamente");
        usuario.clic(dialogo()->CmdAceptar);
        return LeerArchivo(carpeta.archivo(nombre));
    }

private:
    int guardados_ = 0;
};

} // namespace varo::prueba
