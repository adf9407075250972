#include "ide/dialogs/jobs/file_row.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "qt/strings.h"

namespace fabula::ide {

void FileRow::SetEnabled(bool enabled) const {
    field->setEnabled(enabled);
    button->setEnabled(enabled);
}

void FileRow::Show(const QString& file) const {
    if (field->text() != file) field->setText(file);
}

FileRow AddFileRow(QFormLayout& form, const char* name, const QString& label, const char* buttonName) {
    FileRow line{new QLineEdit, new QPushButton(qt::Translated("Choose..."))};
    line.field->setObjectName(name);
    line.field->setAccessibleName(QString(label).remove('&').remove(':'));
    line.button->setObjectName(buttonName);
    line.button->setAccessibleName(
        qt::Translated("Choose the %1").arg(line.field->accessibleName().toLower()));
    line.button->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(line.field, 1);
    row->addWidget(line.button);
    auto* caption = new QLabel(label);
    caption->setBuddy(line.field);
    form.addRow(caption, row);
    return line;
}

}  // namespace fabula::ide
