// A crown of four quarter ellipses, one for each pair of neighbouring radii.
#pragma once

namespace varo {

/// The place of the tree and its four radii, all in metres.
struct Copa {
    double x = 0, y = 0;
    double N = 0, E = 0, S = 0, W = 0;

    /// Whether the point lies in the crown, its outline included. A radius of 0 covers nothing on its side.
    [[nodiscard]] bool cubre(double px, double py) const {
        const double dx = px - x;
        const double dy = py - y;
        const double a = dx >= 0 ? E : W;
        const double b = dy >= 0 ? N : S;
        return (dx / a) * (dx / a) + (dy / b) * (dy / b) <= 1;
    }

    friend bool operator==(const Copa&, const Copa&) = default;
};

/// The crown as it is painted: a radius of exactly 0 counts as half a metre. Boxes and areas take the crown
/// as it is.
Copa Pintada(const Copa& copa);

} // namespace varo
