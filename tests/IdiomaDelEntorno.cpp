// Every test program runs under the locale of its environment, as C and C++ see it. A decimal comma that
// leaks into a result shows, and a locale that is not installed fails instead of passing for tested.
#include <gtest/gtest.h>

#include <locale>

namespace {

class IdiomaDelEntorno : public ::testing::Environment {
    void SetUp() override { std::locale::global(std::locale{""}); }
};

const auto* const registrado = ::testing::AddGlobalTestEnvironment(new IdiomaDelEntorno);

} // namespace
