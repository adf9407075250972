#include "ide/editors/markup_edit.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "authoring/fields/texts/markup_spans.h"
#include "ide/editors/edit_controls.h"
#include "ide/editors/markup_highlighter.h"
#include "ide/editors/text_edit.h"
#include "player/panes/text_colours.h"
#include "qt/colours.h"
#include "qt/strings.h"
#include "text/encoding/safe_text.h"
#include "text/markup.h"

namespace fabula::ide {
namespace {

constexpr int kMarkupMargin = 8;
constexpr int kFewestColumns = 16;  ///< of a preview
constexpr int kShortLines = 2;
/// Below this a text in the game's colours can't be told from the paper, and the windows' own serve.
constexpr double kVisible = 1.5;

/// Asks for no more than its lines at least, though it takes what there is.
template <typename Edit>
class Modest final : public Edit {
  public:
    QSize sizeHint() const override { return {Edit::sizeHint().width(), Edit::minimumHeight()}; }
};

QFont GameFont(const std::string& name, double points) {
    QFont font = name.empty() ? QApplication::font() : QFont(qt::ToQt(name));
    font.setPointSizeF(points);
    return font;
}

QString Safe(std::string_view text) {
    std::string safe;
    text::AppendSafe(text, safe);
    return qt::ToQt(safe);
}

/// How much larger a game's text is shown than it asks for, so that it is never smaller than the windows'.
double Zoom(const authoring::TextEditing& editing) {
    return std::max(1.0, QApplication::font().pointSizeF() / editing.FontPoints());
}

QTextCharFormat FormatOf(const authoring::ShownRun& run, const player::TextColours& colours, double zoom) {
    QTextCharFormat format;
    const player::TextColours::Run shown = colours.Of(run.style);
    if (!run.fontName.empty()) format.setFontFamilies({qt::ToQt(run.fontName)});
    format.setFontPointSize(text::ShownPoints(run.style.fontSize) * zoom);
    if (run.style.bright) format.setFontWeight(QFont::Bold);
    if (run.style.flash) format.setUnderlineStyle(QTextCharFormat::DotLine);
    format.setForeground(qt::ToQt(shown.ink));
    if (shown.paper) format.setBackground(qt::ToQt(*shown.paper));
    return format;
}

}  // namespace

MarkupEdit::MarkupEdit(const authoring::TextEditing& editing, const MarkupEditKind& kind,
                       const QString& fieldName, QWidget* parent)
    : QWidget(parent), editing_(editing), kind_(kind), field_(new Modest<TextEdit>) {
    auto* name = new QLabel(kind.name);
    name->setBuddy(field_);
    field_->setObjectName(fieldName);
    field_->setAccessibleName(QString(kind.name).remove('&').remove(':'));
    field_->setTabChangesFocus(true);
    setFocusProxy(field_);
    setSizePolicy(QSizePolicy::Expanding, kind.isShort ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    new MarkupHighlighter(field_->document(), editing.Tags(), kind.tagsAllowed);

    counts_ = new QLabel;
    counts_->setObjectName(kind.isShort ? "shortCounts" : "counts");
    counts_->setAccessibleDescription(tr("Length of the text"));
    counts_->setForegroundRole(QPalette::PlaceholderText);
    fault_ = new QLabel;
    fault_->setObjectName(kind.isShort ? "shortFault" : "fault");
    fault_->setAccessibleDescription(tr("First fault of the text"));
    fault_->setWordWrap(true);
    fault_->setTextFormat(Qt::PlainText);
    auto* below = new QHBoxLayout;
    below->setSpacing(16);
    below->addWidget(counts_, 0, Qt::AlignTop);
    below->addWidget(fault_, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(name);
    layout->addWidget(field_, 3);
    layout->addLayout(below);
    if (!kind.previewCaption.isEmpty() && editing.PreviewColumns() > 0) AddPreview(kind.previewCaption);
    FitLook();
    ShowText();

    connect(field_, &QPlainTextEdit::textChanged, this, [this] {
        if (showing_) return;
        ShowText();
        typed(Text());
    });
}

void MarkupEdit::AddPreview(const QString& caption) {
    preview_ = new Modest<QTextEdit>;
    preview_->setObjectName(kind_.isShort ? "shortPreview" : "preview");
    preview_->setAccessibleName(caption);
    preview_->setAccessibleDescription(
        tr("The text as the game shows it. What flashes is underlined with "
           "dots."));
    preview_->setToolTip(preview_->accessibleDescription());
    preview_->setReadOnly(true);
    // Tab goes from field to field, and the preview scrolls with its field.
    preview_->setFocusPolicy(Qt::ClickFocus);
    connect(field_, &QPlainTextEdit::updateRequest, this, [this](const QRect&, int scrolled) {
        if (scrolled != 0) ScrollPreview();
    });
    preview_->setLineWrapMode(QTextEdit::WidgetWidth);  // a line of wide letters too
    auto* label = new QLabel(caption);
    label->setBuddy(preview_);
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->addSpacing(8);
    column->addWidget(label);
    column->addWidget(preview_, 2);
}

/// As far through the text as the field is.
void MarkupEdit::ScrollPreview() {
    const QScrollBar& field = *field_->verticalScrollBar();
    QScrollBar& preview = *preview_->verticalScrollBar();
    if (field.maximum() == 0) return;
    preview.setValue(static_cast<int>(qint64{preview.maximum()} * field.value() / field.maximum()));
}

/// Room for so many lines at least, in a short editor for two.
void MarkupEdit::SetLines(QAbstractScrollArea& area, const QFontMetrics& metrics, int lines) const {
    const int around = 2 * (kMarkupMargin + area.frameWidth());
    if (kind_.isShort) return area.setFixedHeight(metrics.lineSpacing() * kShortLines + around);
    area.setMinimumHeight(metrics.lineSpacing() * lines + around);
}

void MarkupEdit::FitLook() {
    const QFont font = GameFont(editing_.FontName(), editing_.FontPoints() * Zoom(editing_));
    const QFontMetrics metrics(font);
    const text::Rgb paper = text::ColourRGB(editing_.Paper());
    const text::Rgb ink = text::ColourRGB(editing_.Ink());
    QPalette game = QApplication::palette();
    if (player::Contrast(paper, ink) >= kVisible) {
        game.setColor(QPalette::Base, qt::ToQt(paper));
        game.setColor(QPalette::Text, qt::ToQt(ink));
    }
    field_->setPalette(game);
    field_->setFont(font);
    SetLines(*field_, metrics, 4);
    field_->document()->setDocumentMargin(kMarkupMargin);
    auto* highlighter = field_->document()->findChild<QSyntaxHighlighter*>();
    static_cast<MarkupHighlighter*>(highlighter)
        ->SetColours(game.color(QPalette::Base), game.color(QPalette::Text));
    if (preview_ == nullptr) return;
    game.setColor(QPalette::Base, qt::ToQt(paper));
    game.setColor(QPalette::Text, qt::ToQt(ink));
    preview_->setPalette(game);
    preview_->setFont(font);
    preview_->document()->setDocumentMargin(kMarkupMargin);
    const int frame =
        2 * (kMarkupMargin + preview_->frameWidth()) + preview_->verticalScrollBar()->sizeHint().width();
    preview_->setMaximumWidth(metrics.averageCharWidth() * editing_.PreviewColumns() + frame);
    SetLines(*preview_, metrics, 3);
}

std::string MarkupEdit::Text() const {
    return qt::FromQt(TextIn(*field_));
}

void MarkupEdit::SetText(std::string_view text) {
    showing_ = true;
    field_->setPlainText(qt::ToQt(text));
    showing_ = false;
    ShowText();
}

void MarkupEdit::ShowFault() {
    field_->setFocus();
    const std::string text = Text();
    const auto fault = authoring::FirstFault(text, kind_.tagsAllowed, editing_.Tags());
    if (!fault) return;
    QTextCursor cursor(field_->document());
    const std::string_view all = text;
    const auto begin = qt::ToQt(all.substr(0, fault->begin)).size();
    const auto size = qt::ToQt(all.substr(fault->begin, fault->size)).size();
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(begin + size), QTextCursor::KeepAnchor);
    field_->setTextCursor(cursor);
}

void MarkupEdit::ShowText() {
    const std::string text = Text();
    counts_->setText(qt::Translated(authoring::CountsLine(editing_.Count(text))));
    const auto fault = authoring::FirstFault(text, kind_.tagsAllowed, editing_.Tags());
    fault_->setText(fault ? Safe(fault->verdict.BoxText()) : QString());
    if (preview_ != nullptr) ShowPreview(text);
}

void MarkupEdit::ShowPreview(const std::string& text) {
    const player::TextColours colours(editing_.Paper(), editing_.Ink(), player::Page::OfTheGame);
    const double zoom = Zoom(editing_);
    const int scrolled = preview_->verticalScrollBar()->value();
    preview_->clear();
    QTextCursor end(preview_->document());
    end.beginEditBlock();
    bool first = true;
    columns_ = ColumnsInSight();
    const authoring::ShownText shown = editing_.Show(text, columns_);
    for (const authoring::ShownLine& line : shown.lines) {
        if (!first) end.insertBlock();
        first = false;
        for (const authoring::ShownRun& run : line)
            end.insertText(Safe(run.text), FormatOf(run, colours, zoom));
    }
    if (!shown.complete) {
        end.insertBlock();
        end.insertText(QString(QChar(0x2026)), {});
    }
    end.endEditBlock();
    // Its own cursor went with the text, and would be brought in sight.
    preview_->moveCursor(QTextCursor::Start);
    preview_->verticalScrollBar()->setValue(scrolled);
}

/// A preview that is narrower than the game's window wraps its lines earlier: nobody reads across an edge.
int MarkupEdit::ColumnsInSight() const {
    const int letter = std::max(1, QFontMetrics(preview_->font()).averageCharWidth());
    const int bar = preview_->verticalScrollBar()->sizeHint().width();
    const int room = preview_->width() - 2 * (kMarkupMargin + preview_->frameWidth()) - bar;
    return std::clamp(room / letter, kFewestColumns, authoring::TextEditing::kWidestPreview);
}

void MarkupEdit::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (preview_ != nullptr && ColumnsInSight() != columns_) ShowPreview(Text());
}

void MarkupEdit::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ApplicationPaletteChange && event->type() != QEvent::ApplicationFontChange)
        return;
    FitLook();
    ShowText();
}

}  // namespace fabula::ide
