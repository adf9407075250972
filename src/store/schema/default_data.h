#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::store {

/// The default data of new adventures: a text file of sections.
///
/// Line 1 is a marker that says how the later lines are stored: "SCRAMBLED", "SCRAMBLECED" or "ENCODED",
/// "CRYPTED", anything else for plain text. A section begins at a line "::NAME" and ends at "::END". The
/// section
/// "::INFO" holds lines "key=value"; all others hold rows whose columns a delimiter separates, lines "/n"
/// that number a record, and lines of text.
class DefaultData {
  public:
    struct Line {
        int number = 0;  ///< in the file, from 1
        std::string text;
    };
    using Section = std::vector<Line>;

    /// Reads and decodes a file, at most kLargestDefaultData bytes long. Throws fabula::Error when it can't
    /// be read, when a section has no end, when a name comes twice, or when the delimiter is missing.
    static DefaultData Read(const std::filesystem::path& file);

    /// A key of "::INFO": "Tables" (the date of the data), "Delimiter", "ExportVersion". Throws
    /// fabula::Error when the section or the key is missing.
    const std::string& Info(std::string_view key) const;

    bool Has(std::string_view section) const;
    /// The lines between "::" + name and "::END". Throws fabula::Error when the section is missing.
    const Section& Lines(std::string_view section) const;

    /// The columns of a row of `section`; fewer than `least` is the Error of Malformed.
    std::vector<std::string> Columns(std::string_view section, const Line& row, std::size_t least) const;

    /// Throws the fabula::Error for a line that is not as it must be, with the section's name and the
    /// line's number.
    [[noreturn]] void Malformed(std::string_view section, const Line& line, const std::string& why) const;

  private:
    std::filesystem::path file_;
    std::map<std::string, std::string, std::less<>> info_;
    std::map<std::string, Section, std::less<>> sections_;
};

/// In bytes.
inline constexpr std::uintmax_t kLargestDefaultData = 16 * 1024 * 1024;

}  // namespace fabula::store
