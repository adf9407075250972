#pragma once

#include <string>
#include <vector>

#include "authoring/desk/search/navigator.h"
#include "authoring/entries/deletion.h"

namespace fabula::authoring {

/// What is shown before a record is deleted: the places that use it, and what becomes of each.
class DeletionUses {
  public:
    DeletionUses(Navigator& navigator, const Deletion& deletion);

    /// False where nothing uses the record: then there is nothing to be shown.
    bool Any() const { return !lines_.empty(); }
    /// "message 7: 3 uses"
    const std::string& Title() const { return title_; }
    /// What becomes of the uses, in a sentence or two.
    const std::string& Summary() const { return summary_; }
    const std::vector<JumpLine>& Lines() const { return lines_; }
    /// What is to be told when the record has gone and its uses stay; "" when there is no such thing.
    const std::string& AfterIt() const { return afterIt_; }

  private:
    void TellOfPlain(std::size_t uses);
    void TellOfWord(const Deletion& deletion);

    std::string title_;
    std::string summary_;
    std::vector<JumpLine> lines_;
    std::string afterIt_;
};

}  // namespace fabula::authoring
