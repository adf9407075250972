#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/screen_context.h"
#include "store/schema/record_fields.h"

namespace fabula::authoring {

/// The records that were found under a key: a filter, and what they are called in messages.
struct KeySelection {
    const store::TableEntry* table = nullptr;
    std::string filter;
    std::string key;
};

/// "Correct Table Key: Select": which records of which table. Records are looked up by their key, process
/// entries by process, verb and noun, since their key is not shown in the views.
class KeySelectScreen {
  public:
    static constexpr std::string_view kTitle = "Correct Table Key: Select";

    explicit KeySelectScreen(ScreenContext& context);

    /// The tables that may be repaired, by name.
    const std::vector<std::string>& Tables() const { return tables_; }

    std::string table;    ///< one of them; empty while none was chosen
    std::string key;      ///< of tables other than the process tables
    std::string process;  ///< `estype`; with the words, for the process tables
    std::string w1;
    std::string w2;

    bool TakesWords() const;
    /// What is to be known of the chosen table; "" for most.
    std::string_view Explanation() const;

    /// The records to repair. What is wrong is told, and gives nullopt.
    std::optional<KeySelection> Select();

  private:
    std::optional<std::string> Filter() const;

    ScreenContext& context_;
    std::vector<std::string> tables_;
};

/// "Change incorrect key and Finish": the records under one key, each of which may be given a free one.
class KeyChangeScreen {
  public:
    static constexpr std::string_view kTitle = "Change incorrect key and Finish";

    KeyChangeScreen(ScreenContext& context, const KeySelection& selection);

    struct Row {
        std::string key;  ///< as typed
        std::string shown;
    };
    const std::vector<Row>& Rows() const { return rows_; }
    std::string_view KeyName() const { return table_.key; }
    std::string_view ShownName() const { return store::TextField(table_.number); }
    /// What is to be known of process entries; "" for other tables.
    std::string_view Instruction() const;

    /// A key was typed and its cell left. One that is no number, and of process entries one that is used
    /// anywhere in the table, is told and goes back; the third such try lists the free ones. False then.
    bool SetKey(std::size_t row, std::string_view key);

    /// Gives the changed records their keys, as one step of undo; true when the window may close. What is
    /// wrong is told, and nothing is changed then. Throws fabula::Error when the file can't be written.
    bool Finish();

  private:
    struct Record {
        std::int64_t key;
        int position;  ///< among the records that the filter finds
    };

    store::Cursor& OpenRecords() const;
    bool IsUsed(std::int64_t key) const;
    bool CheckChanges(const std::vector<std::size_t>& changed) const;
    void Copy(const Record& record, std::int64_t key) const;
    void TellFreeKeys() const;

    ScreenContext& context_;
    const store::TableEntry& table_;
    std::string filter_;
    std::vector<Row> rows_;
    std::vector<Record> records_;
    int tries_ = 0;
};

}  // namespace fabula::authoring
