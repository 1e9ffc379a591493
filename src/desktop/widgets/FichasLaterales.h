// Tabs at the side of a tabbed dialog, with their captions upright and whole.
#pragma once

class QTabWidget;

namespace varo {

/// Long captions take as many lines as they need. No tab is ever hidden or cut.
void PonerFichasAlLado(QTabWidget& fichas);

} // namespace varo
