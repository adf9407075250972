#pragma once

#include <QTest>
#include <QWidget>

namespace fabula::test {

/// In milliseconds. It only ends a test that would wait for ever: under the sanitizers, with other programs
/// on the machine, Qt's own five seconds are not always enough.
inline constexpr int kLongestWait = 60'000;

/// Waits until a window has the keyboard.
inline bool BecomesActive(QWidget* window) {
    return QTest::qWaitForWindowActive(window, kLongestWait);
}

}  // namespace fabula::test
