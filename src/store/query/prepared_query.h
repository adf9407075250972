#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct sqlite3_stmt;

namespace fabula::store {

class Connection;
struct Selection;

/// A value for one "?" of a prepared query.
using QueryValue = std::variant<std::int64_t, std::string_view>;

/// A selection that is looked up often, kept prepared: nothing is parsed or copied at a look-up. Columns
/// count from 0 in the order of the field list. Made by Adventure::Prepare.
///
///     PreparedQuery text = adventure.Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
///     if (text.First({7})) Print(text.Text(0));
///
/// A look-up that has not been read to its end keeps the file locked for reading; `Reset`, the next `First`
/// or the end of the query frees it. Throws fabula::Error when the file can't be read.
class PreparedQuery {
  public:
    PreparedQuery(PreparedQuery&& other) noexcept;
    PreparedQuery& operator=(PreparedQuery&& other) noexcept;
    ~PreparedQuery();

    /// Looks up with one value for each "?", and stands on the first record; false when there is none.
    bool First(std::initializer_list<QueryValue> values);
    /// The next record; false when there is none.
    bool Next();
    void Reset();

    /// A column of the current record: "" and 0 for null. The text is valid until the next call that moves.
    std::string_view Text(int column) const;
    std::int64_t Number(int column) const;

  private:
    friend class Adventure;
    PreparedQuery(Connection& connection, const Selection& selection);

    Connection* connection_ = nullptr;
    sqlite3_stmt* statement_ = nullptr;
    std::vector<int> parameters_;  ///< which of the statement's parameters each "?" is
};

}  // namespace fabula::store
