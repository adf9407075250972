#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace fabula::qt {

/// The property by which a dialog, or a control in it, names its page of the help: "frmvellocation.html".
/// The nearest one above the control that has the keyboard counts.
inline constexpr const char* kHelpPage = "helpPage";

/// The property by which a control names the place on that page, where its own name does not.
inline constexpr const char* kHelpAnchor = "helpAnchor";

/// What somebody who presses F1 wants to read about.
struct HelpTopic {
    QString page;         ///< "" when nothing at hand has a page
    QStringList anchors;  ///< where on the page, the most telling first
};

/// The topic of a control: the page of it or of what it stands in, and as anchors what the controls on the
/// way there say, or else their names, in lower case.
HelpTopic TopicOf(const QWidget* control);

/// Listens for F1 in every window of the program that does not take the key itself.
class HelpRequest final : public QObject {
  public:
    using Show = std::function<void(const HelpTopic& topic)>;
    explicit HelpRequest(Show show);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    Show show_;
};

}  // namespace fabula::qt
