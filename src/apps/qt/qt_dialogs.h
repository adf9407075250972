#pragma once

#include "qt/dialogs.h"

class QWidget;

namespace fabula::qt {

/// Boxes on the screen, in front of `parent`.
class QtDialogs final : public Dialogs {
  public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    void SetParent(QWidget* parent) { parent_ = parent; }

    void Tell(std::string_view text, std::string_view title) override;
    bool Confirm(std::string_view text, std::string_view title) override;
    std::optional<std::filesystem::path> ChooseFile(const FileQuestion& question) override;

  private:
    QWidget* parent_;
};

}  // namespace fabula::qt
