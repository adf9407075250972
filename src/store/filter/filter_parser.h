#pragma once

#include <string>
#include <string_view>

#include "store/filter/filter.h"

namespace fabula::store {

/// The pieces that filters, field lists, orders and free cursors' statements are made of.
struct Token {
    enum class Kind { Name, Number, Text, Sign, End };
    Kind kind = Kind::End;
    std::string_view text;     ///< as written; of a Text with its quotes
    std::size_t position = 1;  ///< in bytes, counted from 1
};

/// Cuts a text of the filter language into tokens, one ahead.
class Tokenizer {
  public:
    explicit Tokenizer(std::string_view text);

    const Token& Next() const { return next_; }
    Token Take();

    /// True when the next token is this word of the language, case ignored.
    bool AtWord(std::string_view word) const;
    bool TakeWord(std::string_view word);
    bool TakeSign(std::string_view sign);

    /// The place of the next token, and how much of the text stands before it.
    std::size_t Offset() const { return next_.position - 1; }

    /// Throws the FilterError "expected ..." at the next token, or at the one given.
    [[noreturn]] void Expected(const std::string& what) const { Expected(what, next_.position); }
    [[noreturn]] void Expected(const std::string& what, std::size_t position) const;

  private:
    void Scan();

    std::string_view text_;
    std::size_t at_ = 0;
    Token next_;
};

/// The text of a quoted constant, doubled quotes made single.
std::string Unquote(std::string_view quoted);

}  // namespace fabula::store
