#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <cstddef>

#include "listings/pages/paper.h"

namespace fabula::ide {

/// A sheet of a listing as it would be printed, in a size that is chosen.
class SheetView final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit SheetView(QWidget* parent = nullptr);

    /// Shows a sheet, which outlives the view or the next call, in `percent` of the paper's own size.
    void Show(const listings::Sheet& sheet, std::size_t columns, int percent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const listings::Sheet* sheet_ = nullptr;
    std::size_t columns_ = 80;
};

}  // namespace fabula::ide
