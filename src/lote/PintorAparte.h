// The painter of the maps of all jobs, on a thread of its own.
#pragma once

#include "lote/recorrido/PintorDeMapas.h"

#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

namespace varo {

/// The toolkit starts with the first picture, without a display, and lives on this one thread: jobs that run
/// side by side wait for each other here, and batches without pictures never load a font.
class PintorAparte : public PintorDeMapas {
public:
    PintorAparte() = default;
    ~PintorAparte() override;

    std::string pintar(const FrmMapa& mapa, const std::string& extension,
                       const std::function<void(const std::string&)>& avisar) override;

private:
    using Encargo = std::packaged_task<std::string()>;

    void atender();

    std::mutex libre_;
    std::condition_variable hayEncargo_;
    std::deque<Encargo> encargos_;
    bool cerrado_ = false;
    std::thread hilo_; ///< not started before the first picture
};

} // namespace varo
