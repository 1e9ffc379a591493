#include "lote/recorrido/ServiciosDeTrabajo.h"

#include "sistema/ArchivoEntero.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace varo {

namespace {

/// The window's hold on a file that the job puts in its place later.
class ArchivoRetenido : public ArchivoNuevo {
public:
    explicit ArchivoRetenido(std::shared_ptr<ArchivoNuevo> archivo) : archivo_{std::move(archivo)} {}
    void escribir(const std::string& bytes) override { archivo_->escribir(bytes); }
    void publicar() override {}

private:
    std::shared_ptr<ArchivoNuevo> archivo_;
};

} // namespace

int ServiciosDeTrabajo::mensaje(const std::string& texto, const std::string& titulo, int opciones) {
    if (texto != "El intervalo no es correcto") {
        return ServiciosPreparados::mensaje(texto, titulo, opciones);
    }
    if (std::find(avisos_.begin(), avisos_.end(), texto) == avisos_.end()) {
        avisos_.push_back(texto);
    }
    return mensaje::respondeAceptar;
}

std::vector<std::string> ServiciosDeTrabajo::recogerAvisos() {
    return std::exchange(avisos_, {});
}

std::unique_ptr<ArchivoNuevo> ServiciosDeTrabajo::crearArchivo(const std::string& ruta) {
    archivo_ = std::make_shared<ArchivoEntero>(ruta);
    return std::make_unique<ArchivoRetenido>(archivo_);
}

void ServiciosDeTrabajo::publicarArchivo() {
    assert(archivo_ && "only what was written takes its place");
    archivo_->publicar();
    archivo_.reset();
}

} // namespace varo
