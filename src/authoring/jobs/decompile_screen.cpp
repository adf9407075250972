#include "authoring/jobs/decompile_screen.h"

#include <system_error>

#include "authoring/document/screen_context.h"
#include "authoring/files/may_replace.h"
#include "interchange/shared/source_file.h"
#include "platform/error.h"
#include "store/file/file_copy.h"
#include "store/file/temporary_file.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

namespace fs = std::filesystem;

using platform::ProgramEnd;

constexpr std::string_view kDecompileSection = "Decompile";
constexpr std::string_view kFolder = "QPLoc";
/// A program has any name on this system, so that all files are shown first.
constexpr const char* kExecutables = "All files|*.*|Executables|*.exe";

struct DecompilerRow {
    std::string_view name;      ///< in messages, and the key of its path in the settings
    std::string_view program;   ///< what the name of its file holds
    std::string_view fileName;  ///< the same in the message
    std::string_view findTitle;
    std::string_view inputTitle;
    std::string_view inputFilter;
    std::string_view outputTitle;
    std::string_view outputFilter;
    std::string_view extension;
};

constexpr std::array<DecompilerRow, 2> kRows{{
    {"UnMarlo", "unMarlo", "UnMarlo", "Find UnMarlo Executable", "Open Existing Sinclair Marloed Game File",
     "SNA Files|*.sna", "Save as UnMarloed File ", "UnMarloed File (*.unq)|*.unq", "unq"},
    {"UnVel", "UnVels", "UnVels", "Find UnVel Executable", "Open Existing Sinclair Veled Game File",
     "All Snapshots|*.sna;*.z80;*.sp|*.SNA Files|*.sna|Z80 Files|*.z80|SP files|*.sp",
     "Save as UnVeled File", "UnVeled File (*.unp)|*.unp", "unp"},
}};

std::size_t PlaceOfDecompiler(Decompiler decompiler) {
    return static_cast<std::size_t>(decompiler);
}

const DecompilerRow& DecompilerRowOf(Decompiler decompiler) {
    return kRows[PlaceOfDecompiler(decompiler)];
}

/// Small and capital letters count alike, as the programs' own names are written either way.
bool HasItsName(const fs::path& file, const DecompilerRow& row) {
    return text::UpperCase(file.filename().string()).find(text::UpperCase(row.program)) !=
           std::string::npos;
}

bool IsFile(const fs::path& file) {
    std::error_code missing;  // what can't be looked at is no file that could be used
    return fs::is_regular_file(file, missing);
}

std::uintmax_t SizeOf(const fs::path& file) {
    std::error_code missing;  // a file that is not there holds nothing
    const std::uintmax_t size = fs::file_size(file, missing);
    return missing ? 0 : size;
}

/// A name with the blanks of its last part taken out; its folders keep theirs.
fs::path Collapsed(const fs::path& file) {
    const std::string name = file.filename().string();
    if (name.find(' ') == std::string::npos) return file;
    return file.parent_path() / text::StrEdit(name, "collapse");
}

std::string WithCommas(std::uintmax_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t at = digits.size(); at > 3;)
        digits.insert(at -= 3, ",");
    return digits;
}

}  // namespace

DecompileScreen::DecompileScreen(const DecompileHost& host) : host_(host) {
    for (std::size_t i = 0; i < kRows.size(); ++i)
        programs[i] = host_.settings.Get(kDecompileSection, kRows[i].name);
}

void DecompileScreen::FindProgram(Decompiler decompiler) {
    const DecompilerRow& row = DecompilerRowOf(decompiler);
    std::string& program = programs[PlaceOfDecompiler(decompiler)];
    const auto file = host_.dialogs.ChooseFile(
        {std::string(row.findTitle), kExecutables, "", false, fs::path(text::Trimmed(program))});
    if (!file) return;
    if (!HasItsName(*file, row)) {
        Refuse(host_.dialogs, "The executable does not have " + std::string(row.fileName) + " in it.");
        return;
    }
    program = file->string();
    host_.settings.Set(kDecompileSection, row.name, program);
    changed();
}

void DecompileScreen::ChooseInput() {
    if (!chosen) return void(Refuse(host_.dialogs, "No Program Selected"));
    const DecompilerRow& row = DecompilerRowOf(*chosen);
    const auto file = host_.dialogs.ChooseFile(
        {std::string(row.inputTitle), std::string(row.inputFilter), "", false, LastFolder()});
    if (!file) return;
    input = file->string();
    RememberFolder(*file);
    if (text::Trimmed(output).empty())
        output = fs::path(*file).replace_extension("." + std::string(row.extension)).string();
    changed();
}

void DecompileScreen::ChooseOutput() {
    if (!chosen) return void(Refuse(host_.dialogs, "No Program Selected"));
    const DecompilerRow& row = DecompilerRowOf(*chosen);
    const fs::path start = text::Trimmed(output).empty() ? LastFolder() : fs::path(text::Trimmed(output));
    const auto file = host_.dialogs.ChooseFile({std::string(row.outputTitle), std::string(row.outputFilter),
                                                std::string(row.extension), true, start});
    if (!file) return;
    output = file->string();
    agreed_ = *file;
    RememberFolder(*file);
    changed();
}

fs::path DecompileScreen::LastFolder() const {
    return host_.settings.Get(kDecompileSection, kFolder);
}

void DecompileScreen::RememberFolder(const fs::path& file) {
    host_.settings.Set(kDecompileSection, kFolder, file.parent_path().string());
}

bool DecompileScreen::Run() {
    if (running_ || !MayRun()) return false;
    const fs::path program = fs::absolute(text::Trimmed(programs[PlaceOfDecompiler(*chosen)]));
    host_.settings.Set(kDecompileSection, DecompilerRowOf(*chosen).name, program.string());
    programs[PlaceOfDecompiler(*chosen)] = program.string();
    input = fs::absolute(text::Trimmed(input)).string();
    output = Collapsed(fs::absolute(text::Trimmed(output))).string();
    for (const Step& step : Steps()) {
        if (store::IsSameFile(step.output, input))
            return Refuse(host_.dialogs, "The listing cannot be written over the game itself");
        if (step.output != agreed_ && !MayReplace(step.output, host_.dialogs)) return false;
    }
    return RunSteps();
}

/// The tests before a run, in their order.
bool DecompileScreen::MayRun() {
    if (!chosen) return Refuse(host_.dialogs, "No Program Selected");
    if (!HasProgram(*chosen)) return false;
    if (text::Trimmed(input).empty()) return Refuse(host_.dialogs, "No Input File Selected");
    if (text::Trimmed(output).empty()) return Refuse(host_.dialogs, "No Output File Selected");
    if (!IsFile(text::Trimmed(input)))
        return Refuse(host_.dialogs, "There is no file " + text::Trimmed(input));
    return true;
}

bool DecompileScreen::HasProgram(Decompiler decompiler) {
    const DecompilerRow& row = DecompilerRowOf(decompiler);
    const std::string name(row.name);
    const std::string program = text::Trimmed(programs[PlaceOfDecompiler(decompiler)]);
    if (program.empty()) return Refuse(host_.dialogs, "No Location for the " + name + " program");
    if (!IsFile(program))
        return Refuse(host_.dialogs, "The " + name + " program is no longer where you said it was.");
    if (!HasItsName(program, row))
        return Refuse(host_.dialogs,
                      "The executable does not have " + std::string(row.fileName) + " in it.");
    return true;
}

/// UnMarlo writes a listing to be read beside the one that is imported; UnVels writes one for both.
std::vector<DecompileScreen::Step> DecompileScreen::Steps() const {
    if (*chosen == Decompiler::UnVel) return {{{input, "-C", "-G"}, output}};
    std::vector<std::string> arguments = {input, "-O"};
    if (passL) arguments.emplace_back("-L");
    std::vector<Step> steps = {{arguments, output + ".lis"}, {arguments, output}};
    steps[0].arguments.emplace_back("-TZB");
    steps[1].arguments.emplace_back("-TZ");
    return steps;
}

bool DecompileScreen::RunSteps() {
    running_ = true;
    cancel_ = false;
    tooMuch_ = false;
    status_.clear();
    bool done = true;
    try {
        for (const Step& step : Steps()) {
            done = done && RunStep(step);
        }
    } catch (const Error& error) {
        done = false;
        Say(error.what());
        host_.dialogs.Tell(error.what(), "Error");
    } catch (...) {
        running_ = false;
        throw;
    }
    running_ = false;
    writing_.clear();
    if (done && !host_.programs.ShowText(output)) Say("The system has no program that shows the listing.");
    changed();
    return done;
}

bool DecompileScreen::RunStep(const Step& step) {
    store::CheckTarget(step.output, store::Content::Text);
    const store::TemporaryFile written(step.output);
    writing_ = step.output;
    bytes_ = 0;
    Say("Running " + std::string(DecompilerRowOf(*chosen).name) + " for " + step.output.string());
    const ProgramEnd end = host_.programs.Run(
        {programs[PlaceOfDecompiler(*chosen)], step.arguments, written.Path(), step.output.parent_path()},
        [&] { return GoesOn(written.Path()); });
    bytes_ = SizeOf(written.Path());
    return Keep(end, step, written.Path());
}

/// False when the program is to be ended: by the author, or because nothing could read what it writes.
bool DecompileScreen::GoesOn(const fs::path& written) {
    bytes_ = SizeOf(written);
    tooMuch_ = bytes_ > interchange::kLargestSource;
    changed();
    host_.events.Pump();
    return !cancel_ && !tooMuch_;
}

/// Takes what the program has written, and tells how it ended. A program that exits with another status
/// than 0 may have written all the same: what there is of a listing decides.
bool DecompileScreen::Keep(const ProgramEnd& end, const Step& step, const fs::path& written) {
    const std::string name(DecompilerRowOf(*chosen).name);
    if (!end.errors.empty()) {
        Say(name + " tells:");
        Say(text::SafeLines(text::StrEdit(end.errors, "trim")));
    }
    if (end.how == ProgramEnd::How::Stopped) {
        Say(tooMuch_ ? name + " was ended: it has written more than a listing can hold."
                     : std::string("Decompiling cancelled"));
        return false;
    }
    if (end.how == ProgramEnd::How::Crashed) {
        Say(name + " has crashed.");
        host_.dialogs.Tell(name + " has crashed.", "Error");
        return false;
    }
    if (end.status != 0) Say(name + " ended with status " + std::to_string(end.status) + ".");
    if (bytes_ > 0) {
        store::MoveIntoPlace(written, step.output);
        Say("Written: " + step.output.string() + ", " + WithCommas(bytes_) + " bytes");
        return true;
    }
    std::error_code missing;  // one that can't be looked at is as it was
    const std::string nothing = "there is no " + name + " output";
    const bool old = fs::exists(step.output, missing);
    const std::string told = old ? step.output.string() + " is as it was: " + nothing
                                 : step.output.string() + " does not exist and " + nothing;
    Say(told);
    return Refuse(host_.dialogs, told);
}

std::string DecompileScreen::ProgressLine() const {
    if (!running_ || writing_.empty()) return "";
    return writing_.filename().string() + ": " + WithCommas(bytes_) + " bytes";
}

void DecompileScreen::Say(std::string_view text) {
    status_ += text;
    status_ += '\n';
    changed();
}

}  // namespace fabula::authoring
