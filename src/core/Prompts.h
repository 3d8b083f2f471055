#pragma once

#include "core/PromptOptions.h"

#include <optional>
#include <string>

/// Styles of a message box, by the numbers under which the messages are told.
enum class PromptStyle { Plain = 0, Question = 32, Information = 64, Stop = 16 };
enum class PromptButtons { Ok, OkCancel, YesNo };
enum class PromptAnswer { Ok, Cancel, Yes, No };

/// How procedures speak to the user. Windows show message boxes with the program's title, the command line tool prints
/// to standard error, tests answer from a script. Called on the main thread; returns when the user has answered.
class Prompts {
public:
    virtual ~Prompts() = default;
    virtual PromptAnswer messageBox(const std::string& text, PromptStyle style, PromptButtons buttons) = 0;
    /// The index of the button pressed (frmOptions). Where nobody can be asked: the button that cancels, or the first.
    virtual int getOption(OptionsMode mode);
    /// The text entered (frmGetText); nothing where the user cancels or nobody can be asked.
    virtual std::optional<std::string> getText(const TextQuestion& question);
};

/// The program's prompts. Never null: until one is set, messages go to standard error and questions are answered with
/// the careful answer (Cancel or No). The caller keeps ownership; pass null to return to the default.
Prompts& prompts();
void setPrompts(Prompts* prompts);

/// Shorthands.
void showMessage(const std::string& text, PromptStyle style = PromptStyle::Plain);
bool askYesNo(const std::string& text, PromptStyle style = PromptStyle::Question);
