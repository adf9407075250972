#pragma once

#include <QLabel>

#include "authoring/settings/settings_screen.h"
#include "store/adventure.h"

namespace fabula::ide {

/// A line of text as a game shows it with the settings as they are chosen: in its font and size, or with
/// its character set, and in its colours.
class FontSampleLabel final : public QLabel {
  public:
    explicit FontSampleLabel(store::Adventure& adventure, QWidget* parent = nullptr);

    void ShowSample(const authoring::FontSample& sample);

  private:
    QPixmap Drawn(int charSet, const QColor& ink) const;

    store::Adventure& adventure_;
};

}  // namespace fabula::ide
