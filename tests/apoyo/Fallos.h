// Which fault a statement ends in, and what it says.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace varo {

/// The number of the run-time fault that the statement throws, 0 if it throws none.
template <class Sentencia>
int FalloDe(Sentencia&& sentencia) {
    try {
        sentencia();
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
    return 0;
}

namespace prueba {

/// Success when the statement throws a fault of this class with this number, whose message has this text in
/// it. Exceptions of other classes pass.
template <class Clase = ErrorMotor, class Sentencia>
testing::AssertionResult FallaCon(int numero, std::string_view texto, Sentencia&& sentencia) {
    try {
        sentencia();
    } catch (const Clase& error) {
        const std::string mensaje = error.what();
        if (error.numero() == numero && mensaje.find(texto) != std::string::npos) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure()
               << "«" << mensaje << "» en lugar del fallo " << numero << " con «" << texto << "»";
    }
    return testing::AssertionFailure() << "no falla; debía fallar con " << numero << ", «" << texto << "»";
}

} // namespace prueba
} // namespace varo
