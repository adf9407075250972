#include "authoring/drawing/easel.h"

#include "pictures/drawing.h"
#include "pictures/drawstring.h"

namespace fabula::test {

using store::TableNum;

Easel::Easel(std::string_view drawstring, std::string_view kind)
    : Desk(store::AdventureKind::Fabula, true) {
    Clear(TableNum::Locations);
    Clear(TableNum::Pictures);
    for (std::int64_t number = 0; number < 4; ++number) {
        Add(TableNum::Locations, {{"locnum", number},
                                  {"locdesc", std::string("You are in room ") + std::to_string(number)},
                                  {"locshortdesc", std::string(number == 1 ? "The hall" : " ")},
                                  {"exits", std::string()},
                                  {"numericexits", std::string()},
                                  {"numexits", std::int64_t{0}}});
    }
    AddPicture(1, drawstring, kind);
    Open();
}

void Easel::AddPicture(int number, std::string_view drawstring, std::string_view kind) {
    Add(TableNum::Pictures, {{"locnum", std::int64_t{number}},
                             {"loctype", std::string(kind)},
                             {"locpaper", std::int64_t{7}},
                             {"locink", std::int64_t{0}},
                             {"drawstring", std::string(drawstring)},
                             {"picname", std::string()},
                             {"roompicnum", std::int64_t{-1}}});
}

authoring::PictureEditor& Easel::Open(int number, bool isNew) {
    editor_ = std::make_unique<authoring::PictureEditor>(
        context, authoring::ScreenKey{.key = number, .isNew = isNew});
    return *editor_;
}

bool Easel::At(int x, int y, std::string_view line) {
    editor_->PointAt({x, y});
    return editor_->Run(line);
}

std::string Easel::Stored(std::string_view field, int number) {
    const auto rows = Rows(TableNum::Pictures, field, "locnum=" + std::to_string(number));
    return rows.empty() ? "(no record)" : rows.front();
}

std::string PlanesAsText(const pictures::Canvas& canvas) {
    std::string text;
    for (const pictures::Plane* plane : {&canvas.colour, &canvas.pixel}) {
        const std::vector<pictures::Colour>& pixels = plane->Pixels();
        text.append(reinterpret_cast<const char*>(pixels.data()), pixels.size() * sizeof(pictures::Colour));
    }
    return text;
}

bool Easel::PlanesAreWhatIsDrawn() const {
    const auto& words = editor_->Words();
    const std::vector<std::string> drawn(words.begin(),
                                         words.begin() + static_cast<std::ptrdiff_t>(editor_->Position()));
    pictures::Drawing drawing(editor_->Book());
    drawing.CommDraw(editor_->Defaults(), pictures::JoinWords(drawn));
    return PlanesAsText(drawing.Planes()) == PlanesAsText(editor_->Planes());
}

}  // namespace fabula::test
