#include "store/filter/filter_parser.h"

#include <algorithm>

#include "text/encoding/utf8.h"
#include "text/numbers.h"

namespace fabula::store {
namespace {

bool IsNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

constexpr std::string_view kSigns[] = {"<>", "<=", ">=", "=", "<", ">", "(", ")", ",", "*", "?"};

/// Reads one filter by recursive descent: `or` binds least, then `and`, then comparisons and parentheses.
class Parser {
  public:
    Parser(std::string_view filter, const TableSchema& schema, Parameters parameters)
        : tokens_(filter), schema_(schema), parameters_(parameters) {}

    FilterNode Parse() {
        FilterNode node = ParseChain(FilterNode::Kind::Or);
        if (tokens_.Next().kind != Token::Kind::End) tokens_.Expected("'and', 'or' or the end");
        return node;
    }

  private:
    using Operand = FilterNode::Operand;

    FilterNode ParseChain(FilterNode::Kind kind) {
        const bool isOr = kind == FilterNode::Kind::Or;
        const auto parseChild = [&] { return isOr ? ParseChain(FilterNode::Kind::And) : ParseTerm(); };
        FilterNode first = parseChild();
        if (!tokens_.AtWord(isOr ? "or" : "and")) return first;
        FilterNode chain;
        chain.kind = kind;
        chain.children.push_back(std::move(first));
        while (tokens_.TakeWord(isOr ? "or" : "and"))
            chain.children.push_back(parseChild());
        return chain;
    }

    FilterNode ParseTerm() {
        if (tokens_.Next().kind == Token::Kind::Sign && tokens_.Next().text == "(")
            return ParseParentheses();
        const Token start = tokens_.Next();
        if (++comparisons_ > kMostComparisons) tokens_.Expected("fewer comparisons");
        FilterNode node;
        node.left = ParseOperand("a field, a value or '('");
        if (tokens_.TakeWord("like")) {
            node.kind = FilterNode::Kind::Like;
            if (ClassOfOperand(node.left) != FieldClass::Text) Fail(start, "a text field before 'like'");
            const Token pattern = tokens_.Next();
            node.right = ParseOperand("a quoted text after 'like'");
            if (node.right.kind == Operand::Kind::Field || ClassOfOperand(node.right) != FieldClass::Text) {
                Fail(pattern, "a quoted text after 'like'");
            }
            return node;
        }
        const auto comparison = TakeComparison();
        if (!comparison) {
            if (node.left.kind == Operand::Kind::Field && ClassOfOperand(node.left) == FieldClass::Truth) {
                node.kind = FilterNode::Kind::Truth;
                return node;
            }
            tokens_.Expected("a comparison sign or 'like'");
        }
        node.comparison = *comparison;
        const Token right = tokens_.Next();
        node.right = ParseOperand("a value or a field");
        CheckClasses(node, start, right);
        return node;
    }

    FilterNode ParseParentheses() {
        if (++depth_ > kDeepestFilter) tokens_.Expected("fewer nested parentheses");
        tokens_.Take();
        FilterNode node = ParseChain(FilterNode::Kind::Or);
        if (!tokens_.TakeSign(")")) tokens_.Expected("')'");
        --depth_;
        return node;
    }

    std::optional<FilterNode::Comparison> TakeComparison() {
        struct Row {
            std::string_view sign;
            FilterNode::Comparison comparison;
        };
        using enum FilterNode::Comparison;
        constexpr Row kRows[] = {{"=", Equal},   {"<>", NotEqual},  {"<", Less},
                                 {">", Greater}, {"<=", LessEqual}, {">=", GreaterEqual}};
        for (const Row& row : kRows) {
            if (tokens_.TakeSign(row.sign)) return row.comparison;
        }
        return std::nullopt;
    }

    Operand ParseOperand(const std::string& expected) {
        const Token& token = tokens_.Next();
        Operand operand;
        switch (token.kind) {
            case Token::Kind::Number:
                operand.constant = ParseNumber();
                return operand;
            case Token::Kind::Text:
                operand.constant = Unquote(tokens_.Take().text);
                return operand;
            case Token::Kind::Name:
                return ParseName(expected);
            case Token::Kind::Sign:
                if (token.text != "?" || parameters_ == Parameters::Refused) break;
                tokens_.Take();
                operand.kind = Operand::Kind::Parameter;
                return operand;
            case Token::Kind::End:
                break;
        }
        tokens_.Expected(expected);
    }

    Operand ParseName(const std::string& expected) {
        Operand operand;
        for (const bool truth : {true, false}) {
            if (!tokens_.AtWord(truth ? "true" : "false")) continue;
            tokens_.Take();
            operand.constant = std::int64_t{truth};
            return operand;
        }
        const auto field = schema_.Find(tokens_.Next().text);
        if (!field)
            tokens_.Expected(expected + "; there is no field '" + std::string(tokens_.Next().text) +
                             "' in " + schema_.name);
        if (ClassOf(schema_.fields[*field].type) == FieldClass::Binary)
            tokens_.Expected("a field that is not binary");
        tokens_.Take();
        operand.kind = Operand::Kind::Field;
        operand.field = *field;
        return operand;
    }

    text::Value ParseNumber() {
        const std::string_view digits = tokens_.Next().text;
        std::string_view rest = digits;
        const auto whole = text::TakeLongNumber(rest);
        if (whole && rest.empty()) {
            tokens_.Take();
            return *whole;
        }
        const auto real = text::RealNumber(digits);
        if (!real) tokens_.Expected("a number in range");
        tokens_.Take();
        return *real;
    }

    /// The class of an operand; nullopt for a parameter, which fits any.
    std::optional<FieldClass> ClassOfOperand(const Operand& operand) const {
        switch (operand.kind) {
            case Operand::Kind::Field:
                return ClassOf(schema_.fields[operand.field].type);
            case Operand::Kind::Constant:
                return std::holds_alternative<std::string>(operand.constant) ? FieldClass::Text
                                                                             : FieldClass::Number;
            case Operand::Kind::Parameter:
                break;
        }
        return std::nullopt;
    }

    /// Numbers and truth values compare with each other, texts with texts.
    void CheckClasses(const FilterNode& node, const Token& left, const Token& right) const {
        const auto leftClass = ClassOfOperand(node.left);
        const auto rightClass = ClassOfOperand(node.right);
        if (!leftClass || !rightClass) return;
        const bool leftIsText = *leftClass == FieldClass::Text;
        if (leftIsText == (*rightClass == FieldClass::Text)) return;
        const bool blameLeft =
            node.right.kind == Operand::Kind::Field && node.left.kind == Operand::Kind::Constant;
        const bool wantText = blameLeft ? !leftIsText : leftIsText;
        Fail(blameLeft ? left : right, wantText ? "a text in quotes" : "a number");
    }

    [[noreturn]] void Fail(const Token& at, const std::string& expected) const {
        tokens_.Expected(expected, at.position);
    }

    Tokenizer tokens_;
    const TableSchema& schema_;
    Parameters parameters_;
    int depth_ = 0;
    int comparisons_ = 0;
};

}  // namespace

FilterError::FilterError(std::size_t position, const std::string& expected)
    : std::runtime_error("at " + std::to_string(position) + ": expected " + expected),
      position_(position) {}

Tokenizer::Tokenizer(std::string_view text) : text_(text) {
    if (text.size() > kLongestFilter) throw FilterError(kLongestFilter + 1, "a shorter text");
    Scan();
}

Token Tokenizer::Take() {
    const Token taken = next_;
    Scan();
    return taken;
}

bool Tokenizer::AtWord(std::string_view word) const {
    return next_.kind == Token::Kind::Name && text::EqualsNoCase(next_.text, word);
}

bool Tokenizer::TakeWord(std::string_view word) {
    if (!AtWord(word)) return false;
    Scan();
    return true;
}

bool Tokenizer::TakeSign(std::string_view sign) {
    if (next_.kind != Token::Kind::Sign || next_.text != sign) return false;
    Scan();
    return true;
}

void Tokenizer::Expected(const std::string& what, std::size_t position) const {
    throw FilterError(text::Length(text_.substr(0, position - 1)) + 1, what);
}

void Tokenizer::Scan() {
    while (at_ < text_.size() && IsBlank(text_[at_]))
        ++at_;
    next_ = {Token::Kind::End, {}, at_ + 1};
    if (at_ == text_.size()) return;
    const std::size_t start = at_;
    const auto finish = [&](Token::Kind kind) {
        next_ = {kind, text_.substr(start, at_ - start), start + 1};
    };
    const char first = text_[at_];
    if (IsNameStart(first)) {
        while (at_ < text_.size() && (IsNameStart(text_[at_]) || IsDigit(text_[at_])))
            ++at_;
        return finish(Token::Kind::Name);
    }
    const bool negative = first == '-' && at_ + 1 < text_.size() && IsDigit(text_[at_ + 1]);
    if (IsDigit(first) || negative) {
        ++at_;
        while (at_ < text_.size() && (IsDigit(text_[at_]) || text_[at_] == '.'))
            ++at_;
        return finish(Token::Kind::Number);
    }
    if (first == '\'') {
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] != '\'') continue;
            if (at_ + 1 < text_.size() && text_[at_ + 1] == '\'') {
                ++at_;
                continue;
            }
            ++at_;
            return finish(Token::Kind::Text);
        }
        Expected("a closing quote", at_ + 1);
    }
    for (const std::string_view sign : kSigns) {
        if (text_.substr(at_, sign.size()) != sign) continue;
        at_ += sign.size();
        return finish(Token::Kind::Sign);
    }
    Expected("a name, a number, a quoted text or a sign", at_ + 1);
}

std::string Unquote(std::string_view quoted) {
    std::string text;
    text.reserve(quoted.size());
    for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
        if (quoted[i] == '\'') ++i;
        text += quoted[i];
    }
    return text;
}

FilterNode ParseFilter(std::string_view filter, const TableSchema& schema, Parameters parameters) {
    return Parser(filter, schema, parameters).Parse();
}

std::string QuoteText(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'') quoted += '\'';
        quoted += c;
    }
    quoted += '\'';
    return quoted;
}

}  // namespace fabula::store
