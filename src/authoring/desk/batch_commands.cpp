#include "authoring/desk/batch_commands.h"

#include "authoring/batch/batch_import.h"
#include "interchange/batch/batch_writer.h"
#include "platform/file_question.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr std::string_view kExport = "Batch Export";
constexpr std::string_view kImport = "Batch Import";
constexpr std::string_view kAll = "ALL";

platform::FileQuestion BatchFileQuestion(const ScreenContext& context, std::string_view title) {
    return platform::QuestionFor(title, "Fabula Batch File", store::extension::kBatch,
                                 context.document.File().parent_path());
}

/// Asks which process tables; false when the author gave up or typed no list.
bool AskProcesses(ScreenContext& context, const TableView& view, std::string& processes) {
    const bool one = view.table == TableNum::ProcessTables && view.process < kOtherProcesses;
    const auto typed =
        context.dialogs.AskText({.prompt = "(M-N,ALL,comma separated list)",
                                 .title = "List of Processes to Export",
                                 .proposal = one ? std::to_string(view.process) : std::string(kAll)});
    if (!typed) return false;
    processes = *typed;
    if (interchange::ParseProcessList(context.document.Adventure(), processes)) return true;
    return Refuse(context.dialogs, "\"" + processes + "\" is no list of process tables.");
}

std::optional<interchange::BatchSelection> AskSelection(ScreenContext& context, const TableView& view,
                                                        std::optional<int> key) {
    const auto typed = context.dialogs.AskText({.prompt = "What is exported: Current, Selected or ALL",
                                                .title = std::string(kExport),
                                                .proposal = "Current"});
    if (!typed) return std::nullopt;
    const std::string_view scope = text::TrimBlanks(*typed);
    interchange::BatchSelection selection;
    if (text::EqualsNoCase(scope, "selected")) {
        if (!key) return Refuse(context.dialogs, "No record is selected."), std::nullopt;
        selection.table = view.table;
        selection.keys = {*key};
        return selection;
    }
    if (!text::EqualsNoCase(scope, kAll)) {
        if (!text::EqualsNoCase(scope, "current"))
            return Refuse(context.dialogs, "The scope is Current, Selected or ALL."), std::nullopt;
        selection.table = view.table;
    }
    const bool asks = !selection.table || *selection.table == TableNum::ProcessTables;
    if (asks && !AskProcesses(context, view, selection.processes)) return std::nullopt;
    return selection;
}

}  // namespace

std::optional<std::string> ExportBatchFile(ScreenContext& context, const TableView& view,
                                           std::optional<int> key) {
    const auto selection = AskSelection(context, view, key);
    if (!selection) return std::nullopt;
    platform::FileQuestion question = BatchFileQuestion(context, "Save as a Fabula Batch File");
    question.forWriting = true;
    const auto file = context.dialogs.ChooseFile(question);
    if (!file) return std::nullopt;
    const std::string text = interchange::ExportTable(context.document.Adventure(), *selection);
    store::CheckTarget(*file, store::Content::Text, store::extension::kBatch);
    store::WriteFile(*file, text);
    return "Written to " + file->filename().string() + ".";
}

std::optional<BatchFileRead> ImportBatchFile(ScreenContext& context) {
    const auto file = context.dialogs.ChooseFile(BatchFileQuestion(context, "Open a Fabula Batch File"));
    if (!file) return std::nullopt;
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    const BatchImportResult result = ImportBatch(context.document, *file, status);
    if (!result.done) {
        context.dialogs.Report(status.Text() + "Nothing was changed.", kImport);
        return std::nullopt;
    }
    if (result.mustExit)
        context.dialogs.Tell("Changing Character Sets requires exiting program", "Adventure Settings");
    const std::string records = result.changed == 1 ? " record" : " records";
    return BatchFileRead{
        std::to_string(result.changed) + records + " changed by " + file->filename().string() + ".",
        result.mustExit};
}

}  // namespace fabula::authoring
