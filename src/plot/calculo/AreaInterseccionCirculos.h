// The area that two circles share.
#pragma once

namespace varo {

/// In squared units of the coordinates. Circles that touch count as crossing, from outside and from inside.
/// Faults: 11 on equal circles in one place and on a radius of 0 at the very distance of the other one; 1004
/// when rounding takes a cosine past 1.
double AreaInterseccionCirculos(double x1, double y1, double x2, double y2, double r1, double r2);

} // namespace varo
