#include <QApplication>

#include <gtest/gtest.h>

#include "qt/theme.h"

/// Windows need an application, and tests need no screen.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    fabula::qt::ApplyTheme(fabula::qt::Theme::System);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
