#include "tests/ui/ModalActions.h"
#include "ui/MessageBoxPrompts.h"
#include "ui/frmOptions.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

namespace {

QStringList visibleButtons(const frmOptions& window) {
    QStringList texts;
    for (int i = 0; i < 4; ++i)
        if (window.cmdOption(i)->isVisible())
            texts.append(window.cmdOption(i)->text());
    return texts;
}

TEST(Options, ShowWhatTheirModeAsks) {
    struct Case {
        OptionsMode mode;
        const char* caption;
        const char* text;
        QStringList buttons;
    };
    const Case cases[] = {
        {OptionsMode::GroupTypeOrCancel,
         "Group Type",
         "No groups have been set up for this account.  Do you wish to base groups on Postcode Districts, or on TV "
         "Regions?",
         {"Postcode Districts", "TV Regions", "CSGs", "Cancel"}},
        {OptionsMode::GroupType,
         "Group Type",
         "Please select if the groups for this account are based on Postcode Districts, or on TV Regions",
         {"Postcode Districts", "TV Regions"}},
        {OptionsMode::BoundaryType,
         "Boundary Type",
         "Please select whether the CSV file defines the population densities for Postcode Districts, or TV Regions.",
         {"Postcode Districts", "TV Regions", "&Cancel"}}};
    for (const Case& c : cases) {
        frmOptions window;
        window.setMode(c.mode);
        bool seen = false;
        onNextModal<frmOptions>([&](frmOptions& options) {
            seen = true;
            EXPECT_EQ(options.windowTitle(), c.caption);
            EXPECT_EQ(options.Label1()->text(), c.text);
            EXPECT_EQ(visibleButtons(options), c.buttons);
            QTest::mouseClick(options.cmdOption(1), Qt::LeftButton);
        });
        EXPECT_EQ(window.GetOption(), 1);
        EXPECT_TRUE(seen);
    }
}

TEST(Options, AnswerEveryButtonAndKey) {
    struct Case {
        const char* name;
        OptionsMode mode;
        std::function<void(frmOptions&)> act;
        int answer;
    };
    const auto click = [](int index) {
        return [index](frmOptions& options) { QTest::mouseClick(options.cmdOption(index), Qt::LeftButton); };
    };
    const auto press = [](Qt::Key key) { return [key](frmOptions& options) { pressKey(options, key); }; };
    const Case cases[] = {
        {"first", OptionsMode::GroupTypeOrCancel, click(0), 0},
        {"third", OptionsMode::GroupTypeOrCancel, click(2), 2},
        {"cancel", OptionsMode::GroupTypeOrCancel, click(3), 3},
        {"Return takes the first", OptionsMode::GroupTypeOrCancel, press(Qt::Key_Return), 0},
        {"Escape cancels", OptionsMode::GroupTypeOrCancel, press(Qt::Key_Escape), 3},
        {"Escape cancels, third button", OptionsMode::BoundaryType, press(Qt::Key_Escape), 2},
        {"close box cancels", OptionsMode::BoundaryType, [](frmOptions& options) { options.close(); }, 2},
        {"no way out without an answer", OptionsMode::GroupType,
         [](frmOptions& options) {
             pressKey(options, Qt::Key_Escape);
             options.close();
             EXPECT_TRUE(options.isVisible());
             QTest::mouseClick(options.cmdOption(1), Qt::LeftButton);
         },
         1}};
    MessageBoxPrompts messageBoxes;
    for (const Case& c : cases) {
        onNextModal<frmOptions>(c.act);
        EXPECT_EQ(prompts().getOption(c.mode), c.answer) << c.name;
    }
}

} // namespace
