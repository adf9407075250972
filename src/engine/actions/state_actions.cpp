#include "engine/actions/state_actions.h"

#include "engine/actions/location_actions.h"
#include "engine/actions/objects.h"
#include "engine/game.h"
#include "engine/saved_game.h"
#include "platform/error.h"
#include "store/extensions.h"
#include "text/markup.h"

namespace fabula::engine {

namespace {

constexpr std::string_view kErrorTitle = "Error";

constexpr std::string_view kSaveFile = "Fabula Save File";
constexpr std::string_view kScriptFile = "Fabula Script";

constexpr FileRequest kSaveRequest = {"Save as a Fabula Save File", kSaveFile, store::extension::kSavedGame,
                                      true};
constexpr FileRequest kLoadRequest = {"Open Existing Fabula Save File", kSaveFile,
                                      store::extension::kSavedGame, false};
constexpr FileRequest kWriteScriptRequest = {"Output SCRIPT Name", kScriptFile, store::extension::kScript,
                                             true};
constexpr FileRequest kReadScriptRequest = {"Input SCRIPT Name", kScriptFile, store::extension::kScript,
                                            false};

bool Fail(Game& game, std::string_view message) {
    game.host.teller.Tell(message, kErrorTitle);
    game.done = true;
    return true;
}

/// Flags that tell of this sitting, not of the game, and so outlive a return to an earlier state.
struct SittingFlags {
    explicit SittingFlags(const Game& game)
        : traceFile(game.Flag(flag::kTraceFile)), trace(game.Flag(flag::kTrace)) {}

    void PutBack(Game& game) const {
        game.SetFlag(flag::kTraceFile, traceFile);
        game.SetFlag(flag::kTrace, trace);
        game.SetFlag(flag::kScript, game.sitting.script.State());
        // The action that went back is still running: it acted, and it waits for nothing.
        game.SetFlag(flag::kActed, kSet);
        game.SetFlag(flag::kEnded, 0);
        game.SetFlag(flag::kAsking, 0);
        game.SetFlag(flag::kAnyKey, 0);
        game.loop.ForgetTurnAtInput();
    }

    int traceFile;
    int trace;
};

void ShowScriptState(Game& game) {
    game.SetFlag(flag::kScript, game.sitting.script.State());
    game.parts.status.ShowStatus(StatusField::Script, game.sitting.script.StatusText());
    game.parts.status.EnableNext(game.sitting.script.Loaded());
}

bool StartScript(Game& game, const std::filesystem::path& file) {
    try {
        game.sitting.script.StartWriting(file);
    } catch (const Error& error) {
        return Fail(game, error.what());
    }
    ShowScriptState(game);
    return true;
}

bool LoadScript(Game& game, const std::filesystem::path& file) {
    try {
        game.sitting.script.Load(file);
    } catch (const Error& error) {
        return Fail(game, error.what());
    }
    ShowScriptState(game);
    return true;
}

bool SaveInto(Game& game, const std::filesystem::path& file) {
    try {
        WriteSavedGame(file, SavedGameText(game.data, game.state));
    } catch (const Error& error) {
        return Fail(game, error.what());
    }
    Desc(game);
    game.runner.ClearStack("Save");
    return true;
}

bool LoadOutOf(Game& game, const std::filesystem::path& file) {
    try {
        if (!RestoreFrom(game, ReadSavedGame(file, game.state))) return Fail(game, kInvalidSave);
    } catch (const Error& error) {
        return Fail(game, error.what());
    }
    Desc(game);
    game.runner.ClearStack("Load");
    return true;
}

/// The object that was referred to last, and the message that is the prompt. Object 0 stands for none
/// before the first is referred to, also in a game without objects.
bool NameWhatIsThere(Game& game, std::span<const std::int16_t> flags) {
    const auto valueOf = [flags](FlagNumber flag) { return flags[static_cast<std::size_t>(flag.value)]; };
    const ObjectNumber object(valueOf(flag::kObject));
    if (!game.state.HasObject(object) && object.value != 0 && object < kNotFound) return false;
    const SystemMessageNumber prompt(valueOf(flag::kPrompt));
    return prompt.value == 0 || game.texts.HasSystemMessage(prompt);
}

struct NumberedWords {
    FlagNumber flag;
    int type;
};

/// The words that AGAIN tells, in their order.
constexpr NumberedWords kToldWords[] = {
    {flag::kAdverb, condacts::kAdverb},
    {flag::kVerb, condacts::kVerb},
    {flag::kAdjective, condacts::kAdjective},
    {flag::kNoun, condacts::kNoun},
    {flag::kPreposition, condacts::kPreposition},
    {flag::kAdjective2, condacts::kAdjective},
    {flag::kNoun2, condacts::kNoun},
};

constexpr FlagNumber kRepeatedFlags[] = {flag::kVerb,        flag::kNoun,        flag::kAdjective,
                                         flag::kAdverb,      flag::kPreposition, flag::kNoun2,
                                         flag::kAdjective2,  flag::kPronounNoun, flag::kPronounAdjective,
                                         flag::kObject,      flag::kObjectPlace, flag::kObjectWeight,
                                         flag::kIsContainer, flag::kIsWearable};

}  // namespace

const FileRequest& SavedGameRequest(bool forWriting) {
    return forWriting ? kSaveRequest : kLoadRequest;
}

bool Save(Game& game) {
    game.runner.AskForFile(kSaveRequest, SaveInto);
    return true;
}

bool RestoreFrom(Game& game, std::string_view savedGame) {
    const SittingFlags sitting(game);
    const auto fits = [&game](std::span<const std::int16_t> flags) { return NameWhatIsThere(game, flags); };
    if (!TakeSavedGame(savedGame, game.data, game.state, fits)) return false;
    sitting.PutBack(game);
    return true;
}

bool Load(Game& game) {
    game.runner.AskForFile(kLoadRequest, LoadOutOf);
    return true;
}

bool RamSave(Game& game) {
    game.state.RamSave();
    return true;
}

bool RamLoad(Game& game, FlagNumber lastFlag) {
    const SittingFlags sitting(game);
    game.state.RamLoad(lastFlag);
    sitting.PutBack(game);
    return true;
}

/// Score and the low turn count survive.
bool Oops(Game& game, int slot) {
    const SittingFlags sitting(game);
    const int score = game.Flag(flag::kScore);
    const int turn = game.Flag(flag::kTurnLow);
    game.state.TakeSlot(slot);
    game.SetFlag(flag::kScore, score);
    game.SetFlag(flag::kTurnLow, turn);
    sitting.PutBack(game);
    game.printer.PrintText("OOPS restored from previous turn " + std::to_string(slot), false, true);
    game.printer.EndLine();
    return true;
}

bool Again(Game& game) {
    const auto before = game.state.Flags(1);
    for (const FlagNumber flag : kRepeatedFlags)
        game.SetFlag(flag, before[static_cast<std::size_t>(flag.value)]);
    game.state.wordText = game.state.oldWordText;
    std::string told = "Re-executing ";
    for (const NumberedWords& kind : kToldWords) {
        if (game.Word(kind.flag) == kNoWordNumber) continue;
        const std::string word = game.texts.WordOf(game.Word(kind.flag), condacts::WordTypeName(kind.type));
        if (!word.empty()) told += text::EscapeMarkup(word) + " ";
    }
    game.printer.PrintText(told, false, true);
    game.printer.EndLine();
    return true;
}

bool ScriptAction(Game& game, int value) {
    Script& script = game.sitting.script;
    if (value == 0) {
        script.CloseAll();
        ShowScriptState(game);
    } else if (value == 1) {
        if (script.Writing()) return Fail(game, "Script is already on!");
        game.runner.AskForFile(kWriteScriptRequest, StartScript);
    } else {
        if (script.Loaded()) return Fail(game, "Script is already loaded!");
        game.runner.AskForFile(kReadScriptRequest, LoadScript);
    }
    return true;
}

}  // namespace fabula::engine
