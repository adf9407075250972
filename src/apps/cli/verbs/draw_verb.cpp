#include <filesystem>
#include <iostream>
#include <optional>
#include <vector>

#include "cli/host/terminal_person.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "pictures/book_loader.h"
#include "pictures/cell_image.h"
#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"
#include "pictures/files/contact_sheet.h"
#include "pictures/files/image.h"
#include "pictures/files/image_reader.h"
#include "pictures/files/picture_folder.h"
#include "platform/error.h"
#include "store/adventure.h"
#include "text/encoding/safe_text.h"

namespace fabula::cli {
namespace {

struct DrawOptions {
    std::string file;
    std::optional<int> picture;
    std::string output;
    int scale = 1;
    std::string plane = "colour";
    std::optional<std::size_t> upTo;
    std::string folder;
    std::string drawings;
    std::optional<std::string> drawstring;
    std::string checkedIn;
    bool subroutine = false;
    std::string image;
    bool dither = false;
    bool asDrawstring = false;
    bool force = false;
};

constexpr int kSheetColumns = 5;
constexpr const char* kIndex = "index.png";
/// The default paper of a drawing that is made of an image.
constexpr int kPaperOfImages = 7;

pictures::PictureBook OpenBook(const std::string& file) {
    const auto adventure = OpenToRead(file);
    return pictures::LoadPictureBook(*adventure);
}

pictures::Image ChosenPlane(const pictures::Canvas& canvas, const DrawOptions& options) {
    return pictures::ImageOf(options.plane == "pixel" ? canvas.pixel : canvas.colour, options.scale);
}

/// "Picture005.png"
std::string FileNameOf(int number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 3 ? 3 - digits.size() : 0, '0');
    return "Picture" + digits + ".png";
}

int CheckDrawing(const DrawOptions& options) {
    if (options.checkedIn.empty()) throw UsageError("--check needs the adventure: --in FILE.fbd");
    const auto kind = options.subroutine ? pictures::PictureKind::Subroutine : pictures::PictureKind::Room;
    const pictures::PictureBook book = OpenBook(options.checkedIn);
    const auto check = pictures::ValidateDrawString(book, *options.drawstring, kind);
    if (!check.Passed()) throw Error(check.fault);
    std::cout << text::SafeLines(pictures::JoinWords(check.words)) << "\n";
    return kDone;
}

int DrawOne(const DrawOptions& options) {
    if (options.file.empty() || !options.picture || options.output.empty()) {
        throw UsageError("draw needs FILE.fbd PICTURE OUT.bmp or OUT.png");
    }
    TerminalPerson person;
    CheckTarget({options.output, store::Content::Text, {}, options.file, options.force}, person);
    const pictures::PictureBook book = OpenBook(options.file);
    const pictures::Canvas canvas =
        pictures::DrawPicture(book, *options.picture, options.upTo.value_or(pictures::kWholeDrawstring));
    pictures::WriteImage(options.output, ChosenPlane(canvas, options));
    return kDone;
}

/// Draws every picture that can be drawn, and tells of the others.
int DrawAll(const DrawOptions& options) {
    if (options.file.empty()) throw UsageError("draw --all needs the adventure, FILE.fbd");
    if (options.picture || options.upTo) throw UsageError("--all draws whole pictures, and all of them");
    const pictures::PictureBook book = OpenBook(options.file);
    const std::filesystem::path folder = options.folder;
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw Error("Could not make the folder " + folder.string() + ": " + error.message() + ".");
    TerminalPerson person;
    for (const auto& [number, picture] : book.pictures)
        CheckTarget({folder / FileNameOf(number), store::Content::Text, {}, {}, options.force}, person);
    CheckTarget({folder / kIndex, store::Content::Text, {}, {}, options.force}, person);
    std::vector<pictures::NumberedPicture> drawn;
    int status = kDone;
    for (const auto& [number, picture] : book.pictures) {
        try {
            const pictures::Canvas canvas = pictures::DrawPicture(book, number);
            pictures::WriteImage(folder / FileNameOf(number), ChosenPlane(canvas, options));
            drawn.push_back(
                {number, pictures::ImageOf(options.plane == "pixel" ? canvas.pixel : canvas.colour)});
        } catch (const Error& failure) {
            std::cerr << "fabula: " << text::SafeLines(failure.what()) << "\n";
            status = kFailed;
        }
    }
    pictures::WriteImage(folder / kIndex, pictures::ContactSheet(drawn, book.characters, kSheetColumns));
    return status;
}

int AddFolder(const DrawOptions& options) {
    if (options.file.empty()) throw UsageError("draw --add needs the adventure, FILE.fbd");
    if (options.picture) throw UsageError("--add takes all drawings of its folder");
    const auto adventure = OpenToChange(options.file);
    pictures::AddPictureFolder(*adventure, options.drawings);
    return kDone;
}

/// Makes a picture of an image: as an image file, as a drawing in the form of N.draw, or as both.
int FromImage(const DrawOptions& options) {
    const std::string& target = options.file;
    if (target.empty() && !options.asDrawstring)
        throw UsageError("--from-image needs OUT.bmp or OUT.png, or --as-drawstring");
    if (options.picture) throw UsageError("--from-image takes one image and no picture");
    const auto dithering = options.dither ? pictures::Dithering::On : pictures::Dithering::Off;
    const pictures::CellImage picture = FitToCells(pictures::ReadImage(options.image), dithering);
    if (!target.empty()) {
        TerminalPerson person;
        CheckTarget({target, store::Content::Text, {}, options.image, options.force}, person);
        pictures::WriteImage(target, picture.ToImage());
    }
    if (options.asDrawstring) {
        std::cout << "DEFPAPER " << kPaperOfImages << "\n" << DrawstringOf(picture, kPaperOfImages) << "\n";
    }
    return kDone;
}

int Draw(const DrawOptions& options) {
    if (!options.image.empty()) return FromImage(options);
    if (!options.drawings.empty()) return AddFolder(options);
    if (options.drawstring) return CheckDrawing(options);
    return options.folder.empty() ? DrawOne(options) : DrawAll(options);
}

}  // namespace

void AddDrawVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<DrawOptions>();
    AddAdventureOption(verb, options->file);
    verb.add_option("picture", options->picture, "The number of a picture");
    verb.add_option("output", options->output, "The image to write, *.bmp or *.png");
    verb.add_option("--scale", options->scale, "The size of a pixel")
        ->check(CLI::Range(1, pictures::kLargestScale))
        ->capture_default_str();
    verb.add_option("--plane", options->plane, "colour, or pixel for what counts as drawn")
        ->check(CLI::IsMember({"colour", "pixel"}))
        ->capture_default_str();
    verb.add_option("--upto", options->upTo, "Draw up to this word, counted from 0")
        ->check(CLI::NonNegativeNumber);
    verb.add_option("--all", options->folder,
                    "Draw all pictures into a folder, with an index of small ones");
    verb.add_option("--add", options->drawings,
                    "Put the drawings N.draw of a folder into the adventure, as pictures of its rooms");
    CLI::Option* check =
        verb.add_option("--check", options->drawstring, "Check a drawstring and show its words");
    verb.add_option("--in", options->checkedIn, "The adventure whose pictures and characters it may use")
        ->needs(check);
    verb.add_flag("--subroutine", options->subroutine, "Check it as that of a subroutine")->needs(check);
    CLI::Option* fromImage = verb.add_option(
        "--from-image", options->image,
        "Make a picture of an image (PNG, JPEG or BMP) and write it to the file that follows");
    verb.add_flag("--dither", options->dither, "Mix the colours that the palette lacks")->needs(fromImage);
    verb.add_flag("--as-drawstring", options->asDrawstring, "Write a drawing that draws the image")
        ->needs(fromImage);
    AddForceFlag(verb, options->force);
    Runs(verb, chosen, options, Draw);
}

}  // namespace fabula::cli
