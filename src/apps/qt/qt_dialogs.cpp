#include "qt/qt_dialogs.h"

#include <QFileDialog>
#include <QMessageBox>

#include "qt/strings.h"

namespace fabula::qt {

std::string QtFilter(const std::string& filter) {
    const auto bar = filter.find('|');
    const std::string pattern = bar == std::string::npos ? "*" : filter.substr(bar + 1);
    return filter.substr(0, bar) + " (" + pattern + ")";
}

void QtDialogs::Tell(std::string_view text, std::string_view title) {
    QMessageBox box(QMessageBox::Information, ToQt(title), ToQt(text), QMessageBox::Ok, parent_);
    if (title == "Error") box.setIcon(QMessageBox::Warning);
    // Games speak in these boxes too: what they say is no markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool QtDialogs::Confirm(std::string_view text, std::string_view title) {
    QMessageBox box(QMessageBox::Question, ToQt(title), ToQt(text), QMessageBox::Yes | QMessageBox::No,
                    parent_);
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Yes;
}

std::optional<std::filesystem::path> QtDialogs::ChooseFile(const FileQuestion& question) {
    QFileDialog dialog(parent_, ToQt(question.title));
    dialog.setNameFilter(ToQt(QtFilter(question.filter)));
    dialog.setDefaultSuffix(ToQt(question.extension));
    dialog.setAcceptMode(question.forWriting ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.forWriting ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    std::error_code ignored;
    if (std::filesystem::is_directory(question.start, ignored)) {
        dialog.setDirectory(PathToQt(question.start));
    } else {
        dialog.setDirectory(PathToQt(question.start.parent_path()));
        dialog.selectFile(PathToQt(question.start.filename()));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return PathFromQt(dialog.selectedFiles().first());
}

}  // namespace fabula::qt
