#pragma once

#include <QCoreApplication>
#include <QScrollArea>
#include <filesystem>
#include <functional>
#include <vector>

class QVBoxLayout;

namespace fabula::player {

/// What the window shows while no adventure is loaded: how to load one, and the latest ones.
class WelcomePage final : public QScrollArea {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    using Open = std::function<void(const std::filesystem::path& file)>;

    /// `choose` asks for a file, `open` loads a recent one.
    WelcomePage(std::function<void()> choose, Open open, QWidget* parent = nullptr);

    void ShowRecent(const std::vector<std::filesystem::path>& files);

  private:
    Open open_;
    QWidget* recent_ = nullptr;
    QVBoxLayout* column_;
};

}  // namespace fabula::player
