#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "authoring/desk.h"
#include "pictures/files/image.h"

namespace fabula::packages {

/// A game on the author's desk with a folder of its own.
class PackedGame : public test::Desk {
  public:
    explicit PackedGame(const std::string& name = "The Lamp") {
        Set("advname", name);
        Set("author", "A. Nother");
        Set("version", "1.2");
        Set("advdesc", "A lamp.\u008CAnd a cellar. ");
        Set("advcontactinfo", "mail@example.org");
    }

    std::filesystem::path Folder() { return Adventure().GameDir(); }

    void Set(const char* field, const text::Value& value) {
        store::Cursor& settings = Adventure().OpenTable(store::TableNum::Adventure, "def");
        settings.SetField(field, value);
        settings.Update();
    }
    void SetPicture(int location, const std::string& name) {
        store::Cursor& record =
            Adventure().OpenTable(store::TableNum::Locations, "def", "locnum=" + std::to_string(location));
        record.SetField("picloc", name);
        record.Update();
    }
    void Write(const std::string& name, const std::string& bytes = "bytes") {
        const std::filesystem::path file = Folder() / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
    }
    /// A picture of so many points, in the form that the name tells.
    void Draw(const std::string& name, int width, int height) {
        pictures::WriteImage(Folder() / name, pictures::Image(width, height, pictures::IndexToColour(2)));
    }
};

}  // namespace fabula::packages
