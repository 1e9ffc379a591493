// The short round of the gate, in place of libFuzzer: the target gets the files named, and then copies of
// them with bytes changed, the same ones in every run: TARGET COPIES FILE...  What breaks the target stays in
// a file of this folder.
#include <sanitizer/common_interface_defs.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano);

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What the target has in hand.
struct EnCurso {
    std::string objetivo;
    std::string archivo;
    Bytes bytes;
};

EnCurso& Actual() {
    static EnCurso actual;
    return actual;
}

void Guardar() {
    const auto& [objetivo, archivo, bytes] = Actual();
    const auto guardado = objetivo + "-hallazgo";
    std::ofstream salida{guardado, std::ios::binary};
    std::copy(bytes.begin(), bytes.end(), std::ostreambuf_iterator<char>{salida});
    std::cerr << objetivo << " se rompe con " << archivo << " o una copia suya: está en " << guardado << '\n';
}

void AlAbortar(int) {
    Guardar();
}

Bytes Leer(const std::string& archivo) {
    std::ifstream entrada{archivo, std::ios::binary};
    if (!entrada) {
        throw std::runtime_error{"no se puede leer " + archivo};
    }
    return {std::istreambuf_iterator<char>{entrada}, {}};
}

class Mutador {
public:
    /// The standard fixes the numbers of this engine, but not those of the distributions.
    explicit Mutador(std::uint32_t semilla) : azar_{semilla} {}

    void cambiar(Bytes& bytes) {
        for (auto vez = hasta(5) + 1; vez > 0 && !bytes.empty(); --vez) {
            cambiarUnaVez(bytes);
        }
    }

private:
    std::size_t hasta(std::size_t cuantos) { return azar_() % cuantos; }

    void cambiarUnaVez(Bytes& bytes) {
        const auto lugar = bytes.begin() + static_cast<std::ptrdiff_t>(hasta(bytes.size()));
        const auto resto = static_cast<std::size_t>(bytes.end() - lugar);
        switch (hasta(6)) {
        case 0:
            *lugar = static_cast<std::uint8_t>(azar_());
            break;
        case 1:
            *lugar ^= static_cast<std::uint8_t>(1U << hasta(8));
            break;
        case 2:
            std::fill_n(lugar, std::min(resto, std::size_t{1} << hasta(3)), extremo());
            break;
        case 3:
            std::copy_backward(lugar, lugar + static_cast<std::ptrdiff_t>(resto - hasta(resto)), bytes.end());
            break;
        case 4:
            bytes.erase(lugar, lugar + static_cast<std::ptrdiff_t>(std::min(resto, hasta(16))));
            break;
        default:
            bytes.insert(lugar, hasta(16), extremo());
        }
    }

    std::uint8_t extremo() {
        constexpr std::array<std::uint8_t, 8> extremos{0, 1, 0x7F, 0x80, 0xFF, '(', '\'', '.'};
        return extremos.at(hasta(extremos.size()));
    }

    std::mt19937 azar_;
};

void Probar(Bytes bytes) {
    Actual().bytes = std::move(bytes);
    LLVMFuzzerTestOneInput(Actual().bytes.data(), Actual().bytes.size());
}

} // namespace

int main(int cuantos, char** palabras) {
    const std::vector<std::string> dichas(palabras + 1, palabras + cuantos);
    Actual().objetivo = palabras[0];
    __sanitizer_set_death_callback(Guardar);
    std::signal(SIGABRT, AlAbortar);
    const auto copias = std::stoul(dichas.at(0)) / std::max<std::size_t>(dichas.size() - 1, 1);
    for (std::size_t i = 1; i < dichas.size(); ++i) {
        Actual().archivo = dichas[i];
        const auto entera = Leer(dichas[i]);
        Probar(entera);
        Mutador mutador{static_cast<std::uint32_t>(i)};
        for (std::size_t copia = 0; copia < copias; ++copia) {
            auto mutada = entera;
            mutador.cambiar(mutada);
            Probar(std::move(mutada));
        }
    }
    std::cout << dichas.size() - 1 << " archivos, con " << copias << " copias de cada uno\n";
}
