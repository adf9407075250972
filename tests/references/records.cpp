#include "records.h"

namespace fabula::test {

using store::Adventure;
using store::Cursor;
using store::TableNum;

void PutEntry(Adventure& adventure, int canum, int process, int verb, int noun, std::string_view condActs,
              std::string_view numbers) {
    Cursor& entries = adventure.OpenTable(TableNum::ProcessTables, "def");
    entries.AddNew();
    entries.SetField("canum", std::int64_t{canum});
    entries.SetField("estype", std::int64_t{process});
    entries.SetField("w1", std::string("_"));
    entries.SetField("w2", std::string("_"));
    entries.SetField("w1num", std::int64_t{verb});
    entries.SetField("w2num", std::int64_t{noun});
    entries.SetField("condacts", std::string(condActs));
    entries.SetField("numericcondacts", std::string(numbers));
    entries.Update();
}

void PutLocation(Adventure& adventure, int number, std::string_view exits, std::string_view numbers) {
    Cursor& locations = adventure.OpenTable(TableNum::Locations, "def");
    locations.AddNew();
    locations.SetField("locnum", std::int64_t{number});
    locations.SetField("exits", std::string(exits));
    locations.SetField("numericexits", std::string(numbers));
    locations.SetField("locdesc", std::string("A place."));
    locations.Update();
}

void PutMessage(Adventure& adventure, int number, std::string_view text) {
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", std::int64_t{number});
    messages.SetField("msgmsg", std::string(text));
    messages.Update();
}

void PutObject(Adventure& adventure, int number, int place, int noun, int adjective, bool container) {
    Cursor& objects = adventure.OpenTable(TableNum::Objects, "def");
    objects.AddNew();
    objects.SetField("objnum", std::int64_t{number});
    objects.SetField("objloc", std::int64_t{place});
    objects.SetField("objnumnoun", std::int64_t{noun});
    objects.SetField("objnumadject", std::int64_t{adjective});
    objects.SetField("objattrn", std::int64_t{container ? 1 : 0});
    objects.SetField("objdesc", std::string("a thing"));
    objects.Update();
}

void PutPicture(Adventure& adventure, int number, std::string_view drawstring, int room) {
    Cursor& pictures = adventure.OpenTable(TableNum::Pictures, "def");
    pictures.AddNew();
    pictures.SetField("locnum", std::int64_t{number});
    pictures.SetField("loctype", std::string("Subroutine"));
    pictures.SetField("roompicnum", std::int64_t{room});
    pictures.SetField("drawstring", std::string(drawstring));
    pictures.Update();
}

void PutWord(Adventure& adventure, int index, std::string_view word, int number, int type) {
    Cursor& words = adventure.OpenTable(TableNum::Vocabulary, "def");
    words.AddNew();
    words.SetField("vocindex", std::int64_t{index});
    words.SetField("word", std::string(word));
    words.SetField("vocnum", std::int64_t{number});
    words.SetField("voctypen", std::int64_t{type});
    words.Update();
}

std::string Shown(const references::Use& use) {
    const auto kind = references::KindOf(use.table);
    std::string line(references::EntryOf(use.target.kind).name);
    line += " " + std::to_string(use.target.number) + ": ";
    if (use.table == TableNum::ProcessTables) {
        line += "entry";
    } else {
        line += use.table == TableNum::Adventure ? "settings" : references::EntryOf(*kind).name;
    }
    line +=
        " " + std::to_string(use.record) + " " + std::string(use.field) + " " + std::to_string(use.token);
    line += " " + std::string(references::NameOf(use.access)) + (use.possible ? "?" : "");
    return line;
}

std::string UsesOf(const references::Index& index, references::Kind kind, int number,
                   references::WordTypes types) {
    std::string lines;
    for (const references::Use& use : index.UsesOf({kind, number}, types)) {
        const std::string line = Shown(use);
        lines += line.substr(line.find(": ") + 2) + "\n";
    }
    return lines;
}

}  // namespace fabula::test
