#include "engine/condact_table.h"

#include "engine/asking.h"
#include "engine/conditions.h"
#include "engine/flag_actions.h"
#include "engine/flags.h"
#include "engine/flow_actions.h"
#include "engine/location_actions.h"
#include "engine/object_actions.h"
#include "engine/print_actions.h"
#include "engine/sound_actions.h"
#include "engine/speech.h"
#include "engine/state_actions.h"

namespace fabula::engine {

namespace {

constexpr CondActRoutine Asking(int number, std::string_view name, std::string_view trace, Routine run) {
    return {.number = number, .name = name, .trace = trace, .run = run, .asks = true};
}

constexpr CondActRoutine OnWord(int number, std::string_view name, std::string_view trace, Routine run,
                                std::string_view flagText, int flag) {
    return {.number = number,
            .name = name,
            .trace = trace,
            .run = run,
            .traceFlagText = flagText,
            .traceFlag = flag};
}

constexpr CondActRoutine kCondActs[] = {
    {101, "AT", "at (", At},
    {102, "NOTAT", "notat(", NotAt},
    {103, "ATGT", "atgt(", AtGt},
    {104, "ATLT", "atlt(", AtLt},
    {105, "PRESENT", "present(", Present},
    {106, "ABSENT", "absent(", Absent},
    {107, "WORN", "worn(", Worn},
    {108, "NOTWORN", "notworn(", NotWorn},
    {109, "CARRIED", "carried(", Carried},
    {110, "NOTCARR", "notcarr(", NotCarr},
    {111, "ISAT", "isat(", IsAt},
    {112, "ISNOTAT", "isnotat(", IsNotAt},
    {113, "ZERO", "zero(", Zero},
    {114, "NOTZERO", "notzero(", NotZero},
    {115, "EQ", "eq(", Eq},
    {116, "NOTEQ", "noteq(", NotEq},
    {117, "GT", "gt(", Gt},
    {118, "LT", "lt(", Lt},
    {119, "SAME", "same(", Same},
    {120, "NOTSAME", "notsame(", NotSame},
    OnWord(121, "ADJECT1", "adject1(", Adject1, ") 35:", flag::kAdjective),
    OnWord(122, "ADVERB", "adverb(", Adverb, ") 36:", flag::kAdverb),
    OnWord(123, "PREP", "prep(", Prep, ") 43", flag::kPreposition),
    OnWord(124, "NOUN2", "noun2(", Noun2, ") 44:", flag::kNoun2),
    OnWord(125, "ADJECT2", "adject2(", Adject2, ") 45:", flag::kAdjective2),
    {126, "CHANCE", "chance(", Chance},
    {127, "TIMEOUT", "timeout(", TimeOut},
    Asking(128, "YESNO", "Yesno(", YesNo),
    Asking(150, "QUIT", "quit(", Quit),

    {201, "GET", "get", Get},
    {202, "DROP", "drop", Drop},
    {203, "WEAR", "wear", Wear},
    {204, "REMOVE", "remove", Remove},
    {205, "CREATE", "create", Create},
    {206, "DESTROY", "destroy", Destroy},
    {207, "SWAP", "swap", Swap},
    {208, "PLACE", "place", Place},
    {209, "PUTO", "puto", PutO},
    {210, "PUTIN", "putin", PutIn},
    {211, "TAKEOUT", "takeout", TakeOut},
    {212, "DROPALL", "dropall", DropAll},
    {213, "AUTOG", "autog", AutoG},
    {214, "AUTOD", "autod", AutoD},
    {215, "AUTOW", "autow", AutoW},
    {216, "AUTOR", "autor", AutoR},
    {217, "AUTOP", "autop", AutoP},
    {218, "AUTOT", "autot", AutoT},
    {219, "COPYOO", "copyoo", CopyOO},
    {220, "COPYOF", "copyof", CopyOF},
    {221, "COPYFO", "copyfo", CopyFO},
    {222, "WHATO", "whato", WhatO},
    {223, "WEIGH", "weigh", Weigh},
    {224, "SET", "set", Set},
    {225, "CLEAR", "clear", Clear},
    {226, "PLUS", "plus", Plus},
    {227, "MINUS", "minus", Minus},
    {228, "LET", "let", Let},
    {229, "ADD", "add", Add},
    {230, "SUB", "sub", Sub},
    {231, "COPYFF", "copyff", CopyFF},
    {232, "RANDOM", "random", Random},
    {233, "MOVE", "move", Move},
    {234, "GOTO", "goto", GoTo},
    {235, "WEIGHT", "weight", Weight},
    {236, "ABILITY", "ability", Ability},
    {237, "MODE", "mode", Mode},
    {238, "LINE", "line", Nothing},
    {239, "GRAPHIC", "graphic", Graphic},
    {240, "PROMPT", "prompt", Prompt},
    {241, "INPUT", "input", Nothing},
    {242, "TIME", "time", Time},
    {243, "PROTECT", "protect", Nothing},
    {244, "PRINT", "print", Print},
    {245, "TURNS", "turns", Turns},
    {246, "SCORE", "score", Score},
    {247, "CLS", "cls", Cls},
    {248, "NEWLINE", "newline", NewLine},
    {249, "MES", "mes", Mes},
    {250, "MESSAGE", "message", Message},
    {251, "SYSMESS", "sysmess", SysMess},
    {252, "PICTURE", "picture", PictureAction},
    {253, "PAPER", "paper", Paper},
    {254, "INK", "ink", Ink},
    {255, "BORDER", "border", Nothing},
    {256, "CHARSET", "charset", CharSet},
    {257, "SAVEAT", "saveat", Nothing},
    {258, "BACKAT", "backat", Nothing},
    {259, "PRINTAT", "printat", Nothing},
    {260, "LISTOBJ", "listobj", ListObj},
    {261, "LISTAT", "listat", ListAt},
    {262, "INVEN", "inven", Inven},
    {263, "DESC", "desc", Desc},
    Asking(264, "END", "end", End),
    {265, "DONE", "done", Done},
    {266, "NOTDONE", "notdone", NotDone},
    {267, "OK", "ok", Ok},
    {268, "SAVE", "save", Save},
    {269, "LOAD", "load", Load},
    {270, "RAMSAVE", "ramsave", RamSave},
    {271, "RAMLOAD", "ramload", RamLoad},
    Asking(272, "ANYKEY", "anykey", AnyKey),
    {273, "PAUSE", "pause", Pause},
    {274, "PARSE", "parse", Parse},
    {275, "NEWTEXT", "newtext", NewText},
    {276, "BEEP", "beep", Beep},
    {277, "PROCESS", "process", Process},
    {278, "DOALL", "doall", DoAll},
    {279, "RESET", "reset", Reset},
    {280, "EXTERN", "extern", Nothing},
    {281, "SCRIPT", "script", ScriptAction},
    {282, "SOUND", "sound", Sound},
    {283, "FNTSIZE", "fntsize", FntSize},
    {284, "BRIGHT", "bright", Bright},
    {285, "FLASH", "flash", Flash},
    {286, "INVERSE", "inverse", Inverse},
    {287, "OVER", "over", Over},
    {288, "AGAIN", "again", Again},
    {289, "OOPS", "oops", Oops},
    {290, "AUTODEC", "autodec", AutoDec},
    {291, "AUTOINC", "autoinc", AutoInc},
    {292, "MESF", "mesf", MesF},
    {293, "MESSGF", "messgf", MessgF},
    {294, "SYSMSGF", "sysmsgf", SysMsgF},
};

}  // namespace

std::span<const CondActRoutine> AllCondActs() {
    return kCondActs;
}

}  // namespace fabula::engine
