#include "qt/help/help_window.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include "qt/fitting_size.h"
#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::qt {
namespace {

constexpr QSize kDefaultSize(900, 640);
constexpr int kPageOf = Qt::UserRole;

}  // namespace

HelpWindow::HelpWindow(const std::filesystem::path& contents)
    : book_(contents),
      search_(new QLineEdit),
      lists_(new QStackedWidget),
      contents_(new QTreeWidget),
      hits_(new QListWidget),
      page_(new QTextBrowser) {
    setObjectName("HelpWindow");
    setWindowTitle(tr("Fabula Help"));
    // A program does not go on for its help alone.
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(IconOf("help"));
    search_->setObjectName("Search");
    search_->setAccessibleName(tr("Search the help"));
    search_->setPlaceholderText(tr("Search"));
    search_->setClearButtonEnabled(true);
    contents_->setObjectName("Contents");
    contents_->setAccessibleName(tr("Contents"));
    contents_->setHeaderHidden(true);
    hits_->setObjectName("Hits");
    hits_->setAccessibleName(tr("Pages found"));
    hits_->setWordWrap(true);
    page_->setObjectName("Page");
    page_->setAccessibleName(tr("Page"));
    page_->setSearchPaths({PathToQt(book_.Folder())});
    page_->document()->setDocumentMargin(20);

    lists_->addWidget(contents_);
    lists_->addWidget(hits_);
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(8, 8, 4, 8);
    column->addWidget(search_);
    column->addWidget(lists_, 1);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(side);
    splitter->addWidget(page_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({260, kDefaultSize.width() - 260});
    setCentralWidget(splitter);
    MakeToolBar();
    FillContents();
    resize(FittingSize(*this, kDefaultSize));

    QObject::connect(search_, &QLineEdit::textChanged, this,
                     [this](const QString& words) { Search(words); });
    QObject::connect(search_, &QLineEdit::returnPressed, this, [this] {
        if (hits_->count() > 0) Open(hits_->item(0)->data(kPageOf).toString());
    });
    QObject::connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) Open(item->data(0, kPageOf).toString());
    });
    QObject::connect(hits_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item) Open(item->data(kPageOf).toString());
    });
    QObject::connect(page_, &QTextBrowser::sourceChanged, this,
                     [this](const QUrl& page) { SelectInContents(page); });
}

void HelpWindow::MakeToolBar() {
    auto* bar = addToolBar(tr("Help"));
    bar->setObjectName("Toolbar");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto add = [&](const char* name, const char* icon, const QString& text, const QKeySequence& key,
                         auto act) {
        auto* action = bar->addAction(IconOf(icon), text);
        action->setObjectName(name);
        action->setShortcut(key);
        QObject::connect(action, &QAction::triggered, this, act);
        return action;
    };
    auto* back = add("Back", "back", tr("Back"), QKeySequence::Back, [this] { page_->backward(); });
    auto* forward =
        add("Forward", "forward", tr("Forward"), QKeySequence::Forward, [this] { page_->forward(); });
    add("Home", "home", tr("Contents"), QKeySequence(Qt::ALT | Qt::Key_Home),
        [this] { Open(book_.ContentsPage()); });
    back->setEnabled(false);
    forward->setEnabled(false);
    QObject::connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    QObject::connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto* find = new QShortcut(QKeySequence::Find, this);
    QObject::connect(find, &QShortcut::activated, this, [this] {
        search_->setFocus();
        search_->selectAll();
    });
    auto* leave = new QShortcut(Qt::Key_Escape, this);
    QObject::connect(leave, &QShortcut::activated, this, [this] {
        if (search_->text().isEmpty()) return void(close());
        search_->clear();
    });
}

void HelpWindow::FillContents() {
    std::vector<QTreeWidgetItem*> above;  // the latest item of each depth
    for (const HelpBook::Entry& entry : book_.Contents()) {
        const auto depth = std::min(static_cast<std::size_t>(std::max(entry.depth, 0)), above.size());
        auto* item = new QTreeWidgetItem({entry.title});
        item->setData(0, kPageOf, entry.page);
        if (depth == 0) {
            contents_->addTopLevelItem(item);
        } else {
            above[depth - 1]->addChild(item);
        }
        above.resize(depth);
        above.push_back(item);
    }
}

void HelpWindow::Search(const QString& words) {
    const bool searching = !words.trimmed().isEmpty();
    lists_->setCurrentWidget(searching ? static_cast<QWidget*>(hits_) : contents_);
    const QSignalBlocker quiet(hits_);
    hits_->clear();
    if (!searching) return;
    for (const HelpBook::Hit& hit : book_.Search(words)) {
        auto* item = new QListWidgetItem(hit.title + "\n" + hit.excerpt, hits_);
        item->setData(kPageOf, hit.page);
        item->setData(Qt::AccessibleTextRole, hit.title);
    }
    if (hits_->count() == 0) {
        auto* nothing = new QListWidgetItem(tr("No page has these words."), hits_);
        nothing->setFlags(Qt::NoItemFlags);
    }
}

void HelpWindow::Open(const QString& page) {
    if (book_.FileOf(page).empty()) return;
    const QUrl url = QUrl::fromLocalFile(PathToQt(book_.FileOf(page)));
    QUrl place = url;
    place.setFragment(page.section('#', 1));
    if (page_->source() != place) page_->setSource(place);
}

QString HelpWindow::Page() const {
    return page_->source().fileName();
}

void HelpWindow::Show(const HelpTopic& topic) {
    const bool known = !book_.FileOf(topic.page).empty();
    QString page = known ? topic.page : book_.ContentsPage();
    const QString anchor = known ? book_.AnchorIn(page, topic.anchors) : QString();
    if (!anchor.isEmpty()) page = page.section('#', 0, 0) + "#" + anchor;
    search_->clear();
    Open(page);
    show();
    raise();
    activateWindow();
    page_->setFocus();
}

void HelpWindow::SelectInContents(const QUrl& shown) {
    const QString place = shown.fileName() + (shown.hasFragment() ? "#" + shown.fragment() : "");
    const QSignalBlocker quiet(contents_);
    QTreeWidgetItem* best = nullptr;
    for (QTreeWidgetItemIterator each(contents_); *each; ++each) {
        const QString page = (*each)->data(0, kPageOf).toString();
        if (page == place) {
            best = *each;
            break;
        }
        if (!best && page == shown.fileName()) best = *each;
    }
    contents_->setCurrentItem(best);
}

void HelpWindow::changeEvent(QEvent* event) {
    // The page takes its colours when it is read.
    if (event->type() == QEvent::PaletteChange && !page_->source().isEmpty()) page_->reload();
    QMainWindow::changeEvent(event);
}

}  // namespace fabula::qt
