#include "fuzz/StatementSeeds.h"

#include "data/jet/ScalarFunctions.h"
#include "tests/support/SqlCases.h"

#include <fstream>
#include <stdexcept>

namespace {
const std::string folder = CALLSCOPE_SQL_CASES;
} // namespace

std::vector<std::string> statementSeeds() {
    std::vector<std::string> statements;
    for (const SqlCase& sqlCase : readSqlCases(folder)) {
        for (const SqlStep& step : sqlCase.steps)
            statements.push_back(step.statement);
    }
    return statements;
}

std::vector<std::string> dialectTokens() {
    std::vector<std::string> tokens{"(",
                                    ")",
                                    "'",
                                    "\"",
                                    "[",
                                    "]",
                                    "#",
                                    ",",
                                    ".",
                                    "*",
                                    ";",
                                    "&",
                                    "-",
                                    "+",
                                    "=",
                                    "<",
                                    ">",
                                    "<>",
                                    "\\",
                                    "^",
                                    "!",
                                    "/",
                                    "\xC3",
                                    "\xE2\x82",
                                    "\xF0\x9F\x98\x80",
                                    "\x01",
                                    "1e9",
                                    "1e308",
                                    "-1",
                                    "0.5",
                                    "999999999999999999999",
                                    "9223372036854775807",
                                    "2147483648",
                                    "'London'",
                                    "'[a-z]*'",
                                    "#02/30/2025#",
                                    "#23:59:59#",
                                    "#1/1/100#",
                                    "[1141]",
                                    "Calls1",
                                    "Cost1",
                                    "Started",
                                    "Active",
                                    "Note",
                                    "TVRegion",
                                    "Areas",
                                    "Codes",
                                    "Groups",
                                    "Calls"};
    for (const char* word :
         {"SELECT", "FROM",     "WHERE", "AND",      "OR",          "XOR",      "NOT",   "IN",       "NULL",
          "IS",     "JOIN",     "INNER", "LEFT",     "RIGHT",       "ON",       "AS",    "BETWEEN",  "LIKE",
          "ORDER",  "GROUP",    "BY",    "HAVING",   "TOP 2",       "UNION",    "ALL",   "DISTINCT", "INTO",
          "INSERT", "VALUES",   "SET",   "UPDATE",   "DELETE",      "CREATE",   "TABLE", "INDEX",    "DROP",
          "ALTER",  "COLUMN",   "ADD",   "EXISTS",   "MOD",         "DESC",     "TRUE",  "PERCENT",  "Text(5)",
          "Long",   "Currency", "YesNo", "DateTime", "PRIMARY KEY", "NOT NULL", "Memo",  "Counter",  "UNIQUE"})
        tokens.push_back(std::string(" ") + word + " ");
    for (const char* aggregate : {"Sum", "Count", "Min", "Max", "Avg", "First", "Last", "StDev", "Var"})
        tokens.push_back(std::string(aggregate) + "(");
    for (const jet::ScalarFunction& function : jet::scalarFunctions())
        tokens.push_back(std::string(function.name) + "(");
    return tokens;
}

std::vector<std::string> fixtureStatements() {
    std::ifstream file(folder + "/fixture.sql");
    if (!file)
        throw std::runtime_error("cannot read the fixture of the text cases");
    std::vector<std::string> statements;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && !line.starts_with("--"))
            statements.push_back(line);
    }
    return statements;
}
