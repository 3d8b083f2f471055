#pragma once

#include "core/Prompts.h"

/// Prompts as message boxes over the active window, with the program's title, as frmOptions and as
/// frmGetText. In force as long as it
/// lives.
class MessageBoxPrompts : public Prompts {
public:
    MessageBoxPrompts() { setPrompts(this); }
    ~MessageBoxPrompts() override { setPrompts(nullptr); }
    MessageBoxPrompts(const MessageBoxPrompts&) = delete;
    MessageBoxPrompts& operator=(const MessageBoxPrompts&) = delete;

    PromptAnswer messageBox(const std::string& text, PromptStyle style, PromptButtons buttons) override;
    int getOption(OptionsMode mode) override;
    std::optional<std::string> getText(const TextQuestion& question) override;
};
