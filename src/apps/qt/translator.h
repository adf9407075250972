#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace fabula::qt {

/// A file of translations that knows sentences with values in them too. Libraries put a sentence together
/// before anybody asks for another language: "Could not write cave.fbd." is recognised by its pattern
/// "Could not write %1.", the pattern is translated, and the values are put in. Of several patterns that
/// fit, the one with most letters of its own is taken.
///
/// A text of several lines is translated line by line. A value that is itself a sentence or a word of
/// Fabula, such as a reason or the name of a kind of record, is translated too; all others stay. So a name
/// that an author chose stays, except in a message where it is spelled as such a word.
class Translator final : public QTranslator {
  public:
    /// `sentences` has the patterns and outlives this.
    explicit Translator(std::span<const char* const> sentences);

    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override;

  private:
    struct Pattern {
        const char* source;
        QStringList pieces;  ///< what stands before, between and behind the values
        qsizetype letters;   ///< in the pieces
    };

    QString Exact(const QString& sentence) const;
    QString Lines(const QString& text) const;
    QString Line(const QString& line) const;
    QString Sentence(const QString& sentence) const;
    QString Value(const QString& value) const;

    std::vector<Pattern> patterns_;
};

/// The language of the windows while this lives: "translations/fabula_XX.qm" of the first of `folders` that
/// has one for `locale` (XX as "de" or "pt_BR"), and what Qt itself says in that language. Without such a
/// file all stays as it is in the sources.
class Translations {
  public:
    Translations(const std::vector<std::filesystem::path>& folders, const QLocale& locale);
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    bool Found() const { return !own_.isEmpty(); }

  private:
    Translator own_;
    QTranslator ofQt_;
};

/// The values of `text`, if it consists of `pieces` with something between each two; nullopt else.
std::optional<QStringList> ValuesIn(const QString& text, const QStringList& pieces);

/// `pattern` with its "%1" ... "%9" replaced by values. A "%1" within a value stays.
QString Filled(const QString& pattern, const QStringList& values);

}  // namespace fabula::qt
