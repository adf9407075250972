#pragma once

class QString;
class QWidget;

namespace fabula::qt {

/// Makes screen readers take a widget that paints for a picture, by its accessible name and description.
/// Without this it is nothing in particular to them. To be called before the widget gets a name.
void ActAsPicture(QWidget& widget);

/// Makes a text its description, of which screen readers are told when it is another one.
void TellAsDescription(QWidget& widget, const QString& text);

}  // namespace fabula::qt
