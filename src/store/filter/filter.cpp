#include "store/filter/filter.h"

#include <cmath>
#include <optional>

#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

using Operand = FilterNode::Operand;

constexpr std::string_view kComparisonSigns[] = {"=", "<>", "<", ">", "<=", ">="};

bool IsText(const Operand& operand, const TableSchema& schema) {
    if (operand.kind == Operand::Kind::Field) {
        return ClassOf(schema.fields[operand.field].type) == FieldClass::Text;
    }
    return std::holds_alternative<std::string>(operand.constant);
}

void AppendOperand(const Operand& operand, const TableSchema& schema, std::string& sql,
                   std::vector<text::Value>& values) {
    switch (operand.kind) {
        case Operand::Kind::Field:
            sql += schema.fields[operand.field].name;
            return;
        case Operand::Kind::Constant:
            values.push_back(operand.constant);
            sql += '?';
            return;
        case Operand::Kind::Parameter:
            values.emplace_back();
            sql += '?';
            return;
    }
}

void AppendComparison(const FilterNode& node, const TableSchema& schema, std::string& sql,
                      std::vector<text::Value>& values) {
    AppendOperand(node.left, schema, sql, values);
    sql += kComparisonSigns[static_cast<std::size_t>(node.comparison)];
    AppendOperand(node.right, schema, sql, values);
    if (IsText(node.left, schema) || IsText(node.right, schema)) sql += " COLLATE fabula_nocase";
}

/// Compares a whole number with a floating one without rounding either.
int CompareExactly(std::int64_t whole, double real) {
    if (std::isnan(real)) return 1;
    if (real >= 9223372036854775808.0) return -1;
    if (real < -9223372036854775808.0) return 1;
    const auto truncated = static_cast<std::int64_t>(real);
    if (whole != truncated) return whole < truncated ? -1 : 1;
    const double rest = real - static_cast<double>(truncated);
    return rest > 0 ? -1 : (rest < 0 ? 1 : 0);
}

/// -1, 0 or 1; nullopt when either value is null or they are of kinds that the parser keeps apart.
std::optional<int> Compare(const text::Value& left, const text::Value& right) {
    const auto* leftText = std::get_if<std::string>(&left);
    const auto* rightText = std::get_if<std::string>(&right);
    if (leftText && rightText) return text::CompareNoCase(*leftText, *rightText);
    const auto* leftWhole = std::get_if<std::int64_t>(&left);
    const auto* rightWhole = std::get_if<std::int64_t>(&right);
    const auto* leftReal = std::get_if<double>(&left);
    const auto* rightReal = std::get_if<double>(&right);
    if (leftWhole && rightWhole) return *leftWhole < *rightWhole ? -1 : (*leftWhole > *rightWhole ? 1 : 0);
    if (leftReal && rightReal) return *leftReal < *rightReal ? -1 : (*leftReal > *rightReal ? 1 : 0);
    if (leftWhole && rightReal) return CompareExactly(*leftWhole, *rightReal);
    if (leftReal && rightWhole) return -CompareExactly(*rightWhole, *leftReal);
    return std::nullopt;
}

text::Value ValueOf(const Operand& operand, const FieldSource& record) {
    return operand.kind == Operand::Kind::Field ? record.ValueOf(operand.field) : operand.constant;
}

bool MatchesComparison(const FilterNode& node, const FieldSource& record) {
    const auto order = Compare(ValueOf(node.left, record), ValueOf(node.right, record));
    if (!order) return false;
    switch (node.comparison) {
        case FilterNode::Comparison::Equal:
            return *order == 0;
        case FilterNode::Comparison::NotEqual:
            return *order != 0;
        case FilterNode::Comparison::Less:
            return *order < 0;
        case FilterNode::Comparison::Greater:
            return *order > 0;
        case FilterNode::Comparison::LessEqual:
            return *order <= 0;
        case FilterNode::Comparison::GreaterEqual:
            return *order >= 0;
    }
    return false;
}

}  // namespace

void AppendSql(const FilterNode& node, const TableSchema& schema, std::string& sql,
               std::vector<text::Value>& values) {
    switch (node.kind) {
        case FilterNode::Kind::And:
        case FilterNode::Kind::Or: {
            const char* joint = "(";
            for (const FilterNode& child : node.children) {
                sql += joint;
                AppendSql(child, schema, sql, values);
                joint = node.kind == FilterNode::Kind::And ? " AND " : " OR ";
            }
            sql += ')';
            return;
        }
        case FilterNode::Kind::Compare:
            return AppendComparison(node, schema, sql, values);
        case FilterNode::Kind::Like:
            sql += "fabula_like(";
            AppendOperand(node.left, schema, sql, values);
            sql += ',';
            AppendOperand(node.right, schema, sql, values);
            sql += ')';
            return;
        case FilterNode::Kind::Truth:
            sql += schema.fields[node.left.field].name;
            return;
    }
}

bool Matches(const FilterNode& node, const FieldSource& record) {
    switch (node.kind) {
        case FilterNode::Kind::And:
            for (const FilterNode& child : node.children) {
                if (!Matches(child, record)) return false;
            }
            return true;
        case FilterNode::Kind::Or:
            for (const FilterNode& child : node.children) {
                if (Matches(child, record)) return true;
            }
            return false;
        case FilterNode::Kind::Compare:
            return MatchesComparison(node, record);
        case FilterNode::Kind::Like: {
            const text::Value subject = ValueOf(node.left, record);
            const auto* subjectText = std::get_if<std::string>(&subject);
            return subjectText && MatchesLike(*subjectText, std::get<std::string>(node.right.constant));
        }
        case FilterNode::Kind::Truth: {
            const text::Value truth = record.ValueOf(node.left.field);
            const auto* number = std::get_if<std::int64_t>(&truth);
            return number && *number != 0;
        }
    }
    return false;
}

bool MatchesLike(std::string_view text, std::string_view pattern) {
    const std::string folded = text::LowerCase(text);
    const std::string wanted = text::LowerCase(pattern);
    const auto isWild = [](char c) { return c == '%' || c == '*'; };
    // On a mismatch behind a wildcard, let the latest one take one character more. Linear in practice, at
    // worst the product of the lengths; it never recurses.
    std::size_t at = 0;
    std::size_t in = 0;
    std::size_t retryAt = 0;
    std::size_t retryIn = std::string::npos;
    while (at < folded.size()) {
        if (in < wanted.size() && isWild(wanted[in])) {
            retryIn = ++in;
            retryAt = at;
        } else if (in < wanted.size() && wanted[in] == folded[at]) {
            ++at;
            ++in;
        } else if (retryIn != std::string::npos) {
            at = ++retryAt;
            in = retryIn;
        } else {
            return false;
        }
    }
    while (in < wanted.size() && isWild(wanted[in]))
        ++in;
    return in == wanted.size();
}

}  // namespace fabula::store
