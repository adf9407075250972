// Names that a stranger's game may give its pictures and files, none of which leads out of the folder.

#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <unistd.h>

#include "packages/package.h"
#include "packed_game.h"
#include "support/child_process.h"

namespace fabula::packages {
namespace {

const std::string kControl("a\0b", 3);

const std::string kNames[] = {
    "../secret",
    "..\\secret",
    "../../secret",
    "../../../../../../../../etc/passwd",
    "/etc/passwd",
    "\\etc\\passwd",
    "//etc/passwd",
    "\\\\server\\share\\secret",
    "C:secret",
    "C:\\secret",
    "c:/secret",
    "Z:../secret",
    "pics/../../secret",
    "pics\\..\\..\\secret",
    "pics/../../game/../secret",
    "./../secret",
    ".\\..\\secret",
    "pics/./../../secret",
    "....//secret",
    "..",
    ".",
    "",
    "/",
    "\\",
    "//",
    "../",
    "..\\",
    "pics/..",
    "pics/",
    "secret-link",
    "folder-link/secret",
    "folder-link\\secret",
    "folder-link/../secret",
    "FOLDER-LINK/SECRET",
    "SECRET-LINK",
    "pics/secret-link",
    "hanging-link",
    "ring-link",
    "pipe",
    "pics",
    "/dev/zero",
    "/dev/stdin",
    "/proc/self/environ",
    "file:///etc/passwd",
    "http://example.org/x",
    kControl,
    std::string("secret\0.png", 11),
    "a\nb",
    "a\rb",
    "a\tb",
    "a\x1B[31mb",
    "\x7F",
    "\xC3\x28",
    "\xFF\xFE",
    "..\xC0\xAF..\xC0\xAFsecret",
    "%2e%2e%2fsecret",
    "..%2fsecret",
    "~/secret",
    "~root/secret",
    "$HOME/secret",
    "NUL",
    "con.txt:stream",
    std::string(5000, 'x'),
    "pics/" + std::string(300, '.') + "/secret",
};

constexpr const char* kSecret = "nobody packs this";

/// A game whose folder holds links that lead out of it.
class HostileGame : public PackedGame {
  public:
    HostileGame() {
        namespace fs = std::filesystem;
        fs::create_directories(Folder() / "pics");
        std::ofstream(outside / "secret") << kSecret;
        fs::create_symlink(outside / "secret", Folder() / "secret-link");
        fs::create_symlink(outside / "secret", Folder() / "pics" / "secret-link");
        fs::create_directory_symlink(outside.Path(), Folder() / "folder-link");
        fs::create_symlink(outside / "nothing", Folder() / "hanging-link");
        fs::create_symlink(Folder() / "ring-link", Folder() / "ring-link");
    }
    /// What rights were dropped are taken up again, to tidy away.
    ~HostileGame() {
        if (seteuid(getuid()) != 0) std::abort();
    }

    /// Goes on as somebody who may do anything in these folders, and nothing elsewhere.
    void DropRights() {
        namespace fs = std::filesystem;
        for (const fs::path& folder : {Folder(), outside.Path()}) {
            fs::permissions(folder, fs::perms::all);
            for (const auto& entry : fs::recursive_directory_iterator(folder)) {
                if (!entry.is_symlink()) fs::permissions(entry.path(), fs::perms::all);
            }
        }
        test::DropRights();
    }

    test::TempFolder outside;
};

/// How many of the names brought something into a package; 99 when it was the secret.
int PackedOf(std::string_view type) {
    HostileGame game;
    game.DropRights();
    int packed = 0;
    for (const std::string& name : kNames) {
        PackageList list(game.Adventure());
        if (!list.Add(type, name)) continue;
        try {
            const Package package = GatherPackage(game.Adventure(), list, {"1.0", "", "", {}});
            ++packed;
            for (const PackedFile& file : package.files) {
                if (file.bytes == kSecret || !ZipName(file.name)) return 99;
            }
        } catch (const Error&) {
            // refused, as it should be
        }
    }
    return packed;
}

TEST(HostileNames, AreSixtyAndMore) {
    EXPECT_GE(std::size(kNames), 60u);
}

TEST(HostileNames, OfPicturesAreNeverPacked) {
    // Only the empty name is left out of the list; none of the others finds a file of the folder.
    EXPECT_EQ(test::RunInChild([] { return PackedOf(package_type::kGraphic); }), 0);
}

TEST(HostileNames, OfFilesAndEnginesAreNeverPacked) {
    EXPECT_EQ(test::RunInChild([] { return PackedOf(package_type::kFile); }), 0);
    EXPECT_EQ(test::RunInChild([] { return PackedOf(package_type::kEngine); }), 0);
}

TEST(HostileNames, OfAGameMakeNoFileOutsideItsFolder) {
    for (const std::string& name : kNames) {
        const std::string file = AsFileName(name);
        EXPECT_TRUE(ZipName(file)) << name;
        EXPECT_EQ(file.find('/'), std::string::npos) << name;
        EXPECT_NE(file.substr(0, 1), ".") << name;
    }
}

TEST(HostileNames, OfAReadMeThatIsALinkOutOfTheFolderLeaveItsFileAlone) {
    const int result = test::RunInChild([] {
        HostileGame game;
        std::filesystem::create_symlink(game.outside / "secret", game.Folder() / "The Lamp.ReadMe");
        game.DropRights();
        const PackageList list(game.Adventure());
        const Package package = GatherPackage(game.Adventure(), list, {"1.0", "", "", {}});
        try {
            WriteReadMe(game.Adventure(), list, package);
            return 1;
        } catch (const Error&) {
        }
        std::string text;
        std::getline(std::ifstream(game.outside / "secret"), text);
        return text == kSecret ? 0 : 2;
    });
    EXPECT_EQ(result, 0);
}

}  // namespace
}  // namespace fabula::packages
