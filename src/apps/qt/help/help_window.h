#pragma once

#include <QCoreApplication>
#include <QMainWindow>

#include "qt/help/help_book.h"
#include "qt/help/help_request.h"

class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTextBrowser;
class QTreeWidget;

namespace fabula::qt {

/// The help in a window of its own: contents and search at the left, the page at the right. Its controls
/// are found by their names: "Contents", "Search", "Hits", "Page".
class HelpWindow final : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit HelpWindow(const std::filesystem::path& contents);

    /// Shows the page of a topic at the best of its anchors; a page that does not exist shows the contents
    /// page. Brings the window to the front.
    void Show(const HelpTopic& topic);

    /// The page that is shown: "flags.html".
    QString Page() const;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void MakeToolBar();
    void FillContents();
    void Search(const QString& words);
    void Open(const QString& page);
    void SelectInContents(const QUrl& shown);

    HelpBook book_;
    QLineEdit* search_;
    QStackedWidget* lists_;
    QTreeWidget* contents_;
    QListWidget* hits_;
    QTextBrowser* page_;
};

}  // namespace fabula::qt
