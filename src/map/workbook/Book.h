#pragma once

#include <string>
#include <string_view>

#include <xlsxwriter.h>

/// A workbook that is being written. Every member that fails throws RuntimeError 75 naming the path.
class Book {
public:
    explicit Book(const std::string& path);
    ~Book();
    Book(const Book&) = delete;
    Book& operator=(const Book&) = delete;

    lxw_worksheet* sheet(const char* name) { return workbook_add_worksheet(book_, name); }
    lxw_format* format() { return workbook_add_format(book_); }
    /// Writes the file.
    void close();

private:
    std::string path_;
    lxw_workbook* book_;
};

/// The width of a column that shows the text, in characters: a guess, as fonts differ.
double widthOf(std::string_view text);
