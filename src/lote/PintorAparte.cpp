#include "lote/PintorAparte.h"

#include "map/FrmMapa.h"
#include "pintura/Imagenes.h"

#include <QGuiApplication>

#include <array>
#include <cassert>
#include <iostream>
#include <utility>

namespace varo {

namespace {

/// The toolkit grumbles about desktops and folders that a batch does not need.
void DecirLoGrave(QtMsgType tipo, const QMessageLogContext& /*lugar*/, const QString& texto) {
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg) {
        std::cerr << "varo-lote: " << texto.toStdString() << '\n';
    }
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

void PintorAparte::encargar(const std::function<void()>& acto) {
    Encargo encargo{acto};
    std::future<void> hecho = encargo.get_future();
    {
        const std::lock_guard cerrojo{libre_};
        encargos_.push_back(std::move(encargo));
        if (!hilo_.joinable()) {
            hilo_ = std::thread{[this] { atender(); }};
        }
    }
    hayEncargo_.notify_one();
    hecho.get(); // the job waits: nothing of it moves meanwhile
}

std::string PintorAparte::pintar(const FrmMapa& mapa, const std::string& extension) {
    const auto formato = FormatoDe(extension);
    assert(formato && "the job was checked");
    std::string imagen;
    encargar([&] { imagen = ImagenDe({mapa.lienzo, mapa.lectorDeAspectos()}, *formato); });
    return imagen;
}

std::set<std::string> PintorAparte::fuentesQueFaltan(std::set<std::string> fuentes) {
    encargar([&] { std::erase_if(fuentes, EstaInstalada); });
    return fuentes;
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
