#include "interchange/pc_connections.h"

#include "condacts/parser.h"

namespace fabula::interchange {
namespace {

void Append(std::string& list, const std::string& token) {
    if (!list.empty()) list += ' ';
    list += token;
}

}  // namespace

void PcConnections::Begin(const std::vector<std::string_view>&) {
    Flush();
    if (locations_) return;
    locations_ = std::make_unique<KeyedTable>(job_.context.adventure, store::TableNum::Locations, "locnum");
}

void PcConnections::Slash(std::string_view line) {
    Flush();
    location_ = RecordNumber(SplitSlashLine(line));
    if (location_ && locations_->Has(*location_)) return;
    location_.reset();
    job_.Fault(kBadLine);
}

void PcConnections::Line(std::string_view line) {
    const auto tokens = SplitWords(line);
    if (!location_ || tokens.size() % 2 != 0) {
        job_.Fault(kBadLine);
        return;
    }
    for (std::size_t i = 0; i < tokens.size(); i += 2)
        AddExit(tokens[i], tokens[i + 1]);
}

void PcConnections::AddExit(std::string_view word, std::string_view destination) {
    const std::string name = job_.Word(word);
    const condacts::Word* found = job_.words.Find(name, condacts::IsMovementWord);
    if (found == nullptr) {
        job_.Fault(name + " is not a valid word");
        return;
    }
    const std::optional<int> number = condacts::WholeNumber(destination);
    if (!number) {
        job_.Fault("TO location for " + name + "must be numeric");
        return;
    }
    if (!locations_->Has(*number)) {
        job_.Fault("There is not a location with a number of " + std::string(destination) + " for " + name);
        return;
    }
    Append(exits_, found->word);
    Append(exits_, std::to_string(*number));
    Append(numericExits_, std::to_string(found->number));
    Append(numericExits_, std::to_string(*number));
    tokens_ += 2;
}

void PcConnections::Flush() {
    if (location_) {
        store::Cursor& record = locations_->GoTo(*location_);
        record.SetField("exits", exits_);
        record.SetField("numericexits", numericExits_);
        record.SetField("numexits", tokens_);
        locations_->Update();
    }
    location_.reset();
    exits_.clear();
    numericExits_.clear();
    tokens_ = 0;
}

void PcConnections::Finish() {
    Flush();
    job_.Status("Loaded Vel Source Location Connections");
}

}  // namespace fabula::interchange
