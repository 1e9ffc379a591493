// Numbers are written and read alike whatever the locale of the machine.
#include "basico/Numeros.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

using namespace varo;

namespace {

/// Puts the numbers of the C library under a decimal comma as long as it lives.
class IdiomaConComa {
public:
    IdiomaConComa() : anterior_{std::setlocale(LC_ALL, nullptr)} {
        for (const char* const nombre :
             {"es_ES.UTF-8", "es_ES.utf8", "es_ES", "de_DE.UTF-8", "fr_FR.UTF-8"}) {
            if (std::setlocale(LC_ALL, nombre) != nullptr && *std::localeconv()->decimal_point == ',') {
                puesto_ = true;
                return;
            }
        }
    }
    ~IdiomaConComa() { std::setlocale(LC_ALL, anterior_.c_str()); }
    IdiomaConComa(const IdiomaConComa&) = delete;
    IdiomaConComa& operator=(const IdiomaConComa&) = delete;

    [[nodiscard]] bool puesto() const { return puesto_; }

private:
    std::string anterior_;
    bool puesto_ = false;
};

} // namespace

TEST(Idioma, LosNumerosNoDependenDelIdiomaDeLaMaquina) {
    const IdiomaConComa idioma;
    if (!idioma.puesto()) {
        GTEST_SKIP() << "esta máquina no tiene ningún idioma con coma decimal";
    }
    EXPECT_EQ(ATexto(1234.5), "1234,5");
    EXPECT_EQ(ATexto(1.5e-5), "1,5E-05");
    EXPECT_EQ(ATexto(-3), "-3");
    EXPECT_EQ(ATextoCorto(0.1 + 0.2), "0,30000000000000004");
    EXPECT_EQ(Formato(12345.678, "##0.00"), "12345,68");
    EXPECT_EQ(ANumero("1.234,5"), 1234.5);
    EXPECT_EQ(Val("1.5"), 1.5);
    EXPECT_EQ(Val("1,5"), 1);
}
