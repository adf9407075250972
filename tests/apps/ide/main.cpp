#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "qt/look/theme.h"

/// Windows need an application, and tests need no screen.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the choice of files remembers is not the person's who runs the tests.
    const QTemporaryDir remembered;
    qputenv("XDG_CONFIG_HOME", remembered.path().toUtf8());
    QApplication app(argc, argv);
    fabula::qt::ApplyTheme(fabula::qt::Theme::System);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
