#include "interchange/listing/pictures_of_listing.h"

#include "pictures/book_loader.h"
#include "text/str_edit.h"

namespace fabula::interchange {

using store::TableNum;

ListedPictures::ListedPictures(ListingJob& job, const char* loaded, bool turnsOn)
    : job_(job),
      loaded_(loaded),
      turnsOn_(turnsOn),
      commands_(pictures::LoadPictureBook(job.Adventure()).commands) {}

void ListedPictures::Line(std::string_view line) {
    if (goesOn_) goesOn_ = TakeLine(line);
}

void ListedPictures::Finish() {
    EndPicture();
    Store();
    if (turnsOn_ && !read_.empty()) SetSetting(job_.Adventure(), "graphics", 1);
    job_.Status(loaded_);
}

bool ListedPictures::TakeLine(std::string_view line) {
    if (const auto head = PictureHead::Read(line)) {
        EndPicture();
        if (!head->number) {
            job_.Fault(kBadLine);
            return true;
        }
        if (!head->ink || !head->paper) {
            job_.Status(NoColoursMessage(*head->number));
            job_.Status("No further graphics records created");
            return false;
        }
        picture_ = ListedPicture{*head->number, head->isSubroutine, *head->ink, *head->paper, ""};
        return true;
    }
    if (!picture_) return true;
    const ListedCommand command = TranslateCommand(line, commands_);
    if (!command.fault.empty()) job_.Fault(command.fault);
    if (!command.words.empty()) picture_->drawstring += command.words + " ";
    if (command.isEnd) EndPicture();
    return true;
}

void ListedPictures::EndPicture() {
    if (picture_) read_[picture_->number] = std::move(*picture_);
    picture_.reset();
}

void ListedPictures::Store() {
    std::set<std::int64_t> locations;
    store::PreparedQuery rows = job_.Adventure().Prepare(TableNum::Locations, "locnum", "");
    for (bool more = rows.First({}); more; more = rows.Next())
        locations.insert(rows.Number(0));
    rows.Reset();
    KeyedTable table(job_.Adventure(), TableNum::Pictures);
    for (const auto& [number, picture] : read_) {
        if (locations.contains(number)) StorePicture(table, picture);
    }
}

}  // namespace fabula::interchange
