// The painter of the maps of all jobs, on a thread of its own.
#pragma once

#include "lote/recorrido/PintorDeMapas.h"

#include <condition_variable>
#include <deque>
#include <functional>
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

    std::string pintar(const FrmMapa& mapa, const std::string& extension) override;
    std::set<std::string> fuentesQueFaltan(std::set<std::string> fuentes) override;

private:
    using Encargo = std::packaged_task<void()>;

    /// Has it done on the thread of the toolkit, and waits for it.
    void encargar(const std::function<void()>& acto);
    void atender();

    std::mutex libre_;
    std::condition_variable hayEncargo_;
    std::deque<Encargo> encargos_;
    bool cerrado_ = false;
    std::thread hilo_; ///< not started before the first picture
};

} // namespace varo
