// The signals that end a run from outside.
#pragma once

#include <atomic>
#include <csignal>
#include <thread>

namespace varo {

/// While it lives, SIGINT, SIGTERM and SIGHUP end the process at once whatever it is computing, as they
/// would anyway, but no file that is half written is left behind. One that the process was told to ignore
/// stays ignored. A reader that goes away (SIGPIPE) and a file that grows too large (SIGXFSZ) end nothing:
/// the write fails.
///
/// Made first of all in `main`: the threads of the process, which come later, leave the signals to it.
class VigiaDeSenales {
public:
    VigiaDeSenales();
    VigiaDeSenales(const VigiaDeSenales&) = delete;
    VigiaDeSenales& operator=(const VigiaDeSenales&) = delete;
    ~VigiaDeSenales();

private:
    void esperar() const;

    sigset_t vigiadas_{};
    sigset_t antes_{};
    std::atomic<bool> relevado_ = false;
    std::thread hilo_;
};

} // namespace varo
