// What was typed stays in its dialog when it can't be stored.

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "ide/dialog_stand.h"
#include "ide/window/typed_texts.h"
#include "qt/strings.h"
#include "support/active_window.h"

namespace fabula::test {
namespace {

struct Typed {
    const char* dialog;
    const char* field;
};

void PrintTo(const Typed& typed, std::ostream* out) {
    *out << typed.dialog;
}

class FailingUpdate : public testing::TestWithParam<Typed> {
  protected:
    FailingUpdate() { Furnish(desk_); }

    std::shared_ptr<QDialog> Open() {
        for (const DialogStand& stand : EveryDialog()) {
            if (std::string(stand.name) != GetParam().dialog) continue;
            std::shared_ptr<QDialog> dialog = stand.open(desk_);
            dialog->show();
            EXPECT_TRUE(test::BecomesActive(dialog.get()));
            return dialog;
        }
        return nullptr;
    }
    static std::string TextOf(const QWidget& field) {
        if (const auto* line = qobject_cast<const QLineEdit*>(&field)) return qt::FromQt(line->text());
        if (const auto* text = qobject_cast<const QPlainTextEdit*>(&field))
            return qt::FromQt(text->toPlainText());
        return "it is no text";
    }

    Desk desk_;
};

TEST_P(FailingUpdate, KeepsTheDialogWithItsText) {
    const auto dialog = Open();
    auto* control = dialog->findChild<QWidget*>(GetParam().field);
    ASSERT_NE(control, nullptr);
    control->setFocus();
    QWidget* field = QApplication::focusWidget();
    QTest::keyClick(field, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(field, " DONE");
    const std::string typed = TextOf(*field);
    ASSERT_TRUE(typed.ends_with(" DONE")) << typed;
    std::filesystem::remove(desk_.document.File());
    dialog->findChild<QPushButton*>("update")->click();
    QApplication::processEvents();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(TextOf(*field), typed);
    ASSERT_FALSE(desk_.Boxes().empty());
    EXPECT_TRUE(desk_.Boxes().back().ends_with("its file is no longer where it was opened."))
        << desk_.Boxes().back();
}

TEST_P(FailingUpdate, AFaultFindsWhatTheDialogHolds) {
    const auto dialog = Open();
    dialog->findChild<QWidget*>(GetParam().field)->setFocus();
    QWidget* field = QApplication::focusWidget();
    QTest::keyClick(field, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(field, " DONE");
    const std::string title = qt::FromQt(dialog->windowTitle());
    const std::string texts = ide::TypedTexts();
    EXPECT_NE(texts.find("[" + title + ": "), std::string::npos) << texts;
    EXPECT_NE(texts.find("]\n" + TextOf(*field) + "\n"), std::string::npos) << texts;
    dialog->hide();
    EXPECT_EQ(ide::TypedTexts().find(" DONE"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, FailingUpdate,
                         testing::Values(Typed{"Location", "shortDescription"},
                                         Typed{"Object", "description"}, Typed{"Message", "text"},
                                         Typed{"SystemMessage", "text"},
                                         Typed{"ProcessDescription", "text"}, Typed{"ProcessEntry", "line"},
                                         Typed{"Flag", "description"}),
                         [](const auto& given) { return std::string(given.param.dialog); });

}  // namespace
}  // namespace fabula::test
