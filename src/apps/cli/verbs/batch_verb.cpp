#include <set>

#include "authoring/batch/batch_import.h"
#include "cli/host/console.h"
#include "cli/host/fault_report.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "interchange/batch/batch_writer.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "store/record_limits.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace fabula::cli {
namespace {

struct BatchOptions {
    std::string file;
    std::string target;
    std::string read;
    std::string table;
    std::string records;
    std::string processes = "ALL";
    bool force = false;
    bool json = false;
};

/// "1,3-5"
std::set<int> Records(const std::string& list) {
    std::set<int> records;
    for (const std::string_view piece : text::Split(list, ",")) {
        const std::size_t dash = piece.find('-');
        const auto first = text::WholeNumber(piece.substr(0, dash));
        const auto last =
            dash == std::string_view::npos ? first : text::WholeNumber(piece.substr(dash + 1));
        if (!first || !last || *first < 0 || *last < *first || *last > store::kHighestKey)
            throw UsageError("--records takes numbers and ranges of numbers, such as 1,3-5");
        for (std::int64_t record = *first; record <= *last; ++record)
            records.insert(static_cast<int>(record));
    }
    return records;
}

interchange::BatchSelection SelectionOf(const BatchOptions& options) {
    interchange::BatchSelection selection;
    selection.processes = options.processes;
    if (!options.table.empty()) {
        const store::TableEntry* table = store::FindTable(options.table);
        if (table == nullptr || interchange::FindBatchTable(table->number) == nullptr)
            throw UsageError("no table of batch files is called " + options.table);
        selection.table = table->number;
    }
    if (!options.records.empty()) {
        if (!selection.table) throw UsageError("--records needs --table");
        selection.keys = Records(options.records);
    }
    return selection;
}

int Write(const BatchOptions& options) {
    const interchange::BatchSelection selection = SelectionOf(options);
    Console console(std::cerr);
    CheckTarget(
        {options.target, store::Content::Text, store::extension::kBatch, options.file, options.force},
        console.Person());
    const auto adventure = OpenToRead(options.file);
    if (!interchange::ParseProcessList(*adventure, selection.processes))
        throw UsageError("--processes takes ALL or numbers and ranges of numbers, such as 0,3-5");
    store::WriteFile(options.target, interchange::ExportTable(*adventure, selection));
    return kDone;
}

int Read(const BatchOptions& options) {
    Console console(std::cerr);
    authoring::Document document(options.file);
    interchange::JobStatus status(console.Observer());
    const auto result = authoring::ImportBatch(document, options.read, status);
    if (options.json) PrintAsJson(status.AllFaults());
    if (!result.done) {
        std::cerr << CountOf(status.AllFaults()) << " Nothing was changed.\n";
        return kFailed;
    }
    std::cerr << result.changed << (result.changed == 1 ? " record" : " records") << " changed.\n";
    return kDone;
}

int Batch(const BatchOptions& options) {
    if (options.read.empty() == options.target.empty())
        throw UsageError("name a file to write, or one to read with --read");
    return options.read.empty() ? Write(options) : Read(options);
}

}  // namespace

void AddBatchVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<BatchOptions>();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("target", options->target, "The batch file that is written; - is standard output");
    CLI::Option* read =
        verb.add_option("--read", options->read, "Read this batch file into the adventure instead");
    verb.add_option("--table", options->table, "Write this table only: Locations, Messages, ...")
        ->excludes(read);
    verb.add_option("--records", options->records, "Of that table only the records 1,3-5")->excludes(read);
    verb.add_option("--processes", options->processes,
                    "Which process tables: (M-N,ALL,comma separated list)")
        ->excludes(read);
    AddForceFlag(verb, options->force);
    AddJsonFlag(verb, options->json);
    verb.footer(
        "What is read is checked as the screens check it. With a fault nothing is changed and the status "
        "is "
        "1.");
    Runs(verb, chosen, options, Batch);
}

}  // namespace fabula::cli
