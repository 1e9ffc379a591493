// The colour of a finding.
#pragma once

#include "revision/Hallazgo.h"

#include <QIcon>

namespace varo {

/// A dot that is seen on a light background and on a dark one; nothing for what is only worth a look.
QIcon PuntoDeGravedad(Gravedad gravedad);

} // namespace varo
