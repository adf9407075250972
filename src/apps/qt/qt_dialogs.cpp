#include "qt/qt_dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

#include "qt/report_window.h"
#include "qt/strings.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::qt {
namespace {

/// Games and files speak in these boxes too: what they say is no markup.
QMessageBox::StandardButton Ask(QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
                                std::string_view text, std::string_view title, QWidget* parent,
                                QMessageBox::StandardButton proposed = QMessageBox::NoButton) {
    QMessageBox box(icon, Translated(title), Translated(text), buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(proposed);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

/// A person's own games, where nobody has said anything else.
QString OwnFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

}  // namespace

std::string QtFilter(const std::string& filter) {
    const auto parts = text::Split(filter, "|");
    std::string shown;
    for (std::size_t part = 0; part < parts.size(); part += 2) {
        std::string pattern(part + 1 < parts.size() ? parts[part + 1] : "*");
        if (pattern == "*.*") pattern = "*";
        for (char& letter : pattern) {
            if (letter == ';') letter = ' ';
        }
        // Many names tell their pattern already.
        std::string name = FromQt(Translated(parts[part]));
        if (const auto told = name.rfind("(*"); name.ends_with(')') && told != name.npos) name.resize(told);
        if (part > 0) shown += ";;";
        shown.append(text::TrimBlanks(name)).append(" (").append(pattern).append(")");
    }
    return shown;
}

QWidget* QtDialogs::Parent() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return parent_ ? parent_ : QApplication::activeWindow();
}

void QtDialogs::Tell(std::string_view text, std::string_view title) {
    const auto icon = title == "Error" ? QMessageBox::Warning : QMessageBox::Information;
    Ask(icon, QMessageBox::Ok, text, title, Parent());
}

/// A warning is about what can't be had back: a key that is pressed too soon says no to it.
bool QtDialogs::Confirm(std::string_view text, std::string_view title) {
    const auto proposed = title == "Warning" ? QMessageBox::No : QMessageBox::Yes;
    return Ask(QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, text, title, Parent(),
               proposed) == QMessageBox::Yes;
}

bool QtDialogs::Proceed(std::string_view text, std::string_view title) {
    return Ask(QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel, text, title, Parent()) ==
           QMessageBox::Ok;
}

std::optional<std::string> QtDialogs::AskText(const platform::TextQuestion& question) {
    QInputDialog box(Parent());
    box.setWindowTitle(Translated(question.title));
    box.setLabelText(Translated(question.prompt));
    box.setTextValue(ToQt(question.proposal));
    for (auto* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return FromQt(box.textValue());
}

void QtDialogs::Report(std::string_view text, std::string_view title) {
    ReportWindow(text, title, ReportWindow::Answer::Close, Parent()).exec();
}

bool QtDialogs::ProceedFromReport(std::string_view text, std::string_view title) {
    return ReportWindow(text, title, ReportWindow::Answer::OkOrCancel, Parent()).exec() ==
           QDialog::Accepted;
}

platform::Leaving QtDialogs::AskLeaving(std::string_view text, std::string_view title) {
    QMessageBox box(QMessageBox::Question, Translated(title), Translated(text), QMessageBox::NoButton,
                    Parent());
    box.setTextFormat(Qt::PlainText);
    const auto* store = box.addButton(Translated("&Store"), QMessageBox::AcceptRole);
    const auto* discard = box.addButton(Translated("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* keep = box.addButton(Translated("&Keep Editing"), QMessageBox::RejectRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    if (box.clickedButton() == store) return platform::Leaving::Store;
    if (box.clickedButton() == discard) return platform::Leaving::Discard;
    return platform::Leaving::KeepEditing;
}

std::optional<std::filesystem::path> QtDialogs::ChooseFile(const platform::FileQuestion& question) {
    QFileDialog dialog(Parent(), Translated(question.title));
    dialog.setNameFilters(ToQt(QtFilter(question.filter)).split(";;"));
    dialog.setDefaultSuffix(ToQt(question.extension));
    dialog.setAcceptMode(question.forWriting ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.forWriting ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.asksToOverwrite);
    std::error_code ignored;
    if (question.start.empty()) {
        dialog.setDirectory(OwnFolder());
    } else if (std::filesystem::is_directory(question.start, ignored)) {
        dialog.setDirectory(PathToQt(question.start));
    } else {
        dialog.setDirectory(PathToQt(question.start.parent_path()));
        dialog.selectFile(PathToQt(question.start.filename()));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return PathFromQt(dialog.selectedFiles().first());
}

}  // namespace fabula::qt
