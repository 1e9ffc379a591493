#include "lote/PintorAparte.h"

#include "map/FrmMapa.h"
#include "pintura/Imagenes.h"

#include <QGuiApplication>

#include <array>
#include <cassert>
#include <iostream>
#include <set>
#include <utility>
#include <variant>

namespace varo {

namespace {

/// The fonts of the labels in sight that the system does not have. Those of the design are missing on most
/// systems, and nobody asked for them.
std::set<std::string> FuentesQueFaltan(const FrmMapa& mapa) {
    const std::set<std::string> deDiseno{Fuente{}.nombre, "Arial"};
    std::set<std::string> pedidas;
    for (const Figura& figura : mapa.lienzo.figuras()) {
        if (const auto* const mostrada = std::get_if<EtiquetaMostrada>(&figura)) {
            pedidas.insert(mapa.etiqueta(*mostrada).Font().nombre);
        }
    }
    std::erase_if(pedidas, [&](const std::string& fuente) {
        return deDiseno.contains(fuente) || EstaInstalada(fuente);
    });
    return pedidas;
}

/// The toolkit grumbles about desktops and folders that a batch does not need.
void DecirLoGrave(QtMsgType tipo, const QMessageLogContext& /*lugar*/, const QString& texto) {
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg) {
        std::cerr << "varo-lote: " << texto.toStdString() << '\n';
    }
}

std::string Pintada(const FrmMapa& mapa, const std::string& extension,
                    const std::function<void(const std::string&)>& avisar) {
    for (const std::string& fuente : FuentesQueFaltan(mapa)) {
        avisar("la fuente «" + fuente + "» no está instalada: se pinta con otra");
    }
    const auto formato = FormatoDe(extension);
    assert(formato && "the job was checked");
    return ImagenDe({mapa.lienzo, mapa.lectorDeAspectos()}, *formato);
}

} // namespace

PintorAparte::~PintorAparte() {
    {
        const std::lock_guard cerrojo{libre_};
        cerrado_ = true;
    }
    hayEncargo_.notify_one();
    if (hilo_.joinable()) {
        hilo_.join();
    }
}

std::string PintorAparte::pintar(const FrmMapa& mapa, const std::string& extension,
                                 const std::function<void(const std::string&)>& avisar) {
    Encargo encargo{[&] { return Pintada(mapa, extension, avisar); }};
    std::future<std::string> imagen = encargo.get_future();
    {
        const std::lock_guard cerrojo{libre_};
        encargos_.push_back(std::move(encargo));
        if (!hilo_.joinable()) {
            hilo_ = std::thread{[this] { atender(); }};
        }
    }
    hayEncargo_.notify_one();
    return imagen.get(); // the job waits: nothing of it moves meanwhile
}

void PintorAparte::atender() {
    std::array<std::string, 3> palabras{"varo-lote", "-platform", "offscreen"};
    std::array<char*, 4> argumentos{palabras[0].data(), palabras[1].data(), palabras[2].data(), nullptr};
    int cuantas = 3;
    qInstallMessageHandler(DecirLoGrave);
    const QGuiApplication aplicacion{cuantas, argumentos.data()};
    std::unique_lock cerrojo{libre_};
    while (true) {
        hayEncargo_.wait(cerrojo, [this] { return cerrado_ || !encargos_.empty(); });
        if (encargos_.empty()) {
            return;
        }
        Encargo encargo = std::move(encargos_.front());
        encargos_.pop_front();
        cerrojo.unlock();
        encargo();
        cerrojo.lock();
    }
}

} // namespace varo
