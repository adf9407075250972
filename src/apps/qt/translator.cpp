#include "qt/translator.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <algorithm>
#include <cstring>

#include "qt/sentences.h"
#include "qt/strings.h"

namespace fabula::qt {
namespace {

constexpr const char* kFolder = "translations";

}  // namespace

std::optional<QStringList> ValuesIn(const QString& text, const QStringList& pieces) {
    if (!text.startsWith(pieces.first())) return std::nullopt;
    QStringList values;
    qsizetype at = pieces.first().size();
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        const bool last = i + 1 == pieces.size();
        if (last && !text.endsWith(pieces[i])) return std::nullopt;
        const qsizetype end = last ? text.size() - pieces[i].size() : text.indexOf(pieces[i], at + 1);
        if (end <= at) return std::nullopt;
        values << text.mid(at, end - at);
        at = end + pieces[i].size();
    }
    return values;
}

QString Filled(const QString& pattern, const QStringList& values) {
    QString filled;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const int value = pattern[i] == '%' && i + 1 < pattern.size() ? pattern[i + 1].digitValue() : -1;
        if (value < 1 || value > values.size()) {
            filled += pattern[i];
            continue;
        }
        filled += values[value - 1];
        ++i;
    }
    return filled;
}

Translator::Translator(std::span<const char* const> sentences) {
    static const QRegularExpression place("%\\d");
    for (const char* sentence : sentences) {
        const QStringList pieces = QString::fromUtf8(sentence).split(place);
        if (pieces.size() > 1) patterns_.push_back({sentence, pieces, pieces.join("").size()});
    }
    std::ranges::stable_sort(patterns_, std::greater(), &Pattern::letters);
}

QString Translator::translate(const char* context, const char* source, const char* disambiguation,
                              int count) const {
    const QString found = QTranslator::translate(context, source, disambiguation, count);
    if (!found.isNull() || source == nullptr || std::strcmp(context, kTranslations) != 0) return found;
    return Lines(QString::fromUtf8(source));
}

QString Translator::Exact(const QString& sentence) const {
    return QTranslator::translate(kTranslations, sentence.toUtf8().constData());
}

/// Null when no line has a translation.
QString Translator::Lines(const QString& text) const {
    QStringList lines = text.split('\n');
    bool any = false;
    for (QString& line : lines) {
        const QString found = Line(line);
        if (found.isNull()) continue;
        line = found;
        any = true;
    }
    return any ? lines.join('\n') : QString();
}

/// Blanks at both ends stay.
QString Translator::Line(const QString& line) const {
    const QString sentence = line.trimmed();
    if (sentence.isEmpty()) return {};
    const QString found = Sentence(sentence);
    if (found.isNull()) return {};
    const qsizetype begin = line.indexOf(sentence);
    return line.first(begin) + found + line.sliced(begin + sentence.size());
}

QString Translator::Sentence(const QString& sentence) const {
    if (const QString found = Exact(sentence); !found.isNull()) return found;
    for (const Pattern& pattern : patterns_) {
        const auto values = ValuesIn(sentence, pattern.pieces);
        if (!values) continue;
        const QString translated = QTranslator::translate(kTranslations, pattern.source);
        if (translated.isNull()) continue;
        QStringList filled;
        for (const QString& value : *values)
            filled << Value(value);
        return Filled(translated, filled);
    }
    return {};
}

/// A value may be a sentence of its own.
QString Translator::Value(const QString& value) const {
    const QString found = Line(value);
    return found.isNull() ? value : found;
}

Translations::Translations(const std::vector<std::filesystem::path>& folders, const QLocale& locale)
    : own_(Sentences()) {
    const bool found = std::ranges::any_of(folders, [&](const std::filesystem::path& folder) {
        return own_.load(locale, "fabula", "_", PathToQt(folder / kFolder), ".qm");
    });
    if (!found) return;
    QApplication::installTranslator(&own_);
    if (ofQt_.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&ofQt_);
}

Translations::~Translations() {
    QApplication::removeTranslator(&own_);
    QApplication::removeTranslator(&ofQt_);
}

}  // namespace fabula::qt
