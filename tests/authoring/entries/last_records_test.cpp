#include "authoring/entries/last_records.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

void Add(store::Adventure& adventure, TableNum table, const char* key, std::int64_t number) {
    store::Cursor& records = adventure.OpenTable(table, "def");
    records.AddNew();
    records.SetField(key, number);
    records.Update();
}

TEST(ListLastRecords, TellsTheHighestKeyOfEachTable) {
    const test::OpenedAdventure adventure(store::AdventureKind::Fabula);
    store::Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("advname", std::string("The Old Mill"));
    settings.Update();
    Add(*adventure, TableNum::Locations, "locnum", 12);
    Add(*adventure, TableNum::Locations, "locnum", 7);
    Add(*adventure, TableNum::ProcessTables, "canum", 31);
    adventure->DeleteFrom(TableNum::Messages);
    adventure->DeleteFrom(TableNum::Objects);
    adventure->DeleteFrom(TableNum::Vocabulary);
    for (const int type : {0, 2, 7}) {
        store::Cursor& words = adventure->OpenTable(TableNum::Vocabulary, "def");
        words.AddNew();
        words.SetField("vocindex", std::int64_t{10 + type});
        words.SetField("vocnum", std::int64_t{50 + type});
        words.SetField("word", std::string("WORD"));
        words.SetField("voctypen", std::int64_t{type});
        words.Update();
    }
    EXPECT_EQ(ListLastRecords(*adventure),
              "Listing of Last Record Key for Database Tables of Adventure: The Old Mill\n"
              "\n"
              "Locations: last locnum 12\n"
              "Messages: no records\n"
              "Objects: no records\n"
              "ProcessTables: last canum 31\n"
              "SystemMessages: last smsgnum 53\n"
              "Vocabulary:\n"
              "    Last Verb: vocindex 10, WORD 50\n"
              "    Missing Adverb\n"
              "    Last Noun: vocindex 12, WORD 52\n"
              "    Missing Adjective\n"
              "    Missing Preposition\n"
              "    Missing Conjugation\n"
              "    Missing Pronoun\n"
              "    Last RESERVED: vocindex 17, WORD 57\n"
              "Flags: last flgnum 1024\n"
              "ProcDesc: last pmsgnum 2\n"
              "Pictures: no records\n");
}

}  // namespace
}  // namespace fabula::authoring
