// The records of a workbook stream: a type, a length and that many bytes, in substreams from BOF to EOF.
#pragma once

#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace varo {

namespace biff {
// Types of records, by their names in the format.
inline constexpr int formula = 0x0006;
inline constexpr int eof = 0x000A;
inline constexpr int externSheet = 0x0017;
inline constexpr int nombre = 0x0018;
inline constexpr int dateMode = 0x0022;
inline constexpr int filePass = 0x002F;
inline constexpr int continuacion = 0x003C;
inline constexpr int codePage = 0x0042;
inline constexpr int boundSheet = 0x0085;
inline constexpr int mulRk = 0x00BD;
inline constexpr int rString = 0x00D6;
inline constexpr int xf = 0x00E0;
inline constexpr int sst = 0x00FC;
inline constexpr int labelSst = 0x00FD;
inline constexpr int supBook = 0x01AE;
inline constexpr int numero = 0x0203;
inline constexpr int label = 0x0204;
inline constexpr int boolErr = 0x0205;
inline constexpr int cadena = 0x0207;
inline constexpr int array = 0x0221;
inline constexpr int table = 0x0236;
inline constexpr int rk = 0x027E;
inline constexpr int formato = 0x041E;
inline constexpr int shrFmla = 0x04BC;
inline constexpr int bof = 0x0809;

// Versions and kinds of substream, as a BOF tells them.
inline constexpr int version5 = 0x0500;
inline constexpr int version8 = 0x0600;
inline constexpr int globales = 0x0005;
inline constexpr int hojaDeCalculo = 0x0010;

/// Sheets, names and references between sheets are known by numbers of 16 bits.
inline constexpr std::size_t cuantosPuedeHaber = 0xFFFF;
} // namespace biff

struct Registro {
    int tipo = 0;
    Bytes datos;
};

/// The records of one substream without its BOF and EOF. Substreams nested in it (embedded charts) are passed
/// over. A stream that ends before the EOF throws ErrorMotor.
class Subflujo {
public:
    /// `comienzo` is the place of its BOF.
    Subflujo(Bytes flujo, std::size_t comienzo);

    [[nodiscard]] int version() const { return version_; }
    [[nodiscard]] int clase() const { return clase_; }
    /// Bytes from the BOF up to here.
    [[nodiscard]] std::size_t leidos() const { return lugar_ - comienzo_; }

    std::optional<Registro> siguiente();
    /// The bytes of the record that `siguiente` gave last and of the CONTINUE records behind it, which are
    /// used up.
    std::vector<Bytes> conContinuaciones(const Registro& registro);

private:
    Registro leer();

    Bytes flujo_;
    std::size_t comienzo_;
    std::size_t lugar_;
    int version_ = 0;
    int clase_ = 0;
};

} // namespace varo
