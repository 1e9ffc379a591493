// The application object of real windows. It is made when tests run, not when they are listed.
#include "apoyo/CarpetaTemporal.h"
#include "desktop/Aplicacion.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace varo::prueba {

namespace {

class AplicacionDePrueba : public testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        ajustes_.emplace();
        qputenv("XDG_CONFIG_HOME", ajustes_->ruta().c_str()); // the dialogs of Qt keep their own settings
        aplicacion_ = std::make_unique<Aplicacion>(cuantos_, argumentos_.data());
    }
    void TearDown() override {
        aplicacion_.reset();
        ajustes_.reset();
    }

private:
    std::optional<CarpetaTemporal> ajustes_;
    std::string nombre_ = "varo";
    std::array<char*, 2> argumentos_{nombre_.data(), nullptr};
    int cuantos_ = 1;
    std::unique_ptr<Aplicacion> aplicacion_;
};

[[maybe_unused]] const testing::Environment* const entorno =
    testing::AddGlobalTestEnvironment(new AplicacionDePrueba);

} // namespace

} // namespace varo::prueba
