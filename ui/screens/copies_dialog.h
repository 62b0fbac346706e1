// The earlier copies in a list, of which one is chosen to be put back.
#pragma once

#include <QDialog>
#include <cstddef>
#include <optional>
#include <vector>

#include "core/earlier_copies.h"

class QTableWidget;

namespace kel {

class copies_dialog : public QDialog {
    Q_OBJECT

  public:
    /// Shows them in their order.
    explicit copies_dialog(const std::vector<earlier_copy>& copies);

    std::optional<std::size_t> chosen() const;

  private:
    void fill(const std::vector<earlier_copy>& copies);

    QTableWidget* list_;
};

}  // namespace kel
