#pragma once

#include <QCoreApplication>
#include <QListView>
#include <functional>
#include <string>

#include "authoring/drawing/picture_editor.h"

namespace fabula::ide {

class CommandListModel;

/// The commands of a picture, one to a line with what it does in words, behind a line for the empty
/// picture. The line that was drawn last is the current one.
class CommandList final : public QListView {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `editor` outlives it.
    explicit CommandList(const authoring::PictureEditor& editor, QWidget* parent = nullptr);

    /// The author has gone to another line: so many commands are to be drawn.
    std::function<void(std::size_t commands)> chosen = [](std::size_t) {};

    /// The author has typed another command in a line, by F2 or a double click.
    std::function<void(std::size_t command, const std::string& text)> changed = [](std::size_t,
                                                                                   const std::string&) {};

    /// Shows the commands as they are now.
    void Show();

  private:
    const authoring::PictureEditor& editor_;
    CommandListModel* model_;
    bool showing_ = false;
};

}  // namespace fabula::ide
