#include "ui/MessageBoxPrompts.h"
#include "tests/ui/ModalActions.h"

#include <gtest/gtest.h>

#include <QMessageBox>

namespace {

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
        onNextModal<QMessageBox>([&](QMessageBox& box) {
            seen = true;
            EXPECT_EQ(box.windowTitle(), "Callscope Mapping");
            EXPECT_EQ(box.text(), "2 < 3 & <b>not bold</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), c.icon);
            pressKey(box, Qt::Key_Return);
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
        onNextModal<QMessageBox>([&](QMessageBox& box) { pressKey(box, c.key); });
        EXPECT_EQ(messageBoxes.messageBox("Really?", PromptStyle::Question, c.buttons), c.answer) << c.name;
    }
}

TEST(MessageBoxPrompts, ShowThePlainPointerInTheMidstOfWork) {
    MessageBoxPrompts messageBoxes;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    onNextModal<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        pressKey(box, Qt::Key_Return);
    });
    showMessage("Really?");
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

} // namespace
