#include "ide/editors/markup_edit.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include "player/panes/text_colours.h"
#include "qt/look/theme.h"
#include "support/active_window.h"
#include "support/games/template_adventure.h"

namespace fabula::test {
namespace {

class MarkupEditTest : public testing::Test {
  protected:
    void SetNumber(std::string_view field, int value) {
        store::Cursor& settings = adventure_->OpenTable(store::TableNum::Adventure, "def");
        settings.SetField(field, std::int64_t{value});
        settings.Update();
    }

    /// Opens an editor with a text, between two other fields of a window.
    ide::MarkupEdit& Open(std::string_view text, bool tagsAllowed = true,
                          const QString& preview = "Converted Message") {
        editing_.emplace(*adventure_);
        window_ = std::make_unique<QWidget>();
        window_->resize(700, 500);
        edit_ = new ide::MarkupEdit(*editing_, {"&Text:", preview, tagsAllowed}, "text");
        edit_->SetText(text);
        edit_->typed = [this](const std::string& typed) { typed_.push_back(typed); };
        auto* layout = new QVBoxLayout(window_.get());
        layout->addWidget(new QLineEdit);
        layout->addWidget(edit_);
        auto* next = new QLineEdit;
        next->setObjectName("next");
        layout->addWidget(next);
        window_->show();
        window_->activateWindow();
        EXPECT_TRUE(test::BecomesActive(window_.get()));
        edit_->setFocus();
        return *edit_;
    }

    QString LabelText(const char* name) const { return edit_->findChild<QLabel*>(name)->text(); }
    QTextEdit* Preview() const { return edit_->findChild<QTextEdit*>("preview"); }
    /// How the highlighter shows the character at a place of the field's first line.
    QTextCharFormat Mark(int place) const {
        for (const auto& range : edit_->Field().document()->firstBlock().layout()->formats()) {
            if (place >= range.start && place < range.start + range.length) return range.format;
        }
        return {};
    }

    OpenedAdventure adventure_;
    std::optional<authoring::TextEditing> editing_;
    std::unique_ptr<QWidget> window_;
    ide::MarkupEdit* edit_ = nullptr;
    std::vector<std::string> typed_;
};

TEST_F(MarkupEditTest, GivesBackTheTextThatItWasGiven) {
    for (const char* text : {"", "one\ntwo\n", "\n\n", "a\u00A0b", "&amp; <ink=2>", "\u00C4pfel \U0001F34E",
                             "a\x7F"
                             "b"}) {
        EXPECT_EQ(Open(text).Text(), text);
    }
}

TEST_F(MarkupEditTest, ToShowATextIsNotTyping) {
    Open("one").SetText("two");
    EXPECT_TRUE(typed_.empty());
}

TEST_F(MarkupEditTest, TellsEveryKeystroke) {
    Open("");
    QTest::keyClicks(&edit_->Field(), "ab");
    EXPECT_EQ(typed_, (std::vector<std::string>{"a", "ab"}));
}

TEST_F(MarkupEditTest, ReturnIsALineEnd) {
    Open("");
    QTest::keyClicks(&edit_->Field(), "a");
    QTest::keyClick(&edit_->Field(), Qt::Key_Return);
    QTest::keyClicks(&edit_->Field(), "b");
    EXPECT_EQ(edit_->Text(), "a\nb");
}

TEST_F(MarkupEditTest, TabLeavesTheFieldForWhatComesBehindThePreview) {
    Open("a");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "next");
    EXPECT_EQ(edit_->Text(), "a");
}

TEST_F(MarkupEditTest, ThePreviewScrollsWithTheField) {
    std::string lines;
    for (int line = 0; line < 60; ++line)
        lines += "A line of this room.\n";
    Open(lines);
    QScrollBar& field = *edit_->Field().verticalScrollBar();
    field.setValue(field.maximum());
    ASSERT_GT(Preview()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Preview()->verticalScrollBar()->value(), Preview()->verticalScrollBar()->maximum());
    field.setValue(0);
    EXPECT_EQ(Preview()->verticalScrollBar()->value(), 0);
}

TEST_F(MarkupEditTest, TheMnemonicOfTheLabelGoesToTheField) {
    Open("a");
    window_->findChild<QLineEdit*>("next")->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &edit_->Field());
}

TEST_F(MarkupEditTest, TagsAreBoldAndTheirValuesItalicToo) {
    Open("A <ink=2>red door");
    EXPECT_LT(Mark(0).fontWeight(), QFont::Bold);
    EXPECT_EQ(Mark(2).fontWeight(), QFont::Bold);
    EXPECT_FALSE(Mark(2).fontItalic());
    EXPECT_EQ(Mark(7).fontWeight(), QFont::Bold);
    EXPECT_TRUE(Mark(7).fontItalic());
    EXPECT_EQ(Mark(8).fontWeight(), QFont::Bold);
    EXPECT_LT(Mark(9).fontWeight(), QFont::Bold);
}

TEST_F(MarkupEditTest, EntitiesAreItalic) {
    Open("Fish &amp; chips");
    EXPECT_TRUE(Mark(5).fontItalic());
    EXPECT_FALSE(Mark(11).fontItalic());
}

TEST_F(MarkupEditTest, FaultsHaveAWavyLineBehindLettersOfAnyLength) {
    Open("\u00C4\U0001F34E<bold>x");
    EXPECT_NE(Mark(2).underlineStyle(), QTextCharFormat::WaveUnderline);
    EXPECT_EQ(Mark(3).underlineStyle(), QTextCharFormat::WaveUnderline);
    EXPECT_EQ(Mark(8).underlineStyle(), QTextCharFormat::WaveUnderline);
    EXPECT_NE(Mark(9).underlineStyle(), QTextCharFormat::WaveUnderline);
}

TEST_F(MarkupEditTest, MarksCanBeReadOnEveryPaper) {
    for (int paper = 0; paper < 16; ++paper) {
        SetNumber("BackColor", paper);
        const bool dark = paper <= 3 || paper == 8 || paper == 9;
        SetNumber("textcolor", dark ? 15 : 0);
        Open("<ink=2>");
        const QColor mark = Mark(0).foreground().color();
        const QColor base = edit_->Field().palette().color(QPalette::Base);
        const auto rgb = [](const QColor& colour) {
            return text::Rgb{static_cast<std::uint8_t>(colour.red()),
                             static_cast<std::uint8_t>(colour.green()),
                             static_cast<std::uint8_t>(colour.blue())};
        };
        EXPECT_GE(player::Contrast(rgb(mark), rgb(base)), 3.0) << paper;
    }
}

TEST_F(MarkupEditTest, TheFieldHasTheFontAndTheColoursOfTheGame) {
    SetNumber("Font", 18);
    SetNumber("FontSize", 16);
    SetNumber("BackColor", 1);
    SetNumber("textcolor", 6);
    Open("a");
    EXPECT_EQ(edit_->Field().font().family(), "Liberation Mono");
    EXPECT_EQ(edit_->Field().font().pointSizeF(), 16);
    EXPECT_EQ(edit_->Field().palette().color(QPalette::Base), QColor(0, 0, 230));
    EXPECT_EQ(edit_->Field().palette().color(QPalette::Text), QColor(230, 230, 0));
}

TEST_F(MarkupEditTest, ATextInTheColourOfItsPaperIsEditedInTheColoursOfTheWindows) {
    SetNumber("BackColor", 4);
    SetNumber("textcolor", 4);
    Open("a");
    EXPECT_EQ(edit_->Field().palette().color(QPalette::Base), QApplication::palette().base().color());
    EXPECT_EQ(Preview()->palette().color(QPalette::Base), QColor(0, 230, 0));
}

TEST_F(MarkupEditTest, CountsWhileTyping) {
    Open("one two");
    EXPECT_EQ(LabelText("counts"), "2 words, 6 letters");
    edit_->Field().moveCursor(QTextCursor::End);
    QTest::keyClicks(&edit_->Field(), " <ink=2>x");
    EXPECT_EQ(LabelText("counts"), "3 words, 7 letters");
}

TEST_F(MarkupEditTest, TellsTheFirstFaultInWordsWhileTyping) {
    Open("Fish ");
    EXPECT_EQ(LabelText("fault"), "");
    edit_->Field().moveCursor(QTextCursor::End);
    QTest::keyClicks(&edit_->Field(), "&");
    EXPECT_EQ(LabelText("fault"),
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
}

TEST_F(MarkupEditTest, ShowFaultChoosesIt) {
    Open("one\n\u00C4 <bold> &");
    edit_->ShowFault();
    EXPECT_EQ(edit_->Field().textCursor().selectedText(), "<bold>");
}

TEST_F(MarkupEditTest, PreviewsTheTextAsTheGameShowsIt) {
    SetNumber("defprintwidth", 20);
    Open("You are in a <ink=2>dark<ink> and dusty room.");
    EXPECT_EQ(Preview()->toPlainText(), "You are in a dark \nand dusty room.");
    QTextCursor dark = Preview()->document()->find("dark");
    EXPECT_EQ(dark.charFormat().foreground().color(), QColor(230, 0, 0));
}

TEST_F(MarkupEditTest, APreviewThatIsNarrowerThanTheGameWrapsItsLinesEarlier) {
    SetNumber("defprintwidth", 80);
    std::string text;
    for (int word = 0; word < 40; ++word)
        text += "lighthouse ";
    Open(text);
    window_->resize(300, 500);
    QApplication::processEvents();
    EXPECT_GE(Preview()->document()->blockCount(), 10);
    EXPECT_EQ(Preview()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(MarkupEditTest, APreviewScrollsNotSidewaysForWideLetters) {
    SetNumber("defprintwidth", 80);
    std::string text;
    for (int word = 0; word < 40; ++word)
        text += "MMMMM WWWW ";
    Open(text);
    window_->resize(300, 500);
    QApplication::processEvents();
    EXPECT_EQ(Preview()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(MarkupEditTest, PreviewsWhileTyping) {
    Open("a");
    edit_->Field().moveCursor(QTextCursor::End);
    QTest::keyClicks(&edit_->Field(), "&amp;");
    EXPECT_EQ(Preview()->toPlainText(), "a&");
    EXPECT_TRUE(Preview()->isReadOnly());
}

TEST_F(MarkupEditTest, ThePreviewHoldsNothingThatAWidgetWouldObey) {
    Open("a\x1B\u202Eb");
    EXPECT_EQ(Preview()->toPlainText().toStdString().find('\x1B'), std::string::npos);
}

TEST_F(MarkupEditTest, AnEditorMayBeWithoutAPreview) {
    Open("a", false, "");
    EXPECT_EQ(Preview(), nullptr);
}

TEST_F(MarkupEditTest, TheTextIsNeverSmallerThanThatOfTheWindows) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(24);
    QApplication::setFont(large);
    Open("a");
    EXPECT_EQ(edit_->Field().font().pointSizeF(), 24);
    QApplication::setFont(before);
}

TEST_F(MarkupEditTest, EveryPartHasAnAccessibleName) {
    Open("a");
    EXPECT_EQ(edit_->Field().accessibleName(), "Text");
    EXPECT_EQ(Preview()->accessibleName(), "Converted Message");
    const auto said = [&](const char* name, QAccessible::Text what) {
        return QAccessible::queryAccessibleInterface(edit_->findChild<QLabel*>(name))->text(what);
    };
    EXPECT_EQ(said("counts", QAccessible::Name), edit_->findChild<QLabel*>("counts")->text());
    EXPECT_EQ(said("counts", QAccessible::Description), "Length of the text");
    EXPECT_EQ(said("fault", QAccessible::Description), "First fault of the text");
}

TEST_F(MarkupEditTest, AChangeOfTheThemeLeavesTheGamesColours) {
    SetNumber("BackColor", 7);
    Open("a");
    qt::ApplyTheme(qt::Theme::Dark);
    QApplication::processEvents();
    EXPECT_EQ(edit_->Field().palette().color(QPalette::Base), QColor(230, 230, 230));
    qt::ApplyTheme(qt::Theme::System);
}

}  // namespace
}  // namespace fabula::test
