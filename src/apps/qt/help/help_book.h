#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <vector>

namespace fabula::qt {

/// The pages of the help: HTML files in one folder, and a page of contents that lists them.
class HelpBook {
  public:
    /// `contents` is the page of contents; the others lie beside it. Nothing is read yet.
    explicit HelpBook(const std::filesystem::path& contents);

    /// Whether there is a page of contents.
    bool Exists() const;

    /// A line of the contents.
    struct Entry {
        QString title;
        QString page;  ///< "vocabulary.html" or "flags.html#f38"; "" for a heading above others
        int depth = 0;
    };
    /// The headings and links of the page of contents, in their order. A link in a list stands below the
    /// heading before it, and one in an inner list below the link before it.
    std::vector<Entry> Contents() const;

    struct Hit {
        QString title;
        QString page;
        QString excerpt;  ///< the text around the first place
    };
    /// The pages that hold every word of `words`, upper and lower case alike: those with a word in the
    /// title first, then by how often the words occur. Reads all pages when it is called first.
    std::vector<Hit> Search(const QString& words);

    /// The file of a page, which may be followed by an anchor; empty when there is none. Names that lead
    /// out of the folder have none.
    std::filesystem::path FileOf(const QString& page) const;
    /// The first of `anchors` that the page has; "" for none.
    QString AnchorIn(const QString& page, const QStringList& anchors) const;

    const std::filesystem::path& Folder() const { return folder_; }
    QString ContentsPage() const { return contents_; }

  private:
    struct Page {
        QString name;
        QString title;
        QString text;
    };
    void ReadPages();

    std::filesystem::path folder_;
    QString contents_;
    bool read_ = false;
    std::vector<Page> pages_;
};

}  // namespace fabula::qt
