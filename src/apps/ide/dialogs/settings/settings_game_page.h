#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>
#include <vector>

#include "authoring/settings/settings_screen.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;

namespace fabula::ide {

class FontSampleLabel;

/// The settings' page of the game as a whole, in two columns where the window is wide enough.
class SettingsGamePage final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// Does something that may fail, and tells of it when it does.
    using Guard = std::function<void(const std::function<void()>& work)>;

    SettingsGamePage(authoring::SettingsScreen& screen, Guard guard);

    /// Writes the controls into the screen.
    void Read();

    /// Room for two columns.
    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    using Colour = int authoring::SettingsScreen::*;
    /// A picture's line and its two buttons, with what they do.
    struct PictureRow {
        QString label;
        const char* line;
        QString chooseText;
        const char* choose;
        QString clearText;
        const char* clear;
        std::string authoring::SettingsScreen::*path;
        void (authoring::SettingsScreen::*get)();
        void (authoring::SettingsScreen::*forget)();
    };

    int WidthOfColumn() const;
    int WidthBesideLabels() const;
    QFormLayout* NewForm(QVBoxLayout& column, const QString& heading);
    void AddGame(QFormLayout& form);
    void AddLook(QFormLayout& form);
    void AddColour(QFormLayout& form, const QString& label, const char* name, Colour colour, bool ink);
    void AddSwitches(QFormLayout& form);
    void AddPicture(QFormLayout& form, const PictureRow& row);
    void AddAbout(QVBoxLayout& column);
    void ShowSample();
    void ShowCount();

    authoring::SettingsScreen& screen_;
    Guard guard_;
    QBoxLayout* columns_;
    QWidget* left_;
    QWidget* right_;
    std::vector<QFormLayout*> forms_;  ///< whose labels stand beside the controls where there is room
    int besideLabels_ = 0;             ///< the width of a column that leaves them that room

    QLineEdit* name_;
    QLineEdit* author_;
    QLineEdit* saveName_;
    QLineEdit* version_;
    QLineEdit* ifid_ = nullptr;  ///< where the adventure has one
    QComboBox* type_;
    QComboBox* start_;
    QLineEdit* objects_;
    QLineEdit* weight_;
    QCheckBox* charSets_;
    QComboBox* font_;
    QComboBox* fontSize_;
    QComboBox* printWidth_;
    FontSampleLabel* sample_;
    QCheckBox* graphics_;
    QCheckBox* graphicsInDb_;
    QPlainTextEdit* description_;
    QLabel* count_;
    QPlainTextEdit* contact_;
};

}  // namespace fabula::ide
