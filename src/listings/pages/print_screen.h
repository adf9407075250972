#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "listings/reports.h"
#include "listings/table_titles.h"
#include "platform/dialogs.h"

namespace fabula::listings {

/// A report that is ready to be printed or shown.
struct PrintJob {
    const Report* report = nullptr;
    ReportRequest request;
    std::string title;  ///< of the table: "Location Table"
};

/// The window that sets up a listing of the table in the grid: in which form, and of which records. What is
/// wrong is told in a box, and nothing is printed then.
class PrintScreen {
  public:
    enum class Purpose { Print, Preview };

    /// `process` is the view of the process tables, 0 to authoring::kOtherProcesses. Throws fabula::Error
    /// when the words can't be read.
    PrintScreen(store::Adventure& adventure, store::TableNum table, int process, Purpose purpose,
                platform::Dialogs& dialogs);

    /// "Print for " or "Print Preview Setup for ", and the table's title.
    std::string Title() const;
    Purpose For() const { return purpose_; }

    /// The listings that the table has, where there are several.
    authoring::DropList form;

    /// "Verbose" and "Non-Verbose", for the listings that have both.
    bool HasDetail() const;
    bool verbose = false;

    /// "Print the complete Adventure", and in which form.
    bool complete = false;
    enum class CompleteForm { Brief, Verbose, NonVerbose };
    CompleteForm completeForm = CompleteForm::NonVerbose;

    /// "Special Listing": of process tables, the entries for a verb and a noun. The words follow the type.
    bool HasSpecial() const { return table_ == store::TableNum::ProcessTables; }
    bool special = false;
    void ClickSpecial(bool on);
    authoring::DropList wordType;
    authoring::DropList verb;
    authoring::DropList noun;
    void ChooseWordType(int index);

    /// The text of the range, where the listing takes one, and its label, which the box of the special
    /// listing changes.
    bool HasRange() const;
    std::string_view RangeLabel() const;
    std::string range;
    static constexpr std::string_view kRangeHint = "M-N,ALL,comma separated list";

    /// The size of the keypad, for templates: the listing is that of the template of this size.
    bool HasKeypad() const { return table_ == store::TableNum::Templates; }
    std::string templateName;

    /// Checks all that was chosen. nullopt when something is wrong; the author has been told then.
    std::optional<PrintJob> Check();

  private:
    const Report& ChosenReport() const;
    std::string FaultOfSpecial() const;
    std::string FaultOfPreview() const;
    std::optional<PrintJob> CheckTable();

    store::Adventure& adventure_;
    store::TableNum table_;
    int process_;
    Purpose purpose_;
    platform::Dialogs& dialogs_;
    std::string_view tablesLabel_ = "Which Tables:";
};

/// The choice of the keypad's size, which is that of its template.
struct KeypadSize {
    std::string_view text;          ///< "About 1 1/8 inches"
    std::string_view templateName;  ///< "" for a size that has none
};
inline constexpr std::string_view kKeypadTitle = "Size of your KeyPad";
inline constexpr std::string_view kKeypadFrame = "Top Extended KeyPad Size";
inline constexpr KeypadSize kKeypadSizes[] = {
    {"About 1 1/8 inches", "keypad_small"},
    {"About 1 1/2 inches", "keypad_large"},
    {"Another size", ""},
};

/// The template of a size, by its place in kKeypadSizes; nullopt for another size, which the author is
/// told.
std::optional<std::string> TemplateOfSize(std::size_t size, platform::Person& person);

}  // namespace fabula::listings
