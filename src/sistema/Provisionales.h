// The files that are being written and have not taken their place yet.
#pragma once

#include <filesystem>
#include <functional>

namespace varo {

/// A new empty file that its process keeps locked for as long as it is open.
struct Provisional {
    std::filesystem::path ruta;
    int descriptor = -1; ///< -1 when there is none; errno tells why
};

/// Makes such a file in the folder, with no more than these mode bits.
Provisional CrearProvisional(const std::filesystem::path& carpeta, unsigned modo);

/// Runs the act by which a file takes its place; the process is not ended by `AcabarSinProvisionales`
/// meanwhile. When it hands back true the file is no provisional one any more.
bool Colocar(const std::filesystem::path& provisional, const std::function<bool()>& acto);

/// Deletes a file that takes no place.
void Descartar(const std::filesystem::path& provisional);

/// Deletes the provisional files of processes that ended without their last words. One whose lock is held
/// is being written and stays.
void BarrerProvisionales(const std::filesystem::path& carpeta);

/// Deletes all provisional files of this process and ends it by `fin`. No file takes its place any more.
[[noreturn]] void AcabarSinProvisionales(const std::function<void()>& fin);

} // namespace varo
