#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/drawing.h"
#include "pictures/drawstring_check.h"
#include "platform/error.h"
#include "test_book.h"
#include "text/fields.h"

// The first line of the input is a picture; the lines behind it are the pictures 5, 6 and 7, which it may
// call. All are checked and the first is drawn, whether it passed or not. One that passed, and calls no
// others, must be drawn.

using namespace fabula;

namespace {

constexpr int kFirstSubroutine = 5;
constexpr std::size_t kSubroutines = 3;

pictures::PictureBook BookOf(const std::vector<std::string_view>& lines) {
    pictures::PictureBook book = pictures::TestBook();
    for (std::size_t i = 0; i < kSubroutines; ++i) {
        const std::string_view drawstring = i + 1 < lines.size() ? lines[i + 1] : "END";
        pictures::AddPicture(book, kFirstSubroutine + static_cast<int>(i), drawstring,
                             pictures::PictureKind::Subroutine);
    }
    return book;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string_view> lines = text::Split(input, "\n");
    const pictures::PictureBook book = BookOf(lines);
    const pictures::DrawstringCheck check =
        pictures::ValidateDrawString(book, lines.front(), pictures::PictureKind::Room);
    pictures::ValidateCommandLine(book, lines.front(), pictures::PictureKind::Room, false);
    bool callsOthers = false;
    for (const std::string& word : check.words) {
        const pictures::Command* command = book.commands.Find(word);
        callsOthers = callsOthers || (command != nullptr && command->number == pictures::kGoSub);
    }
    try {
        pictures::Drawing(book).CommDraw(pictures::Picture{}, lines.front());
    } catch (const Error&) {
        if (check.Passed() && !callsOthers) std::abort();
    }
    return 0;
}
