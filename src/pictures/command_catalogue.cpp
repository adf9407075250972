#include "pictures/command_catalogue.h"

#include <algorithm>
#include <utility>

#include "text/encoding/utf8.h"

namespace fabula::pictures {

void CommandCatalogue::Add(Command command) {
    command.typedParameters =
        std::clamp(command.typedParameters, 0, static_cast<int>(command.typedCodes.size()));
    command.drawnParameters =
        std::clamp(command.drawnParameters, 0, static_cast<int>(command.drawnCodes.size()));
    const std::string name = text::UpperCase(command.name);
    byName_.try_emplace(name, commands_.size());
    if (IsPictureCommand(command.number)) pictureByName_.try_emplace(name, commands_.size());
    commands_.push_back(std::move(command));
}

const Command* CommandCatalogue::Find(std::string_view name) const {
    const auto found = byName_.find(text::UpperCase(name));
    return found == byName_.end() ? nullptr : &commands_[found->second];
}

const Command* CommandCatalogue::FindPictureCommand(std::string_view name) const {
    const auto found = pictureByName_.find(text::UpperCase(name));
    return found == pictureByName_.end() ? nullptr : &commands_[found->second];
}

}  // namespace fabula::pictures
