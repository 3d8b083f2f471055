#pragma once

#include "core/Prompts.h"

#include <iostream>

/// For work that the user of the command line has asked for by a command: messages and questions go to standard error,
/// and every question is agreed to. In force as long as it lives.
class AgreeingPrompts : public Prompts {
public:
    AgreeingPrompts() { setPrompts(this); }
    ~AgreeingPrompts() override { setPrompts(nullptr); }
    AgreeingPrompts(const AgreeingPrompts&) = delete;
    AgreeingPrompts& operator=(const AgreeingPrompts&) = delete;

    PromptAnswer messageBox(const std::string& text, PromptStyle, PromptButtons buttons) override {
        std::cerr << text << (buttons == PromptButtons::Ok ? "\n" : "  Yes.\n");
        return buttons == PromptButtons::YesNo ? PromptAnswer::Yes : PromptAnswer::Ok;
    }
};
