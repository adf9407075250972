#pragma once

#include <QCoreApplication>
#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

namespace fabula::qt {

// Texts of the libraries are UTF-8, those of Qt UTF-16. They are converted here and nowhere else.

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString PathToQt(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}
inline std::filesystem::path PathFromQt(const QString& text) {
    return std::filesystem::path(text.toStdString());
}

/// The context of all texts of the windows in files of translations.
constexpr const char* kTranslations = "Fabula";

/// A sentence of the libraries in the language of the windows. What libraries say comes through here on its
/// way to a widget or a box; what records hold does not (`ToQt`).
inline QString Translated(std::string_view sentence) {
    return QCoreApplication::translate(kTranslations, std::string(sentence).c_str());
}

/// A text as a tool tip that shows it as it is, with its line ends. Tips guess whether they hold markup.
inline QString TipOf(const QString& text) {
    return "<p style='white-space: pre-wrap'>" + text.toHtmlEscaped() + "</p>";
}

}  // namespace fabula::qt
