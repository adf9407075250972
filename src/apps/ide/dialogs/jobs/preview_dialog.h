#pragma once

#include <QCoreApplication>

#include "ide/dialogs/column_dialog.h"
#include "ide/dialogs/jobs/print_dialog.h"
#include "listings/pages/print_preview.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace fabula::ide {

class SheetView;

/// The window of a `PrintPreview`. The pages are made once it is on the screen.
class PreviewDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    PreviewDialog(listings::PrintPreview& preview, const PrintServices& services,
                  QWidget* parent = nullptr);

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QPushButton* AddButton(QHBoxLayout& buttons, const QString& text, const char* name,
                           void (PreviewDialog::*click)());
    bool TakeKey(int key);
    void Run();
    void ShowPage();
    void First();
    void Previous();
    void Next();
    void Last();
    void Plus();
    void Minus();
    void Print();
    void Leave() { reject(); }

    listings::PrintPreview& preview_;
    PrintServices services_;
    bool begun_ = false;
    bool made_ = false;
    QPushButton* first_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* last_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* plus_ = nullptr;
    QPushButton* minus_ = nullptr;
    QLabel* place_;
    QScrollArea* scroll_;
    SheetView* sheet_;
};

}  // namespace fabula::ide
