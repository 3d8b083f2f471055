#include "ui/MessageBoxPrompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

/// Lets `act` work on the message box that comes up next.
void onNextBox(std::function<void(QMessageBox&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        act(*box);
    });
}

void press(QMessageBox& box, Qt::Key key) {
    QWidget* focus = box.focusWidget();
    QTest::keyClick(focus ? focus : &box, key);
}

TEST(MessageBoxPrompts, CarryTitleTextAndIcon) {
    struct Case {
        PromptStyle style;
        QMessageBox::Icon icon;
    };
    const Case cases[] = {{PromptStyle::Plain, QMessageBox::NoIcon},
                          {PromptStyle::Question, QMessageBox::Question},
                          {PromptStyle::Information, QMessageBox::Information},
                          {PromptStyle::Stop, QMessageBox::Critical}};
    const MessageBoxPrompts messageBoxes;
    for (const Case& c : cases) {
        bool seen = false;
        onNextBox([&](QMessageBox& box) {
            seen = true;
            EXPECT_EQ(box.windowTitle(), "Callscope Mapping");
            EXPECT_EQ(box.text(), "2 < 3 & <b>not bold</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), c.icon);
            press(box, Qt::Key_Return);
        });
        showMessage("2 < 3 & <b>not bold</b>", c.style);
        EXPECT_TRUE(seen);
    }
}

TEST(MessageBoxPrompts, AnswerByReturnAndEscape) {
    struct Case {
        const char* name;
        PromptButtons buttons;
        Qt::Key key;
        PromptAnswer answer;
    };
    const Case cases[] = {{"ok, Return", PromptButtons::Ok, Qt::Key_Return, PromptAnswer::Ok},
                          {"ok, Escape", PromptButtons::Ok, Qt::Key_Escape, PromptAnswer::Ok},
                          {"ok or cancel, Return", PromptButtons::OkCancel, Qt::Key_Return, PromptAnswer::Ok},
                          {"ok or cancel, Escape", PromptButtons::OkCancel, Qt::Key_Escape, PromptAnswer::Cancel},
                          {"yes or no, Return", PromptButtons::YesNo, Qt::Key_Return, PromptAnswer::Yes},
                          {"yes or no, Escape", PromptButtons::YesNo, Qt::Key_Escape, PromptAnswer::No}};
    MessageBoxPrompts messageBoxes;
    for (const Case& c : cases) {
        onNextBox([&](QMessageBox& box) { press(box, c.key); });
        EXPECT_EQ(messageBoxes.messageBox("Really?", PromptStyle::Question, c.buttons), c.answer) << c.name;
    }
}

} // namespace
