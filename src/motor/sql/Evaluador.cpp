#include "motor/sql/Evaluador.h"

#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>
#include <cassert>

namespace varo::sql {

Evaluador::Evaluador(const ExpresionPostfija& expresion, const Tabla& tabla) : expresion_{expresion} {
    for (const auto& nombre : expresion.campos) {
        const auto hallado = std::find_if(tabla.Fields.begin(), tabla.Fields.end(), [&](const Campo& campo) {
            return MismoNombre(campo.Name, nombre);
        });
        if (hallado == tabla.Fields.end()) {
            throw ErrorMotor{fallo::nombreDesconocido,
                             "La tabla «" + tabla.Name + "» no tiene ningún campo «" + nombre + "»"};
        }
        columnas_.push_back({static_cast<std::size_t>(hallado - tabla.Fields.begin()), &hallado->Name});
    }
    for (const auto& constante : expresion.constantes) {
        constantes_.push_back(DeCelda(ValorDeCelda{constante}));
    }
    pila_.resize(expresion.pasos.size());
}

Operando Evaluador::operator()(FilaDeTabla fila) {
    const auto explicar = [&](ErrorEjecucion& error) {
        situar(error);
        if (error.numero() != fallo::desbordamiento || columnas_.size() != 1) {
            return;
        }
        if (const Valor& valor = fila[columnas_.front().posicion]; !EsNulo(valor)) {
            error.porque(Cita(ATexto(valor)) + " es un número demasiado grande");
        }
    };
    return AlFallar(explicar, [&] { return calculado(fila); });
}

Valor Evaluador::entero(FilaDeTabla fila) {
    return expresion_.esCampo() ? Valor{fila[columnas_.front().posicion]} : AValor((*this)(fila));
}

void Evaluador::situar(ErrorEjecucion& error) const {
    if (!error.lugar().empty() || columnas_.empty()) {
        return;
    }
    std::string nombres;
    for (const auto& columna : columnas_) {
        nombres += (nombres.empty() ? "«" : ", «") + *columna.nombre + "»";
    }
    error.en((columnas_.size() == 1 ? "columna " : "columnas ") + nombres);
}

Operando Evaluador::calculado(FilaDeTabla fila) {
    std::size_t altura = 0;
    for (const auto& paso : expresion_.pasos) {
        switch (paso.operacion) {
        case Operacion::Campo: {
            const auto& columna = columnas_[paso.indice];
            pila_[altura++] = DeCelda(fila[columna.posicion], columna.nombre);
            break;
        }
        case Operacion::Constante:
            pila_[altura++] = constantes_[paso.indice];
            break;
        case Operacion::Negacion:
        case Operacion::No:
            pila_[altura - 1] = Calcular(paso.operacion, pila_[altura - 1]);
            break;
        default:
            --altura;
            pila_[altura - 1] = Calcular(paso.operacion, pila_[altura - 1], pila_[altura]);
        }
    }
    assert(altura == 1 && "an expression leaves one value");
    return pila_.front();
}

} // namespace varo::sql
