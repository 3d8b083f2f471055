#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

/// Lets `act` work on the modal window that comes up next. A window of another kind fails the test and is closed.
template<typename Window>
void onNextModal(std::function<void(Window&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* window = qobject_cast<Window*>(modal);
        if (!window && modal)
            modal->close();
        ASSERT_TRUE(window);
        act(*window);
    });
}

/// Presses a key where the keyboard stands.
inline void pressKey(QWidget& window, Qt::Key key) {
    QWidget* focus = window.focusWidget();
    QTest::keyClick(focus ? focus : &window, key);
}
