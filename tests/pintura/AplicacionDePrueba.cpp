// The application object that fonts and pictures need. It is made when tests run, not when they are listed.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include <array>
#include <memory>
#include <string>

namespace varo::prueba {

namespace {

class AplicacionDePintura : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        aplicacion_ = std::make_unique<QGuiApplication>(cuantos_, argumentos_.data());
    }
    void TearDown() override { aplicacion_.reset(); }

private:
    std::string nombre_ = "prueba_pintura";
    std::array<char*, 2> argumentos_{nombre_.data(), nullptr};
    int cuantos_ = 1;
    std::unique_ptr<QGuiApplication> aplicacion_;
};

[[maybe_unused]] const testing::Environment* const entorno =
    testing::AddGlobalTestEnvironment(new AplicacionDePintura);

} // namespace

} // namespace varo::prueba
