#pragma once

#include <QCoreApplication>
#include <QWidget>

#include "authoring/fields/record_comment.h"

class QPlainTextEdit;

namespace fabula::ide {

/// The field of the author's comment, the same in each dialog of a record. What is typed is in the comment
/// at once.
class CommentEdit final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `comment` outlives it. Made last, with the window whose keys it must leave alone: the letter of its
    /// label is one that no other control there has.
    CommentEdit(authoring::RecordComment& comment, const QWidget& window);

    /// Shows the comment, where the screen has gone to another record.
    void Show();

  private:
    authoring::RecordComment& comment_;
    QPlainTextEdit* edit_;
};

}  // namespace fabula::ide
