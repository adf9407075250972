#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/screen_context.h"
#include "references/find_replace.h"

namespace fabula::authoring {

/// The screen of find and replace over all tables: what is looked for and where, the places that were
/// found, each with a tick, and their replacement as one change.
class ReplaceScreen {
  public:
    struct Found {
        references::Hit hit;
        std::string place;   ///< "message 7", "process table 0, entry 12 (GET LAMP)"
        bool ticked = true;  ///< it is to be replaced; never one that a check refuses
    };

    explicit ReplaceScreen(ScreenContext& context) : context_(context) {}
    ReplaceScreen(const ReplaceScreen&) = delete;
    ReplaceScreen& operator=(const ReplaceScreen&) = delete;

    references::Wanted wanted;
    std::string scope;  ///< a name of Scopes; "" for everywhere

    /// Where one can look, besides everywhere.
    static std::vector<std::string> Scopes();

    /// Looks. False when there is nothing to look for or the expression is none; the author is told.
    bool Find();
    std::vector<Found>& Hits() { return hits_; }
    /// Forgets what was found: it was looked for with something else than is wanted now.
    void Forget();

    /// Replaces what is ticked as it was found, as one change. False when nothing is; the author is told
    /// what was left out.
    bool Replace();

    /// "12 places in 5 records", "Replaced 12 places in 5 records."; "" before the first search.
    const std::string& Status() const { return status_; }

    static constexpr std::string_view kCaption = "Find and Replace";

  private:
    ScreenContext& context_;
    std::vector<Found> hits_;
    std::string status_;
};

}  // namespace fabula::authoring
