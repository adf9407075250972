#pragma once

#include <QString>

class QFormLayout;
class QLineEdit;
class QPushButton;

namespace fabula::ide {

/// A line of a form for the name of a file, with a button that asks for it.
struct FileRow {
    QLineEdit* field = nullptr;
    QPushButton* button = nullptr;

    void SetEnabled(bool enabled) const;
    /// Shows a name, and leaves the cursor alone when it stands there already.
    void Show(const QString& file) const;
};

/// Adds the line to the form. Widgets are found by `name` and `buttonName`.
FileRow AddFileRow(QFormLayout& form, const char* name, const QString& label, const char* buttonName);

}  // namespace fabula::ide
