#include "authoring/fields/texts/short_desc.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "condacts/places.h"
#include "interchange/shared/job_status.h"
#include "interchange/shared/source_file.h"
#include "store/tags.h"
#include "text/encoding/utf8.h"
#include "text/markup.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

constexpr std::string_view kTooLarge = "ShortDesc.lis is too large. No short descriptions loaded.";

using store::TableNum;

/// One reading of the list.
class Loader {
  public:
    Loader(ScreenContext& context, const std::filesystem::path& file, interchange::JobStatus& status)
        : adventure_(context.document.Adventure()),
          tags_(store::LoadTagCatalogue(adventure_)),
          longest_(LongestText(adventure_)),
          list_(file),
          status_(status) {}

    /// How many lines were loaded. Throws TooManyFaults.
    int Load() {
        int loaded = 0;
        for (std::string line; list_.Next(line);) {
            if (text::TrimBlanks(line).empty()) continue;
            const std::string fault = LoadLine(line);
            if (fault.empty()) {
                ++loaded;
            } else {
                status_.AddFault(fault, {list_.File().filename(), list_.LineNumber()});
            }
        }
        return loaded;
    }

  private:
    static std::size_t LongestText(store::Adventure& adventure) {
        const store::TableSchema& schema = adventure.Schema(TableNum::Locations);
        const store::Field& field = schema.fields.at(schema.Find("locshortdesc").value());
        return static_cast<std::size_t>(field.size > 0 ? field.size : store::kDefaultTextSize);
    }

    /// The fault of the line, or "" when it was loaded.
    std::string LoadLine(const std::string& line) {
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos) return "There is no \":\" behind a location number";
        const std::string_view number = text::TrimBlanks(std::string_view(line).substr(0, colon));
        const auto location = text::WholeNumber(number);
        if (!location) return "The location number is not numeric";
        const std::string_view description = text::TrimBlanks(std::string_view(line).substr(colon + 1));
        const text::Verdict verdict = text::ValidateDescription(description, false, tags_);
        if (!verdict.IsValid()) return verdict.BoxText();
        if (text::Length(description) > longest_)
            return "A short description has at most " + std::to_string(longest_) + " letters";
        store::Cursor& record = adventure_.OpenTable(TableNum::Locations, "locnum, locshortdesc",
                                                     "locnum=" + std::to_string(*location));
        if (record.Eof()) return condacts::NoLocationMessage(std::to_string(*location));
        record.SetField("locshortdesc", description.empty() ? " " : std::string(description));
        record.Update();
        return {};
    }

    store::Adventure& adventure_;
    text::TagCatalogue tags_;
    std::size_t longest_;
    interchange::SourceFile list_;
    interchange::JobStatus& status_;
};

bool IsPlainFile(const std::filesystem::path& file) {
    std::error_code missing;  // what can't be looked at counts as not there
    return std::filesystem::symlink_status(file, missing).type() == std::filesystem::file_type::regular;
}

}  // namespace

bool LoadShortDesc(ScreenContext& context) {
    const std::filesystem::path folder = context.document.Adventure().GameDir();
    const std::filesystem::path file = folder / kShortDescFile;
    if (!IsPlainFile(file))
        return Refuse(context.dialogs,
                      "Cannot find " + std::string(kShortDescFile) + " in " + folder.string());
    std::error_code error;  // what can't be measured can't be read either
    if (std::filesystem::file_size(file, error) > kLargestShortDescFile)
        return Refuse(context.dialogs, kTooLarge);
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    try {
        Change change(context.document, "load short descriptions");
        const int loaded = Loader(context, file, status).Load();
        change.Commit();
        status.AddToStatus(std::to_string(loaded) + " short descriptions loaded");
    } catch (const interchange::TooManyFaults&) {
        status.AddToStatus("Too many errors. No short descriptions loaded.");
        context.dialogs.Report(status.Text(), "Error");
        return false;
    }
    if (status.Faults() == 0) {
        context.dialogs.Tell(status.Text(), "Fabula");
    } else {
        context.dialogs.Report(status.Text(), "Error");
    }
    return true;
}

}  // namespace fabula::authoring
