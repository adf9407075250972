#include "qt/qt_settings.h"

#include <QSettings>

#include "qt/strings.h"

namespace fabula::qt {
namespace {

QString KeyOf(std::string_view section, std::string_view key) {
    return ToQt(section) + "/" + ToQt(key);
}

}  // namespace

std::string QtSettings::Get(std::string_view section, std::string_view key,
                            std::string_view fallback) const {
    return FromQt(store_.value(KeyOf(section, key), ToQt(fallback)).toString());
}

void QtSettings::Set(std::string_view section, std::string_view key, std::string_view value) {
    store_.setValue(KeyOf(section, key), ToQt(value));
}

void QtSettings::Clear(std::string_view section) {
    store_.remove(ToQt(section));
}

std::string WhyNotKept(const QSettings& store) {
    if (store.isWritable()) return "";
    return "Settings can't be kept: " + FromQt(store.fileName()) + " can't be written.";
}

}  // namespace fabula::qt
