#include <algorithm>
#include <cstdint>

#include "authoring/entries/record_keys.h"
#include "authoring/fields/texts/text_field.h"
#include "authoring/screens/process_entry_screen.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "platform/error.h"
#include "store/adventure_kind.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

// Names in place of numbers: records that a line names, and messages that come with it.

namespace fabula::authoring {
namespace {

using condacts::MessageNumber;
using store::TableNum;

int HighestMessage(const store::Adventure& adventure) {
    return condacts::HighestRecord(adventure.Kind());
}

}  // namespace

/// The number of the message that would be added next, after those that will be; nullopt when there is no
/// room for it.
std::optional<MessageNumber> ProcessEntryScreen::NextMessage() const {
    int number = *NextKey(Adventure(), TableNum::Messages);
    const auto taken = [&] {
        return HasRecord(Adventure(), TableNum::Messages, number) ||
               std::ranges::any_of(newMessages_,
                                   [&](const ListItem& item) { return item.number == number; });
    };
    while (taken())
        ++number;
    return number > HighestMessage(Adventure()) ? std::nullopt : std::optional(MessageNumber(number));
}

std::optional<MessageNumber> ProcessEntryScreen::AddMessage(const std::string& text) {
    const std::optional<MessageNumber> number = NextMessage();
    if (!number) {
        RefuseField("line", "You have reached the maximum of " +
                                std::to_string(HighestMessage(Adventure())) + " messages");
        return std::nullopt;
    }
    if (!CheckText("line", text, true)) return std::nullopt;
    newMessages_.push_back({number->value, text});
    help_.AddMessage(*number, text);
    help_.OfferNewMessage(NextMessage());
    return number;
}

/// What a name that was typed out stands for; nullopt, and the author told, where that is not clear.
std::optional<std::string> ProcessEntryScreen::NumberOf(const TypedName& name) {
    const std::string text(text::TrimBlanks(name.text));
    const std::vector<Completion> meant = help_.MeantBy(line, name);
    const bool isMessage = name.quoted && help_.IsMessage(line, name);
    const bool called =
        !meant.empty() && text::EqualsNoCase(meant.front().shown, meant.front().insert + "  " + text);
    if (meant.size() == 1 && (called || !isMessage)) return meant.front().insert;
    if (called) return meant.front().insert;
    if (!isMessage || text.empty()) {
        RefuseField("line", meant.empty() ? "There is no " + text : "More than one is called " + text);
        return std::nullopt;
    }
    const std::string question =
        std::string("There is no message \u201C").append(text).append("\u201D. Add it?");
    if (!context_.dialogs.Confirm(question, "New message")) {
        KeepFocus("line");
        return std::nullopt;
    }
    const std::optional<MessageNumber> number = AddMessage(text);
    return number ? std::optional(std::to_string(number->value)) : std::nullopt;
}

bool ProcessEntryScreen::TakeNames() {
    while (const auto name = help_.FirstName(line)) {
        const std::optional<std::string> number = NumberOf(*name);
        if (!number) return false;
        line.replace(name->begin, name->end - name->begin, *number);
    }
    return true;
}

bool ProcessEntryScreen::Prints(MessageNumber message) const {
    const condacts::ParsedLine parsed = condacts::ParseLine(line, help_.Catalogue(), help_.Facts().dialect);
    return std::ranges::any_of(parsed.statements, [&](const condacts::Statement& statement) {
        for (std::size_t place = 0; place < statement.paramsGiven; ++place) {
            const bool names = statement.condAct->params[place].kind == condacts::ParamKind::Message;
            if (names && condacts::NumberOfToken(parsed.Param(statement, place)) == message.value)
                return true;
        }
        return false;
    });
}

void ProcessEntryScreen::StoreNewMessages() {
    for (const ListItem& message : newMessages_) {
        if (!Prints(MessageNumber(message.number))) continue;
        store::Cursor& record = Adventure().OpenTable(TableNum::Free22, "* from messages",
                                                      "msgnum=" + std::to_string(message.number));
        if (!record.Eof()) {
            throw Error("Could not add message " + std::to_string(message.number) +
                        ": another program has added it meanwhile.");
        }
        record.AddNew();
        record.SetField("msgnum", std::int64_t{message.number});
        record.SetField("msgmsg", ToStored(message.text));
        record.Update();
    }
}

std::optional<NamedRecord> ProcessEntryScreen::NamedInLine(std::size_t cursor) const {
    return help_.Named(Adventure(), line, cursor);
}

std::optional<NamedRecord> ProcessEntryScreen::NamedByParameter(std::size_t place) const {
    const std::string upToFirst = condAct.text + " " + parameter1.text;
    if (place == 0) return help_.Named(Adventure(), upToFirst, upToFirst.size());
    const std::string whole = upToFirst + " " + parameter2.text;
    return help_.Named(Adventure(), whole, whole.size());
}

std::optional<NamedRecord> ProcessEntryScreen::NamedByWord(const DropList& list) const {
    const ListItem* chosen = list.Chosen();
    if (chosen == nullptr) return std::nullopt;
    return NamedRecord{TableNum::Vocabulary, chosen->number};
}

}  // namespace fabula::authoring
