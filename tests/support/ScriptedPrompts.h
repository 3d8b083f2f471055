#pragma once

#include "core/Prompts.h"

#include <deque>
#include <string>
#include <vector>

/// Takes the place of the message boxes: keeps what was shown and answers from a script, with "Ok" or the careful
/// answer once the script is used up. In force as long as it lives.
class ScriptedPrompts : public Prompts {
public:
    ScriptedPrompts() { setPrompts(this); }
    ~ScriptedPrompts() override { setPrompts(nullptr); }
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;

    PromptAnswer messageBox(const std::string& text, PromptStyle style, PromptButtons buttons) override {
        texts.push_back(text);
        styles.push_back(style);
        if (!answers.empty()) {
            const PromptAnswer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        if (buttons == PromptButtons::Ok)
            return PromptAnswer::Ok;
        return buttons == PromptButtons::YesNo ? PromptAnswer::No : PromptAnswer::Cancel;
    }

    int getOption(OptionsMode mode) override {
        modes.push_back(mode);
        if (options.empty())
            return Prompts::getOption(mode);
        const int option = options.front();
        options.pop_front();
        return option;
    }

    std::optional<std::string> getText(const TextQuestion& question) override {
        questions.push_back(question);
        if (entries.empty())
            return std::nullopt;
        const std::optional<std::string> entry = entries.front();
        entries.pop_front();
        return entry;
    }

    std::vector<std::string> texts;
    std::vector<PromptStyle> styles;
    std::vector<OptionsMode> modes; ///< of the questions with several answers
    std::deque<PromptAnswer> answers;
    std::deque<int> options; ///< answers to those
    std::vector<TextQuestion> questions;
    std::deque<std::optional<std::string>> entries; ///< answers to them
};
