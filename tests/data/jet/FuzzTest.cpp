#include "data/jet/Parser.h"
#include "data/types/DatabaseError.h"
#include "tests/data/jet/JetFixture.h"
#include "tests/support/SqlCases.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const std::string folder = CALLSCOPE_SQL_CASES;

std::vector<std::string> knownStatements() {
    std::vector<std::string> statements;
    for (const SqlCase& sqlCase : readSqlCases(folder)) {
        for (const SqlStep& step : sqlCase.steps)
            statements.push_back(step.statement);
    }
    return statements;
}

/// Puts one word of the statement in the place of another, so that most of what results can still be read.
std::string withWordMoved(const std::string& text, std::mt19937& random) {
    std::vector<std::string> words;
    std::string word;
    for (const char c : text + " ") {
        if (c != ' ') {
            word += c;
        } else if (!word.empty()) {
            words.push_back(std::move(word));
            word.clear();
        }
    }
    if (words.empty())
        return text;
    words[random() % words.size()] = words[random() % words.size()];
    std::string moved;
    for (const std::string& next : words)
        moved += (moved.empty() ? "" : " ") + next;
    return moved;
}

/// Changes a statement at a few places: drops, doubles, swaps or inserts bytes and words.
std::string mutated(std::string text, const std::vector<std::string>& statements, std::mt19937& random) {
    static const std::vector<std::string> pieces{"(",          ")",          "'",
                                                 "\"",         "[",          "]",
                                                 "#",          ",",          ".",
                                                 "*",          " SELECT ",   " FROM ",
                                                 " WHERE ",    " AND ",      " NOT ",
                                                 " IN ",       " NULL ",     "-",
                                                 "+",          "=",          "<",
                                                 ";",          "&",          " JOIN ",
                                                 " ON ",       "1e9",        "999999999999999999999",
                                                 "\xC3",       "\x01",       " AS ",
                                                 " BETWEEN ",  " LIKE ",     " ORDER BY ",
                                                 " GROUP BY ", "IIf(",       "Sum(",
                                                 " TOP 1 ",    " DISTINCT ", " UNION ",
                                                 "\\",         "^",          " MOD "};
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random()) % limit; };
    if (below(2) == 0)
        return withWordMoved(text, random);
    for (std::size_t times = 1 + below(4); times > 0; --times) {
        const std::size_t at = below(text.size() + 1);
        switch (below(5)) {
        case 0:
            text.erase(at, 1 + below(5));
            break;
        case 1:
            text.insert(at, pieces[below(pieces.size())]);
            break;
        case 2:
            text.insert(at, text.substr(below(text.size() + 1), below(30)));
            break;
        case 3: {
            const std::string& other = statements[below(statements.size())];
            text = text.substr(0, at) + other.substr(below(other.size()));
            break;
        }
        default:
            if (at < text.size())
                text[at] = static_cast<char>(random() & 0xFF);
        }
        if (text.empty())
            text = "SELECT";
    }
    return text;
}

} // namespace

TEST(Fuzz, EveryStatementGivesAProgramOrOneError) {
    JetFixture database;
    database.runFile(folder + "/fixture.sql");
    const std::vector<std::string> statements = knownStatements();
    ASSERT_GT(statements.size(), 100u);
    std::mt19937 random(4711);
    int programs = 0;
    int errors = 0;
    for (int i = 0; i < 30000; ++i) {
        const std::string statement =
            mutated(statements[static_cast<std::size_t>(i) % statements.size()], statements, random);
        try {
            const jet::Program program = jet::translate(statement, database);
            ASSERT_TRUE(program.isQuery ? !program.query.empty() : !program.steps.empty()) << statement;
            ++programs;
        } catch (const DatabaseError& error) {
            ++errors;
            ASSERT_FALSE(error.description().empty()) << statement;
            if (error.position()) {
                ASSERT_LE(*error.position(), statement.size()) << statement;
            }
        }
    }
    EXPECT_GT(programs, 1500);
    EXPECT_GT(errors, 1000);
}

TEST(Fuzz, WhatIsTranslatedTheLibraryTakes) {
    JetFixture database;
    database.runFile(folder + "/fixture.sql");
    const std::vector<std::string> statements = knownStatements();
    std::mt19937 random(815);
    int ran = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::string statement =
            mutated(statements[static_cast<std::size_t>(i) % statements.size()], statements, random);
        try {
            const jet::Program program = jet::translate(statement, database);
            if (!program.isQuery)
                continue;
            ++ran;
            database.queryPlain(program.query, program.columns); // throws std::runtime_error where the library refuses
        } catch (const DatabaseError&) {
            continue; // refused, or a fault of the values
        }
    }
    EXPECT_GT(ran, 500);
}
