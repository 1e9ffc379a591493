// A frame with a title whose line can be seen on any background.
#pragma once

#include <QGroupBox>

namespace varo {

class GrupoEnmarcado : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* suceso) override;
};

} // namespace varo
