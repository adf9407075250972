#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

// Tests and effects of the steps that add tables and fields. Which they are stands in
// store/file/file_forms.h by the step's number; what they look like, and the rows of `Tables` that tell of
// them, come from the default data.

/// Adds the step's fields, with a value in every record: a blank in texts, 0, off, no bytes.
void AddBlankFields(Work& work, const Step& step);
/// The same with the empty text in texts.
void AddEmptyFields(Work& work, const Step& step);
/// Adds the step's fields, null in every record.
void AddFieldsOfNulls(Work& work, const Step& step);
/// As AddBlankFields; records that the default data has too take their values from there.
void AddKnownFields(Work& work, const Step& step);
/// Fields of `Tables`: "N" where the default data has no record for the field that they tell of.
void AddFieldSettings(Work& work, const Step& step);
/// Fields of `Tables` that are empty there.
void AddFieldNames(Work& work, const Step& step);
/// Adds the step's tables, with the records of the default data.
void AddTables(Work& work, const Step& step);
/// Gives the fields of the table that the test names the types and sizes of the default data.
void TakeTypes(Work& work, const Step& step);

bool LacksProcDescNode(Work& work);
bool HasEntryWithoutNumbers(Work& work);
/// Of any table that the file has.
bool LacksComment(Work& work);

void AddProcDesc(Work& work, const Step& step);
void RecreateTree(Work& work, const Step& step);
void CompileEntries(Work& work, const Step& step);
void AddSearch(Work& work, const Step& step);
void AddSystem(Work& work, const Step& step);
void AddTableKey(Work& work, const Step& step);
void AddPictureTables(Work& work, const Step& step);
void NumberFont(Work& work, const Step& step);
void AddType(Work& work, const Step& step);
/// On in an adventure of type Marlo, which always uses them.
void AddCharSets(Work& work, const Step& step);
void AddSource(Work& work, const Step& step);
void AddFlgChg(Work& work, const Step& step);
/// A new name for the adventure, once and for all.
void AddIfid(Work& work, const Step& step);

}  // namespace fabula::upgrades
