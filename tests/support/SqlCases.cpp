#include "tests/support/SqlCases.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

class Reader {
public:
    Reader(const std::filesystem::path& path, std::vector<SqlCase>& cases)
        : file_(path), name_(path.stem().string()), cases_(cases) {}

    void read() {
        std::string text;
        while (std::getline(file_, text))
            line(text);
        finishStep();
    }

private:
    void line(const std::string& text) {
        if (text.starts_with("== ")) {
            finishStep();
            cases_.push_back({name_, text.substr(3), {}});
        } else if (text.starts_with("-- ")) {
            directive(text.substr(3));
        } else if (!text.empty()) {
            if (readsRows_) {
                step_.rows.push_back(text);
                return;
            }
            if (!step_.expectation.empty())
                finishStep();
            step_.statement += (step_.statement.empty() ? "" : "\n") + text;
        } else {
            readsRows_ = false;
        }
    }

    void directive(const std::string& text) {
        if (text.starts_with("columns ")) {
            step_.columns = text.substr(8);
        } else if (text.starts_with("emits ")) {
            step_.emits = text.substr(6);
        } else {
            if (step_.statement.empty())
                throw std::runtime_error(name_ + ": no statement before -- " + text);
            step_.expectation = text;
            readsRows_ = text == "rows" || text == "any order";
        }
    }

    void finishStep() {
        readsRows_ = false;
        if (step_.statement.empty())
            return;
        if (cases_.empty() || step_.expectation.empty())
            throw std::runtime_error(name_ + ": nothing is expected of " + step_.statement);
        cases_.back().steps.push_back(std::move(step_));
        step_ = {};
    }

    std::ifstream file_;
    std::string name_;
    std::vector<SqlCase>& cases_;
    SqlStep step_;
    bool readsRows_ = false;
};

} // namespace

std::vector<SqlCase> readSqlCases(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<SqlCase> cases;
    for (const auto& file : files)
        Reader(file, cases).read();
    return cases;
}
