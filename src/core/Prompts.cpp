#include "core/Prompts.h"

#include <algorithm>
#include <iostream>

namespace {

class StandardErrorPrompts : public Prompts {
public:
    PromptAnswer messageBox(const std::string& text, PromptStyle /*style*/, PromptButtons buttons) override {
        std::cerr << text << '\n';
        switch (buttons) {
        case PromptButtons::OkCancel:
            return PromptAnswer::Cancel;
        case PromptButtons::YesNo:
            return PromptAnswer::No;
        case PromptButtons::Ok:
            break;
        }
        return PromptAnswer::Ok;
    }
    int getOption(OptionsMode mode) override {
        std::cerr << promptOptions(mode).text << '\n';
        return Prompts::getOption(mode);
    }
    std::optional<std::string> getText(const TextQuestion& question) override {
        std::cerr << question.instructions << '\n';
        return std::nullopt;
    }
};

StandardErrorPrompts standardErrorPrompts;
Prompts* currentPrompts = &standardErrorPrompts;

} // namespace

int Prompts::getOption(OptionsMode mode) {
    return std::max(promptOptions(mode).cancel, 0);
}

std::optional<std::string> Prompts::getText(const TextQuestion& /*question*/) {
    return std::nullopt;
}

Prompts& prompts() {
    return *currentPrompts;
}

void setPrompts(Prompts* prompts) {
    currentPrompts = prompts ? prompts : &standardErrorPrompts;
}

void showMessage(const std::string& text, PromptStyle style) {
    prompts().messageBox(text, style, PromptButtons::Ok);
}

bool askYesNo(const std::string& text, PromptStyle style) {
    return prompts().messageBox(text, style, PromptButtons::YesNo) == PromptAnswer::Yes;
}
