#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

// Corrections of the catalogues and of the program's own tables. What is right stands in the default data.

bool HasWrongPuto(Work& work);
void CorrectPuto(Work& work, const Step& step);
bool HasWrongCharSet(Work& work);
void CorrectCharSet(Work& work, const Step& step);
bool HasWrongPaper(Work& work);
void CorrectPaper(Work& work, const Step& step);

bool LacksFntSize(Work& work);
void AddFntSize(Work& work, const Step& step);
bool LacksBright(Work& work);
void AddBright(Work& work, const Step& step);
bool LacksOver(Work& work);
void AddOver(Work& work, const Step& step);
bool LacksAutoInc(Work& work);
void AddAutoInc(Work& work, const Step& step);
bool LacksMesF(Work& work);
void AddMesF(Work& work, const Step& step);
bool HasBold(Work& work);
void RemoveBold(Work& work, const Step& step);

bool HasDoubleFields(Work& work);
/// Of two rows for one field the one with the higher key goes.
void DropDoubleFields(Work& work, const Step& step);
bool HasWrongPackageName(Work& work);
void CorrectPackageName(Work& work, const Step& step);
bool HasWrongProcDescName(Work& work);
void CorrectProcDescName(Work& work, const Step& step);

bool LacksCharactersNode(Work& work);
/// Every node that the tree of the default data has and this one lacks.
void AddMissingNodes(Work& work, const Step& step);
bool LacksSpecialSizes(Work& work);
void AddSpecialSizes(Work& work, const Step& step);

bool HasDoubleKeys(Work& work);
/// Reports one line for each key that several records have.
void ListDoubleKeys(Work& work, const Step& step);

}  // namespace fabula::upgrades
