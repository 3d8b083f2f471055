#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The questions with more answers than yes and no, by the numbers under which they are told.
enum class OptionsMode {
    GroupTypeOrCancel = 1, ///< which areas an account without groups shall group
    GroupType = 2,         ///< which areas the groups of an account are made of; must be answered
    BoundaryType = 3       ///< which areas a file of population figures is about
};

/// How such a question reads. An answer is the index of a button.
struct PromptOptions {
    std::string_view caption;
    std::string_view text;
    std::vector<std::string_view> buttons; ///< "&" stands before a mnemonic
    int cancel;                            ///< index of the button that Escape presses; -1: there is none
};

/// Never fails: the modes are those above.
const PromptOptions& promptOptions(OptionsMode mode);

/// What keys a text prompt takes (frmGetText); Any takes all of them.
enum class TextFormat { LettersAndDigits = 0, Letters = 1, Digits = 2, Currency = 3, Any = -1 };

/// A question for one text.
struct TextQuestion {
    std::string caption;
    std::string instructions;
    std::string text; ///< what stands in the box at first
    TextFormat format = TextFormat::Any;
    int limit = 0; ///< longest text, characters; 0: none
};
