#include "tests/support/SqlCases.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace {

/// In the order of the file.
using Names = std::vector<std::pair<std::string, std::string>>;

/// "table=TblTV; key=TVRegion"
Names namesOf(std::string_view text) {
    Names names;
    while (!text.empty()) {
        const std::string_view pair = text.substr(0, text.find("; "));
        text.remove_prefix(std::min(text.size(), pair.size() + 2));
        const auto equals = pair.find('=');
        if (equals == std::string_view::npos)
            throw std::runtime_error("-- each wants name=text: " + std::string(pair));
        names.emplace_back(pair.substr(0, equals), pair.substr(equals + 1));
    }
    return names;
}

void fill(std::string& text, const Names& names) {
    for (const auto& [name, value] : names) {
        const std::string mark = "{" + name + "}";
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + value.size()))
            text.replace(at, mark.size(), value);
    }
}

SqlCase filled(SqlCase sqlCase, const Names& names) {
    sqlCase.name += " " + names.front().second;
    for (SqlStep& step : sqlCase.steps) {
        for (std::string* text : {&step.statement, &step.expectation, &step.columns, &step.emits, &step.database})
            fill(*text, names);
        for (std::string& row : step.rows)
            fill(row, names);
    }
    return sqlCase;
}

class Reader {
public:
    Reader(const std::filesystem::path& path, std::vector<SqlCase>& cases)
        : file_(path), name_(path.stem().string()), cases_(cases) {}

    void read() {
        std::string text;
        while (std::getline(file_, text))
            line(text);
        finishCase();
    }

private:
    void line(const std::string& text) {
        if (text.starts_with("== ")) {
            finishCase();
            case_ = {name_, text.substr(3), {}};
            database_ = databaseOfFile_;
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
        } else if (text.starts_with("each ")) {
            each_.push_back(namesOf(text.substr(5)));
        } else if (text.starts_with("on ")) {
            finishStep();
            (case_.name.empty() ? databaseOfFile_ : database_) = text.substr(3);
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
        if (case_.name.empty() || step_.expectation.empty())
            throw std::runtime_error(name_ + ": nothing is expected of " + step_.statement);
        step_.database = database_;
        case_.steps.push_back(std::move(step_));
        step_ = {};
    }

    void finishCase() {
        finishStep();
        if (!case_.name.empty() && each_.empty())
            cases_.push_back(case_);
        for (const Names& names : each_)
            cases_.push_back(filled(case_, names));
        case_ = {};
        each_.clear();
    }

    std::ifstream file_;
    std::string name_;
    std::vector<SqlCase>& cases_;
    SqlCase case_;
    SqlStep step_;
    std::vector<Names> each_;
    std::string databaseOfFile_;
    std::string database_;
    bool readsRows_ = false;
};

} // namespace

std::string sqlCaseTestName(const SqlCase& sqlCase, std::size_t index) {
    std::string name = sqlCase.file + "_" + std::to_string(index) + "_" + sqlCase.name;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return c >= 0x80 || !std::isalnum(c); }, '_');
    return name;
}

std::vector<SqlCase> readSqlCases(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".txt" && entry.path().filename() != "CMakeLists.txt")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<SqlCase> cases;
    for (const auto& file : files)
        Reader(file, cases).read();
    return cases;
}
