// Tabs at the side of a tabbed dialog, with upright, whole captions.
#pragma once

class QTabWidget;

namespace varo {

/// A long caption takes as many lines as it needs. No tab is hidden or cut.
void PonerFichasAlLado(QTabWidget& fichas);

} // namespace varo
