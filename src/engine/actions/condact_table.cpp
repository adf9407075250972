#include "engine/actions/condact_table.h"

#include "engine/actions/asking.h"
#include "engine/actions/conditions.h"
#include "engine/actions/flag_actions.h"
#include "engine/actions/flow_actions.h"
#include "engine/actions/location_actions.h"
#include "engine/actions/object_actions.h"
#include "engine/actions/print_actions.h"
#include "engine/actions/sound_actions.h"
#include "engine/actions/speech.h"
#include "engine/actions/state_actions.h"

namespace fabula::engine {

namespace {

// A routine takes the numbers of an entry as what they name.

template <auto Run>
constexpr Routine Adapt(bool (*)(Game&)) {
    return [](Game& game, int, int) { return Run(game); };
}

template <auto Run, class Kind>
constexpr Routine Adapt(bool (*)(Game&, Kind)) {
    return [](Game& game, int p1, int) { return Run(game, Kind(p1)); };
}

template <auto Run, class Kind1, class Kind2>
constexpr Routine Adapt(bool (*)(Game&, Kind1, Kind2)) {
    return [](Game& game, int p1, int p2) { return Run(game, Kind1(p1), Kind2(p2)); };
}

template <auto Run>
constexpr Routine kRun = Adapt<Run>(Run);

constexpr CondActRoutine Asking(int number, std::string_view name, std::string_view trace, Routine run) {
    return {.number = number, .name = name, .trace = trace, .run = run, .asks = true};
}

constexpr CondActRoutine OnWord(int number, std::string_view name, std::string_view trace, Routine run,
                                std::string_view flagText, FlagNumber flag) {
    return {.number = number,
            .name = name,
            .trace = trace,
            .run = run,
            .traceFlagText = flagText,
            .traceFlag = flag};
}

constexpr CondActRoutine kCondActs[] = {
    {101, "AT", "at (", kRun<At>},
    {102, "NOTAT", "notat(", kRun<NotAt>},
    {103, "ATGT", "atgt(", kRun<AtGt>},
    {104, "ATLT", "atlt(", kRun<AtLt>},
    {105, "PRESENT", "present(", kRun<Present>},
    {106, "ABSENT", "absent(", kRun<Absent>},
    {107, "WORN", "worn(", kRun<Worn>},
    {108, "NOTWORN", "notworn(", kRun<NotWorn>},
    {109, "CARRIED", "carried(", kRun<Carried>},
    {110, "NOTCARR", "notcarr(", kRun<NotCarr>},
    {111, "ISAT", "isat(", kRun<IsAt>},
    {112, "ISNOTAT", "isnotat(", kRun<IsNotAt>},
    {113, "ZERO", "zero(", kRun<Zero>},
    {114, "NOTZERO", "notzero(", kRun<NotZero>},
    {115, "EQ", "eq(", kRun<Eq>},
    {116, "NOTEQ", "noteq(", kRun<NotEq>},
    {117, "GT", "gt(", kRun<Gt>},
    {118, "LT", "lt(", kRun<Lt>},
    {119, "SAME", "same(", kRun<Same>},
    {120, "NOTSAME", "notsame(", kRun<NotSame>},
    OnWord(121, "ADJECT1", "adject1(", kRun<Adject1>, ") 35:", flag::kAdjective),
    OnWord(122, "ADVERB", "adverb(", kRun<Adverb>, ") 36:", flag::kAdverb),
    OnWord(123, "PREP", "prep(", kRun<Prep>, ") 43", flag::kPreposition),
    OnWord(124, "NOUN2", "noun2(", kRun<Noun2>, ") 44:", flag::kNoun2),
    OnWord(125, "ADJECT2", "adject2(", kRun<Adject2>, ") 45:", flag::kAdjective2),
    {126, "CHANCE", "chance(", kRun<Chance>},
    {127, "TIMEOUT", "timeout(", kRun<TimeOut>},
    Asking(128, "YESNO", "Yesno(", kRun<YesNo>),
    Asking(150, "QUIT", "quit(", kRun<Quit>),

    {201, "GET", "get", kRun<Get>},
    {202, "DROP", "drop", kRun<Drop>},
    {203, "WEAR", "wear", kRun<Wear>},
    {204, "REMOVE", "remove", kRun<Remove>},
    {205, "CREATE", "create", kRun<Create>},
    {206, "DESTROY", "destroy", kRun<Destroy>},
    {207, "SWAP", "swap", kRun<Swap>},
    {208, "PLACE", "place", kRun<Place>},
    {209, "PUTO", "puto", kRun<PutO>},
    {210, "PUTIN", "putin", kRun<PutIn>},
    {211, "TAKEOUT", "takeout", kRun<TakeOut>},
    {212, "DROPALL", "dropall", kRun<DropAll>},
    {213, "AUTOG", "autog", kRun<AutoG>},
    {214, "AUTOD", "autod", kRun<AutoD>},
    {215, "AUTOW", "autow", kRun<AutoW>},
    {216, "AUTOR", "autor", kRun<AutoR>},
    {217, "AUTOP", "autop", kRun<AutoP>},
    {218, "AUTOT", "autot", kRun<AutoT>},
    {219, "COPYOO", "copyoo", kRun<CopyOO>},
    {220, "COPYOF", "copyof", kRun<CopyOF>},
    {221, "COPYFO", "copyfo", kRun<CopyFO>},
    {222, "WHATO", "whato", kRun<WhatO>},
    {223, "WEIGH", "weigh", kRun<Weigh>},
    {224, "SET", "set", kRun<Set>},
    {225, "CLEAR", "clear", kRun<Clear>},
    {226, "PLUS", "plus", kRun<Plus>},
    {227, "MINUS", "minus", kRun<Minus>},
    {228, "LET", "let", kRun<Let>},
    {229, "ADD", "add", kRun<Add>},
    {230, "SUB", "sub", kRun<Sub>},
    {231, "COPYFF", "copyff", kRun<CopyFF>},
    {232, "RANDOM", "random", kRun<Random>},
    {233, "MOVE", "move", kRun<Move>},
    {234, "GOTO", "goto", kRun<GoTo>},
    {235, "WEIGHT", "weight", kRun<Weight>},
    {236, "ABILITY", "ability", kRun<Ability>},
    {237, "MODE", "mode", kRun<Mode>},
    {238, "LINE", "line", kRun<Nothing>},
    {239, "GRAPHIC", "graphic", kRun<Graphic>},
    {240, "PROMPT", "prompt", kRun<Prompt>},
    {241, "INPUT", "input", kRun<Nothing>},
    {242, "TIME", "time", kRun<Time>},
    {243, "PROTECT", "protect", kRun<Nothing>},
    {244, "PRINT", "print", kRun<Print>},
    {245, "TURNS", "turns", kRun<Turns>},
    {246, "SCORE", "score", kRun<Score>},
    {247, "CLS", "cls", kRun<Cls>},
    {248, "NEWLINE", "newline", kRun<NewLine>},
    {249, "MES", "mes", kRun<Mes>},
    {250, "MESSAGE", "message", kRun<Message>},
    {251, "SYSMESS", "sysmess", kRun<SysMess>},
    {252, "PICTURE", "picture", kRun<PictureAction>},
    {253, "PAPER", "paper", kRun<Paper>},
    {254, "INK", "ink", kRun<Ink>},
    {255, "BORDER", "border", kRun<Nothing>},
    {256, "CHARSET", "charset", kRun<CharSet>},
    {257, "SAVEAT", "saveat", kRun<Nothing>},
    {258, "BACKAT", "backat", kRun<Nothing>},
    {259, "PRINTAT", "printat", kRun<Nothing>},
    {260, "LISTOBJ", "listobj", kRun<ListObj>},
    {261, "LISTAT", "listat", kRun<ListAt>},
    {262, "INVEN", "inven", kRun<Inven>},
    {263, "DESC", "desc", kRun<Desc>},
    Asking(264, "END", "end", kRun<End>),
    {265, "DONE", "done", kRun<Done>},
    {266, "NOTDONE", "notdone", kRun<NotDone>},
    {267, "OK", "ok", kRun<Ok>},
    {268, "SAVE", "save", kRun<Save>},
    {269, "LOAD", "load", kRun<Load>},
    {270, "RAMSAVE", "ramsave", kRun<RamSave>},
    {271, "RAMLOAD", "ramload", kRun<RamLoad>},
    Asking(272, "ANYKEY", "anykey", kRun<AnyKey>),
    {273, "PAUSE", "pause", kRun<Pause>},
    {274, "PARSE", "parse", kRun<Parse>},
    {275, "NEWTEXT", "newtext", kRun<NewText>},
    {276, "BEEP", "beep", kRun<Beep>},
    {277, "PROCESS", "process", kRun<Process>},
    {278, "DOALL", "doall", kRun<DoAll>},
    {279, "RESET", "reset", kRun<Reset>},
    {280, "EXTERN", "extern", kRun<Nothing>},
    {281, "SCRIPT", "script", kRun<ScriptAction>},
    {282, "SOUND", "sound", kRun<Sound>},
    {283, "FNTSIZE", "fntsize", kRun<FntSize>},
    {284, "BRIGHT", "bright", kRun<Bright>},
    {285, "FLASH", "flash", kRun<Flash>},
    {286, "INVERSE", "inverse", kRun<Inverse>},
    {287, "OVER", "over", kRun<Over>},
    {288, "AGAIN", "again", kRun<Again>},
    {289, "OOPS", "oops", kRun<Oops>},
    {290, "AUTODEC", "autodec", kRun<AutoDec>},
    {291, "AUTOINC", "autoinc", kRun<AutoInc>},
    {292, "MESF", "mesf", kRun<MesF>},
    {293, "MESSGF", "messgf", kRun<MessgF>},
    {294, "SYSMSGF", "sysmsgf", kRun<SysMsgF>},
};

}  // namespace

std::span<const CondActRoutine> AllCondActs() {
    return kCondActs;
}

}  // namespace fabula::engine
