#pragma once

#include "cli/verb.h"

namespace fabula::cli {

// One file for each: it says what the verb takes, its options and what stands behind them, and runs it.
void AddBatchVerb(CLI::App& verb, Chosen& chosen);
void AddCharsetVerb(CLI::App& verb, Chosen& chosen);
void AddCheckVerb(CLI::App& verb, Chosen& chosen);
void AddDrawVerb(CLI::App& verb, Chosen& chosen);
void AddDumpVerb(CLI::App& verb, Chosen& chosen);
void AddExportVerb(CLI::App& verb, Chosen& chosen);
void AddIfictionVerb(CLI::App& verb, Chosen& chosen);
void AddImportPictureVerb(CLI::App& verb, Chosen& chosen);
void AddImportVerb(CLI::App& verb, Chosen& chosen);
void AddLintVerb(CLI::App& verb, Chosen& chosen);
void AddListVerb(CLI::App& verb, Chosen& chosen);
void AddNewVerb(CLI::App& verb, Chosen& chosen);
void AddPackageVerb(CLI::App& verb, Chosen& chosen);
void AddPlayVerb(CLI::App& verb, Chosen& chosen);
void AddRenumberVerb(CLI::App& verb, Chosen& chosen);
void AddTablesVerb(CLI::App& verb, Chosen& chosen);
void AddTestVerb(CLI::App& verb, Chosen& chosen);
void AddTravelVerb(CLI::App& verb, Chosen& chosen);
void AddUpgradeVerb(CLI::App& verb, Chosen& chosen);
void AddUsesVerb(CLI::App& verb, Chosen& chosen);
void AddVerifyVerb(CLI::App& verb, Chosen& chosen);

struct Verb {
    const char* name;
    const char* does;  ///< as --help tells it
    void (*add)(CLI::App& verb, Chosen& chosen);
};

/// In the order in which --help shows them.
inline constexpr Verb kVerbs[] = {
    {"check", "Reads a source into a temporary adventure and verifies it", AddCheckVerb},
    {"export", "Writes an adventure as a source or an export file", AddExportVerb},
    {"import", "Makes an adventure file from a source or an export file", AddImportVerb},
    {"import-picture", "Takes pictures out of the listing of an older game", AddImportPictureVerb},
    {"verify", "Checks an adventure against the rules of its type", AddVerifyVerb},
    {"new", "Creates an adventure file", AddNewVerb},
    {"tables", "Shows the tables of an adventure, with their numbers and sizes", AddTablesVerb},
    {"dump", "Shows the records of a table, one JSON object a line", AddDumpVerb},
    {"list", "Lists the records of an adventure as they are printed", AddListVerb},
    {"draw", "Draws the pictures of an adventure, or checks a drawstring", AddDrawVerb},
    {"charset", "Carries character sets between adventures", AddCharsetVerb},
    {"play", "Plays an adventure", AddPlayVerb},
    {"test", "Plays a script and compares what is shown", AddTestVerb},
    {"upgrade", "Brings an adventure of an older version up to date, and mends its records",
     AddUpgradeVerb},
    {"batch", "Writes tables as text to be edited outside, or reads them back", AddBatchVerb},
    {"package", "Packs an adventure with its files as a zip for others", AddPackageVerb},
    {"ifiction", "Prints the iFiction record by which libraries know a game", AddIfictionVerb},
    {"travel", "Writes a report of a classic travel table and adds its verbs to an adventure",
     AddTravelVerb},
    {"uses", "Shows what uses a flag, an object, a place, a text, a word ...", AddUsesVerb},
    {"lint", "Tells what a game has that can't be meant: unused, unreachable, contradictory, missing",
     AddLintVerb},
    {"renumber", "Gives a record another number, or swaps it with the one that has it; all uses follow",
     AddRenumberVerb},
};

}  // namespace fabula::cli
