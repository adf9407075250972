#include "ide/main_window.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include "ide/opened_window.h"

namespace fabula::test {
namespace {

TEST(MainWindow, OffersNewOpenAndImportWhileNothingIsOpen) {
    OpenedWindow opened;
    for (const char* name : {"cmdNew", "cmdOpen", "cmdImport"}) {
        auto* button = opened.Window().findChild<QPushButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_TRUE(button->isVisible()) << name;
    }
}

}  // namespace
}  // namespace fabula::test
