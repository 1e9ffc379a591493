// Lets the data engine open the workbooks that this room reads.
#pragma once

namespace varo {

/// Call it before there are threads. Where the program was built without this room it does nothing.
void RegistrarLibros();

} // namespace varo
