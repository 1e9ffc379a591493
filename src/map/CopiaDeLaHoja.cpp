// The copy of a sheet with the crown areas: procedures that no command reaches. They write nothing.
#include "map/FrmMapa.h"

#include "basico/Texto.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "options/Unidades.h"
#include "plot/calculo/ConsultaDeCopas.h"
#include "shell/Programa.h"

#include <algorithm>

namespace varo {

namespace {

std::vector<std::string> CamposDeLaCopia(const Sesion& sesion, DatosDeCopa datos) {
    switch (datos) {
    case DatosDeCopa::CuatroRadios:
        return {sesion.CampoRadioN, sesion.CampoRadioE, sesion.CampoRadioS, sesion.CampoRadioO};
    case DatosDeCopa::DosDiametros:
        return {sesion.CampoDiamNS, sesion.CampoDiamEO};
    case DatosDeCopa::RadioMedio:
        break;
    }
    return {sesion.CampoRadio};
}

} // namespace

void FrmMapa::ComprobarRepeticionDeHoja() {
    const std::string& hoja = programa_.tocar<FrmSeleccion>().CboHoja.Text;
    const std::size_t letras = Longitud(hoja);
    const std::string copia = Izquierda(hoja, letras == 0 ? 0 : letras - 1) + "COPIA$";
    const auto& tablas = programa_.tocar<Hojadedatos>().Data1.Database().TableDefs();
    for (int i = 0; i < tablas.Count(); ++i) {
        if (tablas(i).Name == copia) {
            GrabarEncima();
        }
    }
}

void FrmMapa::GrabarEncima() {
    auto& sesion = programa_.sesion;
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    const auto& base = programa_.tocar<Hojadedatos>().Data1.Database();
    DefinicionDeTabla copia = BaseDatos::CreateTableDef("p13 Replica");
    const DatosDeCopa datos = DatosDeLaCopa(opciones);
    const std::string consulta =
        ConsultaDeLaCopia({datos, opciones.Optcirc.Value, FactorDeRadios(opciones),
                           CamposDeLaCopia(sesion, datos), programa_.tocar<FrmSeleccion>().CboHoja.Text});
    copia.Append(DefinicionDeTabla::CreateField(sesion.CampoSupCopa, TipoDeCampo::Doble));
    filasDeLaCopia = base.OpenRecordset(consulta);
    // Meant: TablaCopia is never set, so this query ends in a fault.
    const auto suma = base.OpenRecordset("Select Sum ([" + sesion.CampoSupCopa + "]) as AreaCopa from [" +
                                         sesion.TablaCopia + "]");
    sesion.AreaTotalCopas = ANumero(suma.Fields(0).Value);
}

} // namespace varo
