#include "ide/window/empty_page.h"

#include <QCommandLinkButton>
#include <QLabel>
#include <QResizeEvent>
#include <QVBoxLayout>

#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kIconSize(28, 28);
/// Letters of the window's font that must fit beside one another before there are two columns.
constexpr int kLettersOfTwoColumns = 80;
constexpr int kWidestLetters = 120;

QLabel* Heading(const QString& text, double size) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

QCommandLinkButton* LinkButton(const QString& name, const char* icon, const QString& text,
                               const QString& about) {
    auto* button = new QCommandLinkButton(text, about);
    button->setObjectName(name);
    button->setIcon(qt::IconOf(icon));
    button->setIconSize(kIconSize);
    button->setAccessibleName(QString(text).remove('&'));
    button->setAccessibleDescription(about);
    return button;
}

}  // namespace

EmptyPage::EmptyPage(Actions actions, QWidget* parent) : QScrollArea(parent), actions_(std::move(actions)) {
    setObjectName("EmptyPage");
    setAccessibleName(tr("Start"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* page = new QWidget;
    page->setMaximumWidth(fontMetrics().averageCharWidth() * kWidestLetters);

    auto* start = new QVBoxLayout;
    start->setSpacing(4);
    const auto add = [&](const char* name, const char* icon, const QString& text, const QString& about,
                         const std::function<void()>& act) {
        auto* button = LinkButton(name, icon, text, about);
        QObject::connect(button, &QCommandLinkButton::clicked, this, [act] { act(); });
        start->addWidget(button);
        return button;
    };
    start->addWidget(Heading(tr("Start"), 1.2));
    auto* create =
        add("new", "new", tr("&New Adventure"),
            tr("An empty game with the words and messages that every game needs."), actions_.create);
    add("open", "open", tr("&Open..."), tr("An adventure file that you have."), actions_.open);
    add("start", "import", tr("&Import..."), tr("A game from an export file, a source or a listing."),
        actions_.import);
    add("tutorial", "book", tr("&A First Game"), tr("A small game in half an hour, step by step."),
        actions_.tutorial);
    start->addStretch(1);
    setFocusProxy(create);

    recent_ = MakeList(tr("Recent"));
    examples_ = MakeList(tr("Examples"));
    auto* lists = new QVBoxLayout;
    lists->setSpacing(12);
    lists->addWidget(recent_.whole);
    lists->addWidget(examples_.whole);
    lists->addStretch(1);

    columns_ = new QBoxLayout(QBoxLayout::LeftToRight);
    columns_->setSpacing(32);
    columns_->addLayout(start, 1);
    columns_->addLayout(lists, 1);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(32, 24, 32, 24);
    column->setSpacing(4);
    column->addStretch(1);
    column->addWidget(Heading("Fabula", 2.4));
    column->addWidget(new QLabel(tr("Write a text adventure, and play it as you go.")));
    column->addSpacing(20);
    column->addLayout(columns_);
    column->addStretch(2);

    auto* centred = new QWidget;
    auto* row = new QHBoxLayout(centred);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(page, 1000);
    row->addStretch(1);
    setWidget(centred);
}

EmptyPage::List EmptyPage::MakeList(const QString& title) {
    auto* whole = new QWidget;
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(Heading(title, 1.2));
    auto* lines = new QVBoxLayout;
    lines->setSpacing(0);
    column->addLayout(lines);
    whole->hide();
    return {whole, lines};
}

void EmptyPage::Empty(const List& list) {
    while (QLayoutItem* item = list.lines->takeAt(0)) {
        // The button may be at work on the click that changed the list.
        item->widget()->deleteLater();
        item->widget()->hide();
        delete item;
    }
}

void EmptyPage::ShowExamples(const std::vector<Example>& examples) {
    Empty(examples_);
    examples_.whole->setVisible(!examples.empty());
    for (const Example& example : examples) {
        auto* button = LinkButton(QString("Example%1").arg(examples_.lines->count() + 1), "lamp",
                                  qt::ToQt(example.name), qt::Translated(example.about));
        QObject::connect(button, &QCommandLinkButton::clicked, this,
                         [this, example] { actions_.openExample(example); });
        examples_.lines->addWidget(button);
    }
}

void EmptyPage::ShowRecent(const std::vector<std::filesystem::path>& files) {
    Empty(recent_);
    recent_.whole->setVisible(!files.empty());
    for (const std::filesystem::path& file : files) {
        auto* button =
            LinkButton(QString("Recent%1").arg(recent_.lines->count() + 1), "book",
                       qt::PathToQt(file.stem()).replace('&', "&&"), qt::PathToQt(file.parent_path()));
        QObject::connect(button, &QCommandLinkButton::clicked, this,
                         [this, file] { actions_.openRecent(file); });
        recent_.lines->addWidget(button);
    }
}

void EmptyPage::resizeEvent(QResizeEvent* event) {
    const bool wide = event->size().width() >= fontMetrics().averageCharWidth() * kLettersOfTwoColumns;
    columns_->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QScrollArea::resizeEvent(event);
}

}  // namespace fabula::ide
