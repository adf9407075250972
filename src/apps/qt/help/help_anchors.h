#pragma once

#include <QString>

namespace fabula::qt {

/// The anchor of a control on a page of the help: the pages name what they tell of in words of their own,
/// which stay while controls are renamed ("cboword1" for `verb` on "frmvelcondact.html"). `control` is the
/// control's name, with or without a number behind it ("colour3"). A control that the table does not hold
/// has its name in small letters for an anchor.
QString AnchorOf(const QString& page, const QString& control);

}  // namespace fabula::qt
