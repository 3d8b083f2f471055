#include "map/workbook/Book.h"

#include "core/RuntimeError.h"

#include <algorithm>

Book::Book(const std::string& path) : path_(path), book_(workbook_new(path.c_str())) {
    if (!book_)
        throw RuntimeError(75, "The workbook '" + path_ + "' cannot be written");
}

Book::~Book() {
    if (book_)
        workbook_close(book_);
}

void Book::close() {
    const lxw_error fault = workbook_close(book_);
    book_ = nullptr;
    if (fault != LXW_NO_ERROR)
        throw RuntimeError(75, "The workbook '" + path_ + "' cannot be written: " + lxw_strerror(fault));
}

double widthOf(std::string_view text) {
    return static_cast<double>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}
