// The steps that mend records. They run behind those that add fields, each on a test of its own.

#include "upgrades/catalogue_corrections.h"
#include "upgrades/flag_corrections.h"
#include "upgrades/refresh.h"
#include "upgrades/settings_corrections.h"
#include "upgrades/step.h"
#include "upgrades/text_corrections.h"

namespace fabula::upgrades {
namespace {

// The numbers that are left out: 7 let texts be empty, which they always may be here; 9, 10, 12 and 13 do
// nothing any more.
constexpr Step kCorrections[] = {
    {-1, "1 - Invalid Parameter 1 for PUTO", {}, HasWrongPuto, CorrectPuto},
    {-2, "2 - Change of 'any key' to 'ENTER'", {}, SaysAnyKey, SayEnter},
    {-3, "3 - Add of Flags 256 to 275", {}, LacksFlag275, AddOldFlags},
    {-4, "4 - Duplicate FieldNames in Tables", {}, HasDoubleFields, DropDoubleFields},
    {-5, "5 - Invalid TableName for Table 14", {}, HasWrongPackageName, CorrectPackageName},
    {-6, "6 - Invalid TableName for Table 15", {}, HasWrongProcDescName, CorrectProcDescName},
    {-8, "8 - Invalid Location Words in CondActs", {}, HasLocationWords, NumberLocationWords},
    {-11, "11 - Invalid Line delimiters in Descriptions", {}, HasForeignLineEnds, NormaliseLineEnds},
    {-14,
     "14 - Colors, Font Name or Size not correct for new default fonts & colors",
     {},
     HasOldLook,
     RenewLook},
    {-15, "15 - Action FNTSIZE needs added", {}, LacksFntSize, AddFntSize},
    {-16, "16 - Action CHARSET needs parameter 1 maxval changed", {}, HasWrongCharSet, CorrectCharSet},
    {-17, "17 - Remove the BOLD, ITALIC, UNDLINE, & FONT Actions", {}, HasBold, RemoveBold},
    {-18, "18 - Change of strOldChr to strCurChr", {}, HasOldSeparators, RenewSeparators},
    {-19, "19 - Action BRIGHT needs added", {}, LacksBright, AddBright},
    {-20, "20 - Change in MaxVal1 for PAPER", {}, HasWrongPaper, CorrectPaper},
    {-21, "21 - Check for Invalid descriptions", {}, HasOtherExportVersion, CheckDescriptions, true},
    {-22,
     "22 - Add of Characters & Pictures option to DataBases Table",
     {},
     LacksCharactersNode,
     AddMissingNodes},
    {-23, "23 - Add of FLASH, INVERSE, & OVER Actions", {}, LacksOver, AddOver},
    {-24, "24 - Add of Special Font Sizes", {}, LacksSpecialSizes, AddSpecialSizes},
    {-25, "25 - Setting up Adventype & Graphics", {}, HasUnknownType, SetType},
    {-26, "26 - Duplicate keys in datasets", {}, HasDoubleKeys, ListDoubleKeys, true},
    {-27,
     "27 - Moved flags 256-275 to 1000-1019 and added more flags up to 1024",
     {},
     HasSystemFlag260,
     MoveFlags},
    {-28,
     "28 - Corrected flags 28 & 255 If they were 'System'",
     {},
     HasSystemFlag28Or255,
     FreeFlags28And255},
    {-29, "29 - Check CondActs for flags 256-275", {}, IsFlagMoveOpen, CheckFlagUses, true},
    {-30, "30 - Add of actions AGAIN, OOPS, AUTODEC, & AUTOINC", {}, LacksAutoInc, AddAutoInc},
    {-31, "31 - Add of actions MESF, MESSGF, & SYSMSGF", {}, LacksMesF, AddMesF},
    {-50,
     "50 - .Ini file changed(Table attributes or CA SubNames or Pages)",
     {},
     HasOtherDate,
     RefreshCatalogues},
};

}  // namespace

Group Corrections() {
    return kCorrections;
}

}  // namespace fabula::upgrades
