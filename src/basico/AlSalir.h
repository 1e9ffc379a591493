// What has to be undone at the end of a scope, a fault included.
#pragma once

#include <utility>

namespace varo {

/// Runs an act at the end of its scope.
template <class Acto>
class [[nodiscard]] AlSalir {
public:
    explicit AlSalir(Acto acto) : acto_{std::move(acto)} {}
    AlSalir(const AlSalir&) = delete;
    AlSalir& operator=(const AlSalir&) = delete;
    ~AlSalir() { acto_(); }

private:
    Acto acto_;
};

} // namespace varo
