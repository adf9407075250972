#include "interchange/pc/pc_connections.h"

#include "condacts/language/parser.h"
#include "condacts/places.h"

namespace fabula::interchange {
namespace {

void AppendExit(std::string& list, const std::string& token) {
    if (!list.empty()) list += ' ';
    list += token;
}

}  // namespace

void PcConnections::Begin(const std::vector<std::string_view>&) {
    Flush();
    if (locations_) return;
    locations_ = std::make_unique<KeyedTable>(job_.context.adventure, store::TableNum::Locations);
}

void PcConnections::Slash(std::string_view line) {
    Flush();
    const auto words = SplitSlashLine(line);
    location_ = RecordNumber(words);
    if (!location_ || !locations_->Has(*location_)) {
        location_.reset();
        job_.Fault(kBadLine);
        return;
    }
    job_.FaultBehind(words, 1);
    if (!seen_.insert(*location_).second)
        job_.Fault("ERROR: Location " + std::string(words[0]) + " stands here twice. These exits count.");
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
        job_.Fault(name + " is not a valid word", word);
        return;
    }
    const std::optional<int> number = condacts::NumberOfToken(destination);
    if (!number) {
        job_.Fault("TO location for " + name + "must be numeric", destination);
        return;
    }
    if (!locations_->Has(*number) || condacts::IsSpecialPlace(*number)) {
        job_.Fault(condacts::NoLocationMessage(destination, name), destination);
        return;
    }
    const condacts::PlaceNumber to(*number);
    if (LeadsElsewhere(found->number, to)) {
        job_.Fault("ERROR: " + name + " leads elsewhere already.", word);
    }
    job_.Note(store::TableNum::Locations, *location_, "exits", static_cast<std::size_t>(tokens_),
              job_.PlaceOf(word));
    job_.Note(store::TableNum::Locations, *location_, "exits", static_cast<std::size_t>(tokens_) + 1,
              job_.PlaceOf(destination));
    AppendExit(exits_, found->word);
    AppendExit(exits_, std::to_string(*number));
    AppendExit(numericExits_, std::to_string(found->number.value));
    AppendExit(numericExits_, std::to_string(*number));
    destinations_.emplace(found->number, to);
    tokens_ += 2;
}

bool PcConnections::LeadsElsewhere(condacts::WordNumber word, condacts::PlaceNumber destination) const {
    const auto found = destinations_.find(word);
    return found != destinations_.end() && found->second != destination;
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
    destinations_.clear();
    tokens_ = 0;
}

void PcConnections::Finish() {
    Flush();
    job_.Status("Loaded Vel Source Location Connections");
}

}  // namespace fabula::interchange
