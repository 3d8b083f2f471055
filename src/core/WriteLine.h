#pragma once

#include <chrono>
#include <string>
#include <string_view>

/// One line of a data file in "write" style, in which the log and the history are kept: values separated by commas,
/// texts in double quotes, numbers plain, dates as literals between # signs (#2025-12-31 17:05:09#).
///
/// Double quotes inside a text are kept as they are, not doubled. Line breaks inside a text become blanks, so that a
/// line stays one line.
class WriteLine {
public:
    WriteLine& text(std::string_view value);
    WriteLine& number(long value);
    /// A wall-clock time of the machine, to the second.
    WriteLine& dateTime(std::chrono::system_clock::time_point value);

    /// The line without its line end.
    const std::string& str() const { return line_; }

private:
    void separate();

    std::string line_;
};

/// The text without any double quote.
std::string StripQuotes(std::string_view text);
