#include "qt/report_window.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSaveFile>
#include <QTextDocument>
#include <QVBoxLayout>

#include "qt/fitting_size.h"
#include "qt/qt_dialogs.h"
#include "qt/strings.h"

namespace fabula::qt {
namespace {

constexpr QSize kSize(640, 440);

void PrintOnPaper(const QTextDocument& text, QWidget* window) {
    QPrinter printer;
    QPrintDialog dialog(&printer, window);
    if (dialog.exec() == QDialog::Accepted) text.print(&printer);
}

QPushButton* AddAction(QDialogButtonBox& buttons, const QString& caption, const char* name) {
    auto* button = buttons.addButton(caption, QDialogButtonBox::ActionRole);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

ReportWindow::ReportWindow(std::string_view text, std::string_view title, Answer answer, QWidget* parent)
    : QDialog(parent),
      print([this](const QTextDocument& document) { PrintOnPaper(document, this); }),
      pane_(new QPlainTextEdit(Translated(text), this)) {
    setObjectName("report");
    setWindowTitle(Translated(title));
    pane_->setReadOnly(true);
    pane_->setAccessibleName(Translated(title));
    pane_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* buttons = new QDialogButtonBox(
        answer == Answer::Close ? QDialogButtonBox::Close : QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
        this);
    connect(AddAction(*buttons, tr("&Print..."), "print"), &QPushButton::clicked, this,
            [this] { print(*pane_->document()); });
    connect(AddAction(*buttons, tr("&Save..."), "save"), &QPushButton::clicked, this, [this] { Save(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pane_);
    layout->addWidget(buttons);
    resize(FittingSize(*this, kSize));
}

void ReportWindow::Save() {
    QtDialogs dialogs(this);
    const auto path = dialogs.ChooseFile({.title = FromQt(windowTitle()),
                                          .filter = "Text|*.txt|All files|*.*",
                                          .extension = "txt",
                                          .forWriting = true,
                                          .start = {}});
    if (!path) return;
    QSaveFile file(PathToQt(*path));
    const QByteArray bytes = (pane_->toPlainText() + "\n").toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) return;
    dialogs.Tell("Could not write " + path->string() + ": " + FromQt(file.errorString()) + ".", "Error");
}

}  // namespace fabula::qt
