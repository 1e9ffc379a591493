#include "options/Validacion.h"

#include "basico/AlSalir.h"
#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"

namespace varo {

namespace {

const Aviso valorErroneo{"El valor debe ser numérico", "Valor erróneo"};
const Aviso separacionErronea{"La separación decimal es ,", "Error en la separación decimal"};
const Aviso valorNegativo{"No se admiten valores negativos", "Error en el valor introducido"};
const Aviso valorNoNatural{"Sólo se admiten números naturales", "Error en la introducción de datos"};

bool Contiene(std::string_view texto, std::string_view caracteres) {
    return texto.find_first_of(caracteres) != std::string_view::npos;
}

} // namespace

std::optional<Aviso> ReparoACoeficiente(std::string_view texto) {
    if (!EsNumerico(texto)) {
        return valorErroneo;
    }
    if (Contiene(texto, ".")) {
        return separacionErronea;
    }
    return std::nullopt;
}

std::optional<Aviso> ReparoACoeficienteNoNegativo(std::string_view texto) {
    auto reparo = ReparoACoeficiente(texto);
    if (!reparo && Contiene(texto, "-")) {
        return valorNegativo;
    }
    return reparo;
}

std::optional<Aviso> ReparoACaracteres(std::string_view texto, int miembro) {
    if (EsDePies(miembro)) {
        return Contiene(texto, ".,-") ? std::optional{valorNoNatural} : std::nullopt;
    }
    return Contiene(texto, ".") ? std::optional{separacionErronea} : std::nullopt;
}

std::optional<Aviso> ReparoAExtremo(std::string_view texto, int miembro) {
    if (!EsNumerico(texto)) {
        return valorErroneo;
    }
    return ReparoACaracteres(texto, miembro);
}

std::optional<Aviso> ReparoAlTeclear(std::string_view texto, int miembro) {
    return texto.empty() ? std::nullopt : ReparoAExtremo(texto, miembro);
}

void OpcionesPrograma::conectarCampos() {
    const auto conectar = [this](const Matriz<CajaTexto>& campos, DeMiembro cambio, DeMiembro salida) {
        for (const auto& [indice, campo] : campos.miembros()) {
            campo->Change = [this, cambio, i = indice] { (this->*cambio)(i); };
            campo->LostFocus = [this, salida, i = indice] {
                // Losing the focus to the box about its own text is not leaving the field.
                if (!avisoAbierto_) {
                    (this->*salida)(i);
                }
            };
        }
    };
    conectar(TxtEXP, &OpcionesPrograma::TxtEXP_Change, &OpcionesPrograma::TxtEXP_LostFocus);
    conectar(TxtHIP, &OpcionesPrograma::TxtHIP_Change, &OpcionesPrograma::TxtHIP_LostFocus);
    conectar(TxtRm, &OpcionesPrograma::TxtRm_Change, &OpcionesPrograma::TxtRm_LostFocus);
    conectar(TxtRich, &OpcionesPrograma::TxtRich_Change, &OpcionesPrograma::TxtRich_LostFocus);
    conectar(TxtBAF1, &OpcionesPrograma::TxtBAF1_Change, &OpcionesPrograma::TxtBAF1_LostFocus);
    conectar(TxtBAF2, &OpcionesPrograma::TxtBAF2_Change, &OpcionesPrograma::TxtBAF2_LostFocus);
    conectar(TxtBAF3, &OpcionesPrograma::TxtBAF3_Change, &OpcionesPrograma::TxtBAF3_LostFocus);
}

void OpcionesPrograma::TxtEXP_Change(int i) {
    admite(TxtEXP(i), ReparoACoeficiente(TxtEXP(i).Text()));
}

void OpcionesPrograma::TxtEXP_LostFocus(int i) {
    TxtEXP_Change(i);
}

void OpcionesPrograma::TxtHIP_Change(int i) {
    admite(TxtHIP(i), ReparoACoeficiente(TxtHIP(i).Text()));
}

void OpcionesPrograma::TxtHIP_LostFocus(int i) {
    TxtHIP_Change(i);
}

void OpcionesPrograma::TxtRm_Change(int i) {
    admite(TxtRm(i), ReparoACoeficiente(TxtRm(i).Text()));
}

void OpcionesPrograma::TxtRm_LostFocus(int i) {
    TxtRm_Change(i);
}

void OpcionesPrograma::TxtRich_Change(int i) {
    admite(TxtRich(i), ReparoACoeficienteNoNegativo(TxtRich(i).Text()));
}

void OpcionesPrograma::TxtRich_LostFocus(int i) {
    TxtRich_Change(i);
}

void OpcionesPrograma::TxtBAF1_Change(int i) {
    admite(TxtBAF1(i), ReparoAlTeclear(TxtBAF1(i).Text(), i));
}

void OpcionesPrograma::TxtBAF2_Change(int i) {
    admite(TxtBAF2(i), ReparoAlTeclear(TxtBAF2(i).Text(), i));
}

void OpcionesPrograma::TxtBAF3_Change(int i) {
    admite(TxtBAF3(i), ReparoAlTeclear(TxtBAF3(i).Text(), i));
}

bool OpcionesPrograma::admite(CajaTexto& campo, const std::optional<Aviso>& reparo) {
    if (reparo) {
        avisar(*reparo, campo);
    }
    return !reparo;
}

void OpcionesPrograma::avisar(const Aviso& aviso) {
    avisoAbierto_ = true;
    const AlSalir cerrado{[this] { avisoAbierto_ = false; }};
    programa_.servicios().mensaje(aviso.texto, aviso.titulo, mensaje::exclamacion);
}

void OpcionesPrograma::avisar(const Aviso& aviso, CajaTexto& campo) {
    avisar(aviso);
    campo.SetFocus();
}

double OpcionesPrograma::numero(const CajaTexto& campo) {
    return EnLugar([&] { return "campo " + campo.nombreCompleto(); }, [&] { return ANumero(campo.Text()); });
}

} // namespace varo
