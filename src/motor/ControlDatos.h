// The data control of a window: what it is connected to and the rows on show.
#pragma once

#include "motor/BaseDatos.h"
#include "motor/Recordset.h"

#include <optional>
#include <string>

namespace varo {

/// Settings take effect at Refresh.
class ControlDatos {
public:
    std::string Connect = "Excel 8.0;";
    std::string RecordSource;

    [[nodiscard]] const std::string& DatabaseName() const { return archivo_; }
    /// Names the file that the next Refresh opens, anew even when it is the one already open. The empty text
    /// detaches at once.
    void DatabaseName(std::string archivo);

    /// Opens the connection when a file waits to be opened; otherwise the rows of RecordSource. A fault
    /// (ErrorMotor, or 91 when no connection is open) leaves open what is open.
    void Refresh(const Avance& avance = {});

    /// 91 while nothing is open.
    [[nodiscard]] const BaseDatos& Database() const;
    [[nodiscard]] varo::Recordset& Recordset();

private:
    std::string archivo_;
    bool porAbrir_ = false;
    std::optional<BaseDatos> base_;
    std::optional<varo::Recordset> filas_;
};

} // namespace varo
