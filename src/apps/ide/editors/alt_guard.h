#pragma once

#include <QObject>

namespace fabula::ide {

/// While it lives, a letter with Alt that chooses nothing, since its control is switched off, types nothing
/// either.
class AltGuard final : public QObject {
  public:
    explicit AltGuard(QObject* parent);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

}  // namespace fabula::ide
