#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "interchange/pc/pc_source_job.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// "/PRO n": entries that begin with their two words in column 0; conditions and actions follow on the same
/// line or on lines of their own, indented. Tables are numbered without gaps.
class PcProcesses final : public PcSection {
  public:
    explicit PcProcesses(PcSourceJob& job);

    void Begin(const std::vector<std::string_view>& words) override;
    void Slash(std::string_view line) override;
    void Line(std::string_view line) override;
    void Finish() override;

  private:
    struct Entry {
        std::string w1;
        std::string w2;
        condacts::WordNumber w1Number;
        condacts::WordNumber w2Number;
        SourcePlace place;
        std::vector<SourcePlace> words;  ///< places of w1 and w2
        std::string condActs;
        std::vector<SourcePlace> tokens;  ///< places of the tokens of condActs
        std::string numeric;
        std::string comment;
        bool good = true;

        std::string Name() const { return w1 + " " + w2; }
    };

    /// A line of the source with each BELL replaced, and the pieces of the source that its tokens are.
    struct CondActLine {
        std::string text;
        std::vector<std::string_view> tokens;
    };

    void BeginEntry(std::string_view line);
    void SetWords(std::string_view first, std::string_view second);
    void AddCondActs(std::string_view line);
    CondActLine WithoutBells(std::string_view line);
    void NotePlaces(const std::vector<std::string_view>& tokens);
    void Refuse(const std::string& why, std::string_view at);
    void Flush();
    void Store();

    PcSourceJob& job_;
    condacts::Catalogue withBell_;  ///< the catalogue and BELL, which this system does not have
    std::unique_ptr<KeyedTable> entries_;
    std::unique_ptr<KeyedTable> descriptions_;
    condacts::ProcessNumber process_{-1};
    bool skipping_ = false;  ///< behind the last table that there may be
    std::unique_ptr<Entry> entry_;
    bool hadBell_ = false;
};

}  // namespace fabula::interchange
