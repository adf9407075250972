#pragma once

#include <QCoreApplication>
#include <QScrollArea>
#include <filesystem>
#include <functional>
#include <vector>

#include "ide/window/examples.h"

class QBoxLayout;
class QVBoxLayout;

namespace fabula::ide {

/// What the window shows while no adventure is open: how to get one. Its buttons are found by their names:
/// "new", "open", "start", "Example1" and on, "Recent1" and on.
class EmptyPage final : public QScrollArea {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    struct Actions {
        std::function<void()> create;
        std::function<void()> open;
        std::function<void()> import;
        std::function<void()> tutorial;
        std::function<void(const Example& example)> openExample;
        std::function<void(const std::filesystem::path& file)> openRecent;
    };

    explicit EmptyPage(Actions actions, QWidget* parent = nullptr);

    void ShowExamples(const std::vector<Example>& examples);
    void ShowRecent(const std::vector<std::filesystem::path>& files);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// A heading with a list below, hidden until it has lines.
    struct List {
        QWidget* whole;
        QVBoxLayout* lines;
    };
    static List MakeList(const QString& title);
    static void Empty(const List& list);

    Actions actions_;
    QBoxLayout* columns_;
    List recent_;
    List examples_;
};

}  // namespace fabula::ide
