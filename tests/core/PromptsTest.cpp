#include "core/Prompts.h"

#include <gtest/gtest.h>

namespace {

TEST(Prompts, AnswerWithCareWhereNobodyCanBeAsked) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(prompts().getOption(OptionsMode::GroupTypeOrCancel), 3) << "Cancel";
    EXPECT_EQ(prompts().getOption(OptionsMode::GroupType), 0) << "no way to cancel";
    EXPECT_EQ(prompts().getOption(OptionsMode::BoundaryType), 2) << "Cancel";
    EXPECT_FALSE(askYesNo("Really?"));
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_NE(told.find("Please select if the groups for this account"), std::string::npos);
    EXPECT_NE(told.find("Really?"), std::string::npos);
}

TEST(PromptOptions, NameAButtonThatCancels) {
    for (const OptionsMode mode : {OptionsMode::GroupTypeOrCancel, OptionsMode::BoundaryType}) {
        const PromptOptions& options = promptOptions(mode);
        ASSERT_GE(options.cancel, 0);
        EXPECT_NE(options.buttons.at(static_cast<std::size_t>(options.cancel)).find("Cancel"), std::string_view::npos);
    }
}

} // namespace
