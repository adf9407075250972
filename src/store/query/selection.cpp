#include "store/query/selection.h"

#include "store/file/connection.h"
#include "store/filter/filter_parser.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::store {
namespace {

bool MeansAllFields(std::string_view fields) {
    fields = text::TrimBlanks(fields);
    return text::EqualsNoCase(fields, "def") || text::EqualsNoCase(fields, "default");
}

std::size_t TakeField(Tokenizer& tokens, const TableSchema& schema) {
    const auto field =
        tokens.Next().kind == Token::Kind::Name ? schema.Find(tokens.Next().text) : std::nullopt;
    if (!field) tokens.Expected("a field of " + schema.name);
    tokens.Take();
    return *field;
}

void AppendAllFields(const TableSchema& schema, Selection& selection) {
    for (std::size_t i = 0; i < schema.fields.size(); ++i)
        selection.columns.push_back(i);
}

void ParseFieldList(std::string_view fields, const TableSchema& schema, Selection& selection) {
    if (MeansAllFields(fields)) return AppendAllFields(schema, selection);
    Tokenizer tokens(fields);
    do {
        if (tokens.TakeSign("*")) {
            AppendAllFields(schema, selection);
        } else {
            selection.columns.push_back(TakeField(tokens, schema));
        }
    } while (tokens.TakeSign(","));
    if (tokens.Next().kind != Token::Kind::End) tokens.Expected("',' or the end");
}

void AppendOrder(std::string_view order, const TableSchema& schema, std::string& sql) {
    Tokenizer tokens(order);
    do {
        const Field& field = schema.fields[TakeField(tokens, schema)];
        sql += field.name;
        if (ClassOf(field.type) == FieldClass::Text) sql += " COLLATE fabula_nocase";
        if (tokens.TakeWord("desc")) {
            sql += " DESC";
        } else {
            tokens.TakeWord("asc");
        }
        sql += ", ";
    } while (tokens.TakeSign(","));
    if (tokens.Next().kind != Token::Kind::End) tokens.Expected("',', 'desc' or the end");
}

}  // namespace

Selection BuildSelection(const TableSchema& schema, const SelectionText& text, Parameters parameters) {
    Selection selection;
    ParseFieldList(text.fields, schema, selection);
    std::string& sql = selection.sql;
    sql.reserve(160);
    sql += "SELECT storekey";
    for (const std::size_t column : selection.columns) {
        sql += ',';
        sql += schema.fields[column].name;
    }
    sql += " FROM ";
    sql += schema.name;
    if (!text.where.empty()) {
        sql += " WHERE ";
        AppendSql(ParseFilter(text.where, schema, parameters), schema, sql, selection.values);
    }
    sql += " ORDER BY ";
    if (!text.order.empty()) AppendOrder(text.order, schema, sql);
    sql += kStoreKey;
    return selection;
}

bool IsOrderOf(const TableSchema& schema, std::string_view order) {
    std::string sql;
    try {
        AppendOrder(order, schema, sql);
    } catch (const FilterError&) {
        return false;
    }
    return true;
}

FreeStatement SplitFreeStatement(std::string_view statement) {
    Tokenizer tokens(statement);
    FreeStatement parts;
    while (!tokens.AtWord("from")) {
        if (tokens.Next().kind == Token::Kind::End) tokens.Expected("'from' and a table");
        tokens.Take();
    }
    parts.fields = statement.substr(0, tokens.Offset());
    tokens.Take();
    if (tokens.Next().kind != Token::Kind::Name) tokens.Expected("a table");
    parts.table = tokens.Take().text;
    if (tokens.TakeWord("where")) {
        const std::size_t start = tokens.Offset();
        while (!tokens.AtWord("order") && tokens.Next().kind != Token::Kind::End)
            tokens.Take();
        parts.where = statement.substr(start, tokens.Offset() - start);
    }
    if (tokens.TakeWord("order")) {
        if (!tokens.TakeWord("by")) tokens.Expected("'by'");
        parts.order = statement.substr(tokens.Offset());
    } else if (tokens.Next().kind != Token::Kind::End) {
        tokens.Expected("'where', 'order by' or the end");
    }
    return parts;
}

}  // namespace fabula::store
