#pragma once

#include <QCoreApplication>
#include <QTabWidget>
#include <functional>
#include <string>

#include "authoring/drawing/picture_editor.h"

class QComboBox;
class QGridLayout;
class QSpinBox;
class QToolButton;
class QVBoxLayout;

namespace fabula::ide {

/// Buttons, swatches and lists for what can be typed at the command line of the picture editor, on pages.
/// Each shows its word in its tip, so that the words are learnt by clicking.
class PicturePalette final : public QTabWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `editor` outlives it.
    explicit PicturePalette(const authoring::PictureEditor& editor, QWidget* parent = nullptr);

    /// A command was put together: it is to be done as if it had been typed.
    std::function<void(const std::string& line)> commanded = [](const std::string&) {};

    /// Shows the attributes as they are now.
    void Show();
    /// A page behind those of the palette. It scrolls up and down, never sideways.
    void AddPage(QWidget* contents, const QString& title);

  private:
    void BeginPage(const QString& title);
    void EndPage();
    QGridLayout* AddGroup(const QString& title);
    QToolButton* AddButton(QGridLayout& grid, const char* word, const QString& text, const QString& tip,
                           std::function<std::string()> line, int columns = 1);
    void AddDrawing();
    void AddColours();
    void AddColourRow(QGridLayout& grid, const char* word, const QString& label, int row);
    void AddSwitches(QGridLayout& grid);
    void AddPatterns();
    void AddText();
    void AddSubroutines();
    void AddSteps();
    QComboBox* AddList(QGridLayout& grid, const char* name, const QString& caption, int row, int column);
    QSpinBox* AddNumber(QGridLayout& grid, const char* name, const QString& caption, int row, int column,
                        int lowest, int highest);
    void FillCharacters();
    void ShowShadeByte();

    const authoring::PictureEditor& editor_;
    QVBoxLayout* groups_ = nullptr;  ///< of the page that is being made
    QString title_;                  ///< its title
    QComboBox* firstShade_ = nullptr;
    QComboBox* secondShade_ = nullptr;
    QSpinBox* shadeByte_ = nullptr;
    QToolButton* columnShade_ = nullptr;
    QComboBox* set_ = nullptr;
    QComboBox* character_ = nullptr;
    QComboBox* subroutine_ = nullptr;
    QSpinBox* scale_ = nullptr;
    std::vector<std::pair<QToolButton*, std::function<bool()>>> marks_;  ///< buttons that are on or off
};

}  // namespace fabula::ide
