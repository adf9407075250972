#pragma once

#include "cli/verb.h"

namespace fabula::cli {

// One file for each: it says what the verb takes, and runs it.
void AddBatchVerb(CLI::App& app, Chosen& chosen);
void AddCharsetVerb(CLI::App& app, Chosen& chosen);
void AddCheckVerb(CLI::App& app, Chosen& chosen);
void AddDrawVerb(CLI::App& app, Chosen& chosen);
void AddDumpVerb(CLI::App& app, Chosen& chosen);
void AddExportVerb(CLI::App& app, Chosen& chosen);
void AddIfictionVerb(CLI::App& app, Chosen& chosen);
void AddImportPictureVerb(CLI::App& app, Chosen& chosen);
void AddImportVerb(CLI::App& app, Chosen& chosen);
void AddLintVerb(CLI::App& app, Chosen& chosen);
void AddListVerb(CLI::App& app, Chosen& chosen);
void AddNewVerb(CLI::App& app, Chosen& chosen);
void AddPackageVerb(CLI::App& app, Chosen& chosen);
void AddPlayVerb(CLI::App& app, Chosen& chosen);
void AddRenumberVerb(CLI::App& app, Chosen& chosen);
void AddTablesVerb(CLI::App& app, Chosen& chosen);
void AddTestVerb(CLI::App& app, Chosen& chosen);
void AddTravelVerb(CLI::App& app, Chosen& chosen);
void AddUpgradeVerb(CLI::App& app, Chosen& chosen);
void AddUsesVerb(CLI::App& app, Chosen& chosen);
void AddVerifyVerb(CLI::App& app, Chosen& chosen);

/// In the order in which --help shows them.
inline constexpr void (*kVerbs[])(CLI::App& app, Chosen& chosen) = {
    AddCheckVerb,  AddExportVerb,  AddImportVerb,   AddImportPictureVerb, AddVerifyVerb,   AddNewVerb,
    AddTablesVerb, AddDumpVerb,    AddListVerb,     AddDrawVerb,          AddCharsetVerb,  AddPlayVerb,
    AddTestVerb,   AddUpgradeVerb, AddBatchVerb,    AddPackageVerb,       AddIfictionVerb, AddTravelVerb,
    AddUsesVerb,   AddLintVerb,    AddRenumberVerb,
};

}  // namespace fabula::cli
