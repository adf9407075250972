#include "upgrades/descriptions.h"

namespace fabula::upgrades {
namespace {

using store::TableNum;

constexpr Description kDescriptions[] = {
    {TableNum::Locations, "locnum", "locdesc", "Location", true},
    {TableNum::Locations, "locnum", "locshortdesc", "Location", true},
    {TableNum::Messages, "msgnum", "msgmsg", "Message", true},
    {TableNum::Objects, "objnum", "objdesc", "Object", true},
    {TableNum::Adventure, "", "advcontactinfo", "Adventure", false},
    {TableNum::Adventure, "", "advdesc", "Adventure", false},
    {TableNum::Adventure, "", "author", "Adventure", false},
    {TableNum::SystemMessages, "smsgnum", "smsgmsg", "System Message", true},
    {TableNum::Flags, "flgnum", "flgdesc", "Flag Description", false},
    {TableNum::ProcDesc, "pmsgnum", "pmsgmsg", "Process Description", false},
};

}  // namespace

std::span<const Description> Descriptions() {
    return kDescriptions;
}

std::string NameOfField(const Description& description, std::int64_t key) {
    std::string name(description.name);
    if (!description.key.empty()) name += " " + std::to_string(key);
    return name + " field " + std::string(description.field);
}

}  // namespace fabula::upgrades
