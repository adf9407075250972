#include "qt/help/help_book.h"

#include <QDir>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <cstdint>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "qt/strings.h"

namespace fabula::qt {
namespace {

/// No page of the help is longer; more of a file is not read.
constexpr std::uintmax_t kLongestPage = 4 * 1024 * 1024;
constexpr qsizetype kExcerptBefore = 40;
constexpr qsizetype kExcerptLength = 140;

QString ReadFile(const std::filesystem::path& path) {
    if (path.empty()) return {};
    try {
        return ToQt(platform::ReadStartOfFile(path, kLongestPage, "read a page of the help"));
    } catch (const Error&) {
        return {};  // a page that can't be read is shown as empty
    }
}

QString LinkOf(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QString link = part.fragment().charFormat().anchorHref();
        if (!link.isEmpty()) return link;
    }
    return {};
}

QString ExcerptOf(const QString& text, const QString& word) {
    const qsizetype found = std::max<qsizetype>(text.indexOf(word, 0, Qt::CaseInsensitive), 0);
    const qsizetype from = std::max<qsizetype>(found - kExcerptBefore, 0);
    QString excerpt = text.mid(from, kExcerptLength).simplified();
    if (from > 0) excerpt.prepend("…");
    if (from + kExcerptLength < text.size()) excerpt.append("…");
    return excerpt;
}

}  // namespace

HelpBook::HelpBook(const std::filesystem::path& contents)
    : folder_(contents.parent_path()), contents_(PathToQt(contents.filename())) {}

bool HelpBook::Exists() const {
    return !FileOf(contents_).empty();
}

std::filesystem::path HelpBook::FileOf(const QString& page) const {
    const QString name = page.section('#', 0, 0);
    if (name.isEmpty() || name.contains('/') || name.contains('\\') || name == "..") return {};
    const auto file = folder_ / PathFromQt(name);
    std::error_code missing;  // what can't be looked at counts as missing
    return std::filesystem::is_regular_file(file, missing) ? file : std::filesystem::path();
}

std::vector<HelpBook::Entry> HelpBook::Contents() const {
    QTextDocument document;
    document.setHtml(ReadFile(FileOf(contents_)));
    std::vector<Entry> entries;
    int below = 0;  // how deep links outside of any list stand
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString title = block.text().simplified();
        if (title.isEmpty()) continue;
        const int heading = block.blockFormat().headingLevel();
        const QString link = LinkOf(block);
        if (heading == 1) continue;  // the title of the page
        if (heading > 1) {
            entries.push_back({title, link, heading - 2});
            below = heading - 1;
        } else if (!link.isEmpty()) {
            const int inLists = block.textList() ? block.textList()->format().indent() - 1 : 0;
            entries.push_back({title, link, below + inLists});
        }
    }
    return entries;
}

void HelpBook::ReadPages() {
    if (read_) return;
    read_ = true;
    const QDir folder(PathToQt(folder_));
    for (const QString& name : folder.entryList({"*.html", "*.htm"}, QDir::Files, QDir::Name)) {
        if (name == contents_) continue;
        QTextDocument document;
        document.setHtml(ReadFile(folder_ / PathFromQt(name)));
        const QString title = document.metaInformation(QTextDocument::DocumentTitle);
        pages_.push_back({name, title.isEmpty() ? name : title, document.toPlainText()});
    }
}

std::vector<HelpBook::Hit> HelpBook::Search(const QString& words) {
    ReadPages();
    const QStringList wanted = words.simplified().split(' ', Qt::SkipEmptyParts);
    struct Found {
        bool inTitle;
        qsizetype count;
        const Page* page;
    };
    std::vector<Found> found;
    for (const Page& page : pages_) {
        const auto count = [&](const QString& word) { return page.text.count(word, Qt::CaseInsensitive); };
        const auto inTitle = [&](const QString& word) {
            return page.title.contains(word, Qt::CaseInsensitive);
        };
        if (wanted.isEmpty() || !std::ranges::all_of(wanted, [&](const QString& word) {
                return count(word) > 0 || inTitle(word);
            }))
            continue;
        qsizetype total = 0;
        for (const QString& word : wanted)
            total += count(word);
        found.push_back({std::ranges::any_of(wanted, inTitle), total, &page});
    }
    std::ranges::stable_sort(found, [](const Found& a, const Found& b) {
        return a.inTitle != b.inTitle ? a.inTitle : a.count > b.count;
    });
    std::vector<Hit> hits;
    for (const Found& each : found)
        hits.push_back({each.page->title, each.page->name, ExcerptOf(each.page->text, wanted.front())});
    return hits;
}

QString HelpBook::AnchorIn(const QString& page, const QStringList& anchors) const {
    const QString html = ReadFile(FileOf(page));
    for (const QString& anchor : anchors) {
        const QRegularExpression mark("\\s(name|id)\\s*=\\s*[\"']?" + QRegularExpression::escape(anchor) +
                                      "[\"'\\s>]");
        if (!anchor.isEmpty() && html.contains(mark)) return anchor;
    }
    return {};
}

}  // namespace fabula::qt
