#include "formularios/ServiciosPreparados.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <vector>

namespace varo {

TEST(ServiciosPreparados, RespondeALosMensajesEnElOrdenPreparado) {
    ServiciosPreparados servicios;
    servicios.esperarMensaje("¿Salir?", mensaje::respondeNo);
    servicios.esperarMensaje("Hecho");
    EXPECT_EQ(servicios.mensaje("¿Salir?", "VARO", mensaje::siNo + mensaje::pregunta), 7);
    EXPECT_EQ(servicios.mensaje("Hecho", "Fin", mensaje::informacion), 1);
    EXPECT_TRUE(servicios.todoPedido());
}

TEST(ServiciosPreparados, ApuntaCadaMensajeConSuTituloYSusOpciones) {
    ServiciosPreparados servicios;
    servicios.esperarMensaje("¿Salir?", mensaje::respondeSi);
    servicios.mensaje("¿Salir?", "VARO", mensaje::siNo + mensaje::pregunta);
    const ServiciosPreparados::Mensaje esperado{"¿Salir?", "VARO", 36};
    EXPECT_EQ(servicios.mensajes(), std::vector{esperado});
}

TEST(ServiciosPreparados, UnMensajeQueNadieEsperabaSaltaYQuedaApuntado) {
    ServiciosPreparados servicios;
    try {
        servicios.mensaje("Sorpresa", "Aviso", mensaje::aceptar);
        FAIL() << "nadie lo esperaba";
    } catch (const MensajeInesperado& inesperado) {
        EXPECT_EQ(inesperado.texto(), "Sorpresa");
        EXPECT_STREQ(inesperado.what(), "Aviso: Sorpresa");
    }
    EXPECT_EQ(servicios.mensajes().size(), 1U);
}

TEST(ServiciosPreparados, UnMensajeDistintoDelEsperadoSaltaYNoGastaLaRespuesta) {
    ServiciosPreparados servicios;
    servicios.esperarMensaje("Uno", mensaje::respondeSi);
    EXPECT_THROW(servicios.mensaje("Dos", "", 0), MensajeInesperado);
    EXPECT_FALSE(servicios.todoPedido());
    EXPECT_EQ(servicios.mensaje("Uno", "", 0), 6);
}

TEST(ServiciosPreparados, UnaSorpresaNoEsUnFalloDelPrograma) {
    ServiciosPreparados servicios;
    bool comoFallo = false;
    try {
        servicios.mensaje("Sorpresa", "", 0);
    } catch (const ErrorEjecucion&) {
        comoFallo = true;
    } catch (const SinRespuestaPreparada&) {
        comoFallo = false;
    }
    EXPECT_FALSE(comoFallo) << "quien se salta los fallos se tragaría el mensaje";
}

TEST(ServiciosPreparados, UnFalloEsperadoSeApuntaYOtroSalta) {
    ServiciosPreparados servicios;
    servicios.esperarFallo(11);
    EXPECT_NO_THROW(servicios.fallo(ErrorEjecucion{11}));
    ASSERT_EQ(servicios.fallos().size(), 1U);
    EXPECT_EQ(servicios.fallos().front().numero(), 11);
    EXPECT_TRUE(servicios.todoPedido());

    servicios.esperarFallo(11);
    try {
        servicios.fallo(ErrorEjecucion{13});
        FAIL() << "se esperaba otro";
    } catch (const FalloInesperado& inesperado) {
        EXPECT_EQ(inesperado.error().numero(), 13);
    }
    EXPECT_FALSE(servicios.todoPedido());
    EXPECT_EQ(servicios.fallos().size(), 2U);
}

TEST(ServiciosPreparados, DaLosArchivosEnOrdenYElVacioCancela) {
    ServiciosPreparados servicios;
    servicios.prepararArchivo("parcela.xls");
    servicios.prepararArchivo("");
    DialogoAbrir dialogo;
    dialogo.DialogTitle = "Abrir";
    dialogo.FileName = "antes.xls";
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, "parcela.xls");
    EXPECT_EQ(servicios.ultimoDialogo().DialogTitle, "Abrir");
    servicios.elegirArchivo(dialogo);
    EXPECT_EQ(dialogo.FileName, "");
    EXPECT_THROW(servicios.elegirArchivo(dialogo), SinRespuestaPreparada);
}

TEST(ServiciosPreparados, DaFuentesYColoresEnOrdenYNadaAlCancelar) {
    ServiciosPreparados servicios;
    const Fuente fuente{"Arial", 12, true, false, false, true};
    servicios.prepararFuente(fuente);
    servicios.prepararFuente(std::nullopt);
    servicios.prepararColor(0x0000FF);
    servicios.prepararColor(std::nullopt);
    EXPECT_EQ(servicios.elegirFuente({}), fuente);
    EXPECT_EQ(servicios.elegirFuente({}), std::nullopt);
    EXPECT_EQ(servicios.elegirColor(0), 255);
    EXPECT_EQ(servicios.elegirColor(0), std::nullopt);
    EXPECT_TRUE(servicios.todoPedido());
    EXPECT_THROW(servicios.elegirFuente({}), SinRespuestaPreparada);
    EXPECT_THROW(servicios.elegirColor(0), SinRespuestaPreparada);
}

TEST(ServiciosPreparados, NoEstaTodoPedidoMientrasQuedeAlgoDeCualquierTipo) {
    const std::vector<std::function<void(ServiciosPreparados&)>> preparaciones{
        [](ServiciosPreparados& servicios) { servicios.esperarMensaje("Hecho"); },
        [](ServiciosPreparados& servicios) { servicios.esperarFallo(11); },
        [](ServiciosPreparados& servicios) { servicios.prepararArchivo("parcela.xls"); },
        [](ServiciosPreparados& servicios) { servicios.prepararFuente(std::nullopt); },
        [](ServiciosPreparados& servicios) { servicios.prepararColor(std::nullopt); }};
    for (const auto& preparar : preparaciones) {
        ServiciosPreparados servicios;
        EXPECT_TRUE(servicios.todoPedido());
        preparar(servicios);
        EXPECT_FALSE(servicios.todoPedido());
    }
}

} // namespace varo
