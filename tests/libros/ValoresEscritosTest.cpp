#include "libros/ValoresEscritos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace varo {
namespace {

TEST(NumeroEscrito, LlevaPuntoYExponente) {
    EXPECT_EQ(NumeroEscrito("0.1"), 0.1);
    EXPECT_EQ(NumeroEscrito(" -12.5E+3\n"), -12500.0);
    EXPECT_EQ(NumeroEscrito("+7"), 7.0);
    EXPECT_EQ(NumeroEscrito(".5"), 0.5);
    EXPECT_EQ(NumeroEscrito("0.300000000000000044409"), 0.1 + 0.2);
    EXPECT_EQ(NumeroEscrito("1e-400"), 0.0);
    EXPECT_TRUE(std::isinf(NumeroEscrito("1e400").value()));
    for (const std::string malo : {"", " ", "1,5", "1.5x", "uno", "0x10", "--1", "+-1", "1 2"}) {
        EXPECT_FALSE(NumeroEscrito(malo)) << malo;
    }
}

TEST(SerieDeFecha, CuentaLosDiasDesdeElFinalDe1899) {
    EXPECT_EQ(SerieDeFecha("1899-12-31"), 1.0);
    EXPECT_EQ(SerieDeFecha("1900-03-01"), 61.0);
    EXPECT_EQ(SerieDeFecha("2020-01-01"), 43831.0);
    EXPECT_EQ(SerieDeFecha("9999-12-31"), 2958465.0);
    EXPECT_EQ(SerieDeFecha("1850-05-01"), -18140.0);
    EXPECT_EQ(SerieDeFecha("2020-01-01T12:00:00"), 43831.5);
    EXPECT_EQ(SerieDeFecha("2020-01-01T18:00"), 43831.75);
    EXPECT_EQ(SerieDeFecha("2020-01-01T12:00:00.000Z"), 43831.5);
    EXPECT_EQ(SerieDeFecha("2020-01-01T12:00:00+02:00"), 43831.5);
    // What no calendar of ours has is a number all the same.
    EXPECT_EQ(SerieDeFecha("10000-01-01"), 2958466.0);
    EXPECT_EQ(SerieDeFecha("-0070-01-01"), -719526.0);
    EXPECT_EQ(FechaEscrita("9999-12-31"), Valor{Fecha{2958465}});
    EXPECT_EQ(FechaEscrita("10000-01-01"), Valor{2958466.0});
    EXPECT_EQ(FechaEscrita("0099-12-31"), Valor{-657435.0});
    EXPECT_EQ(FechaEscrita("0100-01-01"), Valor{Fecha{-657434}});
    // A leap second, and seconds that were rounded up, are the next day.
    EXPECT_EQ(SerieDeFecha("2020-01-01T23:59:60"), 43832.0);
    EXPECT_EQ(SerieDeFecha("1899-12-28T23:59:60"), -1.0);
    EXPECT_EQ(SerieDeFecha("2020-01-01T00:00:43,2"), 43831.0005);
    // Below zero the hour of a serial counts away from zero.
    EXPECT_EQ(SerieDeFecha("1899-12-28T06:00:00"), -2.25);
    for (const std::string mala :
         {"", "2020", "2020-1-1", "2020-02-30", "2019-02-29", "20-01-01", "120200-01-01", "99999-01-01",
          "2020-01-01T", "2020-01-01T25:00", "2020-01-01T23:59:61", "2020-01-01x", "2020/01/01"}) {
        EXPECT_FALSE(SerieDeFecha(mala)) << mala;
    }
}

TEST(ParteDelDia, EsLaHoraSola) {
    EXPECT_EQ(ParteDelDia("06:00"), 0.25);
    EXPECT_EQ(ParteDelDia("T18:00:00"), 0.75);
    EXPECT_EQ(ParteDelDia("00:00:43.2"), 0.0005);
    for (const std::string mala : {"", "6:00", "24:00", "06", "06:00 x"}) {
        EXPECT_FALSE(ParteDelDia(mala)) << mala;
    }
}

TEST(DiasDeDuracion, SumaDiasHorasMinutosYSegundos) {
    EXPECT_EQ(DiasDeDuracion("PT06H00M00S"), 0.25);
    EXPECT_EQ(DiasDeDuracion("PT36H"), 1.5);
    EXPECT_EQ(DiasDeDuracion("P1DT12H"), 1.5);
    EXPECT_EQ(DiasDeDuracion("PT90M"), 0.0625);
    EXPECT_EQ(DiasDeDuracion("PT43.2S"), 0.0005);
    EXPECT_EQ(DiasDeDuracion("-PT12H"), -0.5);
    EXPECT_EQ(DiasDeDuracion("PT43,2S"), 0.0005);
    EXPECT_EQ(DiasDeDuracion("P0Y0M0DT12H0M0S"), 0.5);
    EXPECT_EQ(DiasDeDuracion("P0Y1D"), 1.0);
    for (const std::string mala :
         {"", "T1H", "P1", "PT1", "PT1X", "P1Y", "P1M", "P0Y1M", "P0X", "P1D0Y", "PT1H2", "PT1H x"}) {
        EXPECT_FALSE(DiasDeDuracion(mala)) << mala;
    }
}

} // namespace
} // namespace varo
