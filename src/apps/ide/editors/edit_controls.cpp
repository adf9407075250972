#include "ide/editors/edit_controls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "ide/editors/text_edit.h"
#include "qt/strings.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::ide {
namespace {

constexpr int kShortestList = 8;  ///< letters

}  // namespace

QString PlainLabel(QString label) {
    return label.remove('&').remove(':');
}

void AddToForm(QFormLayout& form, const QString& label, QWidget* control, const char* name) {
    control->setObjectName(name);
    if (control->accessibleName().isEmpty()) control->setAccessibleName(PlainLabel(label));
    // The line of a list that can be typed into is a control of its own.
    const auto* list = qobject_cast<QComboBox*>(control);
    if (auto* line = qobject_cast<QLineEdit*>(control)) DropPastedControls(*line);
    if (list != nullptr && list->isEditable()) {
        list->lineEdit()->setAccessibleName(list->accessibleName());
        DropPastedControls(*list->lineEdit());
    }
    auto* caption = new QLabel(label);
    caption->setBuddy(control);
    // Beside a control of one line the label stands at its middle.
    if (control->sizePolicy().verticalPolicy() == QSizePolicy::Fixed)
        caption->setMinimumHeight(control->sizeHint().height());
    form.addRow(caption, control);
}

QPushButton* NewButton(const QString& text, const char* name) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAccessibleName(PlainLabel(text));
    button->setAutoDefault(false);
    return button;
}

QToolButton* AddToolButton(QGridLayout& grid, const QString& name, const QString& text, const QString& tip,
                           int columns) {
    constexpr int kAcross = 3;
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setAccessibleName(text);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const int place = grid.count();
    grid.addWidget(button, place / kAcross, place % kAcross, 1, columns);
    return button;
}

QPlainTextEdit* NewTextEdit(const std::string& text) {
    auto* edit = new TextEdit(qt::ToQt(text));
    edit->setTabChangesFocus(true);
    edit->setMinimumHeight(6 * edit->fontMetrics().lineSpacing());
    return edit;
}

QString TextIn(const QPlainTextEdit& edit) {
    return edit.document()->toRawText().replace(QChar::ParagraphSeparator, '\n');
}

QComboBox* NewDropList(const authoring::DropList& list) {
    auto* box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kShortestList);
    for (const authoring::ListItem& item : list.items)
        box->addItem(qt::ToQt(item.text), item.number);
    box->setCurrentIndex(list.index);
    return box;
}

QComboBox* NewChoice(const authoring::DropList& list) {
    QComboBox* box = NewDropList(list);
    for (int line = 0; line < box->count(); ++line)
        box->setItemText(line, qt::Translated(list.items[static_cast<std::size_t>(line)].text));
    return box;
}

QComboBox* NewLocationList(const authoring::ComboBox& box) {
    auto* list = new QComboBox;
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    // Completed, the number that is typed would become a longer one.
    list->setCompleter(nullptr);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(kShortestList);
    for (const authoring::ListItem& item : box.items)
        list->addItem(QString("%1 - %2").arg(item.number).arg(qt::ToQt(item.text)), item.number);
    ShowLocation(*list, box.text);
    return list;
}

void ShowLocation(QComboBox& list, const std::string& text) {
    const std::optional<int> number = text::SmallNumber(text::TrimBlanks(text));
    const int index = number ? list.findData(*number) : -1;
    list.setCurrentIndex(index);
    if (index < 0) list.setEditText(qt::ToQt(text));
    list.lineEdit()->setCursorPosition(0);
}

std::string LocationTyped(const QComboBox& list) {
    const int index = list.findText(list.currentText(), Qt::MatchFixedString);
    return qt::FromQt(index < 0 ? list.currentText() : list.itemData(index).toString());
}

}  // namespace fabula::ide
