#pragma once

#include <QScrollArea>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

class QBoxLayout;
class QLabel;
class QVBoxLayout;

namespace fabula::ide {

/// An example game of the installation.
struct Example {
    std::filesystem::path file;
    std::string name;   ///< "The Lighthouse"
    std::string about;  ///< one sentence
};

/// What the window shows while no adventure is open: how to get one. Its buttons are found by their names:
/// "cmdNew", "cmdOpen", "cmdImport", "Example1" and on, "Recent1" and on.
class EmptyPage final : public QScrollArea {
  public:
    struct Actions {
        std::function<void()> create;
        std::function<void()> open;
        std::function<void()> import;
        std::function<void(const Example& example)> openExample;
        std::function<void(const std::filesystem::path& file)> openRecent;
    };

    explicit EmptyPage(Actions actions, QWidget* parent = nullptr);

    void ShowExamples(const std::vector<Example>& examples);
    void ShowRecent(const std::vector<std::filesystem::path>& files);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QVBoxLayout* AddList(QLabel*& title, const QString& text);

    Actions actions_;
    QBoxLayout* columns_;
    QVBoxLayout* lists_;
    QLabel* recentTitle_ = nullptr;
    QVBoxLayout* recent_;
    QLabel* examplesTitle_ = nullptr;
    QVBoxLayout* examples_;
};

}  // namespace fabula::ide
