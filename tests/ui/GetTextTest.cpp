#include "tests/support/ScriptedPrompts.h"
#include "tests/ui/ModalActions.h"
#include "ui/frmGetText.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

/// As the keyboard does; the keys of other alphabets have no name of their own.
void type(QWidget& box, const QString& keys) {
    for (const QChar key : keys) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(key));
        QApplication::sendEvent(&box, &press);
    }
}

/// What the box shows after `keys` were typed into it, behind `before`.
QString typed(int format, const QString& before, const QString& keys) {
    QString text = before, shown;
    bool cancelled = false;
    frmGetText window;
    window.setFormat(format);
    onNextModal<frmGetText>([&](frmGetText& prompt) {
        type(*prompt.focusWidget(), keys);
        shown = prompt.txtText()->text();
        prompt.reject();
    });
    window.GetText(text, cancelled);
    return shown;
}

TEST(GetText, TakesTheKeysOfItsFormat) {
    const QString keys = QString::fromUtf8("aZ0 9.-'_,\u00E9\u0663.m");
    EXPECT_EQ(typed(frmGetText::LettersAndDigits, "", keys), "aZ09m");
    EXPECT_EQ(typed(frmGetText::Letters, "", keys), "aZm");
    EXPECT_EQ(typed(frmGetText::Digits, "", keys), "09");
    EXPECT_EQ(typed(frmGetText::Currency, "", keys), "09.");
    EXPECT_EQ(typed(frmGetText::Currency, "12.5", "0.7"), "12.507") << "one point only";
}

TEST(GetText, LetsEditingKeysThrough) {
    QString text = "12.5";
    bool cancelled = true;
    frmGetText window;
    window.setFormat(frmGetText::Currency);
    onNextModal<frmGetText>([&](frmGetText& prompt) {
        QLineEdit* box = prompt.txtText();
        EXPECT_EQ(prompt.focusWidget(), box);
        EXPECT_EQ(box->cursorPosition(), 4) << "behind the text";
        EXPECT_FALSE(box->hasSelectedText());
        EXPECT_TRUE(prompt.lblPound()->isVisible());
        QTest::keyClick(box, Qt::Key_Backspace);
        EXPECT_EQ(box->text(), "12.");
        box->setSelection(1, 2);
        QTest::keyClicks(box, ".75");
        EXPECT_EQ(box->text(), "1.75") << "the point was selected, so it may be typed again";
        box->setSelection(0, 1);
        QTest::keyClick(box, Qt::Key_Delete);
        EXPECT_EQ(box->text(), ".75");
        QTest::keyClick(box, Qt::Key_Return);
    });
    window.GetText(text, cancelled);
    EXPECT_FALSE(cancelled);
    EXPECT_EQ(text, ".75");
}

TEST(GetText, CleansPastedTextInFormatsOfNumbers) {
    struct Case {
        int format;
        const char* pasted;
        const char* shown;
    };
    const Case cases[] = {{frmGetText::Digits, "a1b2.3\n4", "1234"},
                          {frmGetText::Currency, "\u00A31,234.50.5", "1234.505"},
                          {frmGetText::Currency, "nothing", ""},
                          {frmGetText::LettersAndDigits, "North West", "North West"},
                          {frmGetText::Letters, "Depot 7", "Depot 7"}};
    for (const Case& c : cases) {
        QString text;
        bool cancelled = false;
        frmGetText window;
        window.setFormat(c.format);
        QApplication::clipboard()->setText(QString::fromUtf8(c.pasted));
        onNextModal<frmGetText>([&](frmGetText& prompt) {
            QTest::keyClick(prompt.txtText(), Qt::Key_V, Qt::ControlModifier);
            EXPECT_EQ(prompt.txtText()->text(), c.shown) << c.pasted;
            prompt.reject();
        });
        window.GetText(text, cancelled);
    }
}

TEST(GetText, KeepsTheCaretWhereSomethingWasPastedIn) {
    frmGetText window;
    window.setFormat(frmGetText::Currency);
    window.txtText()->setText("19.5");
    window.txtText()->setCursorPosition(1);
    window.txtText()->insert("2x.3");
    EXPECT_EQ(window.txtText()->text(), "12.395") << "the first point stays";
    EXPECT_EQ(window.txtText()->cursorPosition(), 4);
}

TEST(GetText, LeavesTheTextOfOneWhoCancels) {
    for (const bool byEscape : {true, false}) {
        QString text = "old";
        bool cancelled = false;
        frmGetText window;
        onNextModal<frmGetText>([&](frmGetText& prompt) {
            QTest::keyClicks(prompt.txtText(), "new");
            if (byEscape)
                pressKey(prompt, Qt::Key_Escape);
            else
                QTest::mouseClick(prompt.cmdCancel(), Qt::LeftButton);
        });
        window.GetText(text, cancelled);
        EXPECT_TRUE(cancelled);
        EXPECT_EQ(text, "old");
    }
}

TEST(GetText, WantsAFigureInFormatsOfNumbersOnly) {
    ScriptedPrompts prompts;
    for (const int format : {0, 1, 2, 3}) {
        prompts.texts.clear();
        QString text;
        bool cancelled = true;
        frmGetText window;
        window.setFormat(format);
        onNextModal<frmGetText>([&](frmGetText& prompt) {
            QTest::mouseClick(prompt.cmdOK(), Qt::LeftButton);
            if (!prompt.isVisible())
                return;
            EXPECT_EQ(prompt.focusWidget(), prompt.txtText());
            QTest::keyClicks(prompt.txtText(), "0");
            pressKey(prompt, Qt::Key_Return);
        });
        window.GetText(text, cancelled);
        EXPECT_FALSE(cancelled);
        const bool numeric = format >= 2;
        EXPECT_EQ(text, numeric ? "0" : "") << format;
        ASSERT_EQ(prompts.texts.size(), numeric ? 1u : 0u) << format;
        if (numeric) {
            EXPECT_EQ(prompts.texts[0], "Figure may not be blank, please enter 0 if no number applies.");
        }
    }
}

TEST(GetText, ShowsTheWordsOfItsCaller) {
    frmGetText window;
    window.setWindowTitle("Add New Group");
    window.lblInstructions()->setText("Please enter name for the new Customer Group (max 30 characters)");
    window.txtText()->setMaxLength(3);
    QString text;
    bool cancelled = true;
    onNextModal<frmGetText>([&](frmGetText& prompt) {
        EXPECT_FALSE(prompt.lblPound()->isVisible());
        QTest::keyClicks(prompt.txtText(), "North");
        pressKey(prompt, Qt::Key_Return);
    });
    window.GetText(text, cancelled);
    EXPECT_EQ(text, "Nor");
}

} // namespace
