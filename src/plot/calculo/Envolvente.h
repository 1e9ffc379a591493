// The convex hull of the trees, walked by direction angles (gift wrapping, after Jarvis 1973).
#pragma once

#include <span>
#include <vector>

namespace varo {

/// The closed walk. Positions are those of the trees in the input, from 0; the last one repeats the first.
struct Envolvente {
    std::vector<int> arboles; ///< one tree per vertex, closing vertex included
    /// Direction of the edge from vertex k to k + 1, degrees clockwise from +y.
    std::vector<double> AnguloLado;
    std::vector<double> AnguloInterior; ///< at vertex k, degrees; one less than the vertices
};

/// Walks the hull of trees sorted by ascending x; the first one is the first vertex. No tree at all throws 9;
/// a walk of more than 32767 vertices throws 6.
Envolvente EnvolverArboles(std::span<const double> x, std::span<const double> y);

/// Interior angles from the directions of the edges of a closed polygon, one edge at least.
std::vector<double> AngulosInteriores(std::span<const double> AnguloLado);

} // namespace varo
