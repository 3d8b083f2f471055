#include "data/jet/Search.h"
#include "data/types/DatabaseError.h"
#include "tests/data/jet/JetFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace {

/// Makes random tables and expressions, the same ones in every run.
class Maker {
public:
    explicit Maker(unsigned seed) : random_(seed) {}

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    std::string pick(const std::vector<std::string>& from) {
        return from[static_cast<std::size_t>(below(static_cast<int>(from.size())))];
    }

    std::string number(int depth) {
        if (depth == 0)
            return pick({"a", "b", "c", "0", "1", "2", "-3", "2.5", "Null"});
        switch (below(7)) {
        case 0:
            return "(" + number(depth - 1) + pick({" + ", " - ", " * ", " / "}) + number(depth - 1) + ")";
        case 1:
            return "(" + number(depth - 1) + pick({" \\ ", " Mod "}) + number(depth - 1) + ")";
        case 2:
            return "Abs(" + number(depth - 1) + ")";
        case 3:
            return "IIf(" + condition(depth - 1) + ", " + number(depth - 1) + ", " + number(depth - 1) + ")";
        case 4:
            return "Len(" + text(depth - 1) + ")";
        case 5:
            return pick({"Int(", "Fix(", "Sgn(", "Round("}) + number(depth - 1) + ")";
        default:
            return "-" + number(depth - 1);
        }
    }

    std::string text(int depth) {
        if (depth == 0)
            return pick({"t", "u", "'x'", "'AB '", "''", "'ab'", "Null"});
        switch (below(6)) {
        case 0:
            return "(" + text(depth - 1) + " & " + text(depth - 1) + ")";
        case 1:
            return pick({"UCase(", "LCase(", "Trim(", "RTrim("}) + text(depth - 1) + ")";
        case 2:
            return "Left(" + text(depth - 1) + ", " + std::to_string(below(4)) + ")";
        case 3:
            return "Mid(" + text(depth - 1) + ", " + std::to_string(1 + below(3)) + ", 2)";
        case 4:
            return "(" + number(depth - 1) + " & '')";
        default:
            return "Nz(" + text(depth - 1) + ", 'n')";
        }
    }

    std::string condition(int depth) {
        const int inner = depth > 0 ? depth - 1 : 0;
        if (depth > 0 && below(2) == 0) {
            if (below(4) == 0)
                return "(Not " + condition(inner) + ")";
            return "(" + condition(inner) + pick({" And ", " Or ", " Xor "}) + condition(inner) + ")";
        }
        const std::string negation = pick({"", "Not "});
        switch (below(8)) {
        case 0:
            return "(" + number(inner) + pick({" = ", " <> ", " < ", " <= ", " > ", " >= "}) + number(inner) + ")";
        case 1:
            return "(" + text(inner) + pick({" = ", " <> ", " < ", " >= "}) + text(inner) + ")";
        case 2:
            return "(" + text(inner) + " " + negation + "Like " +
                   pick({"'a*'", "'*B*'", "'?'", "'[a-m]*'", "'ab'", "'#*'", "u", "u & '*'"}) + ")";
        case 3:
            return "(" + number(inner) + " " + negation + "In (" + number(0) + ", " + number(0) + ", 7))";
        case 4:
            return "(" + text(inner) + " " + negation + "In ('ab', " + text(0) + "))";
        case 7:
            return chain();
        case 5:
            return "(" + number(inner) + " " + negation + "Between " + number(0) + " And " + number(0) + ")";
        default:
            return "(" + text(inner) + pick({" Is Null", " Is Not Null"}) + ")";
        }
    }

    /// Neighbours that test the same value, of which a statement makes one list or one test of patterns.
    std::string chain() {
        const bool isOr = below(2) == 0;
        const std::string tested = pick({"t", "UCase(u)", "a", "Trim(t)"});
        const bool patterns = tested != "a" && below(2) == 0;
        std::string links;
        for (int i = 0; i < 6; ++i) {
            const std::string wanted =
                tested == "a" ? pick({"0", "1", "2", "-3"}) : pick({"'ab'", "'x'", "'AB '", "''"});
            const std::string pattern = pick({"'a*'", "'*B'", "'[!x]*'", "'?'", "'#'", "'ab'"});
            links += (i == 0 ? "" : isOr ? " Or " : " And ") + tested;
            links += patterns ? (isOr ? " Like " : " Not Like ") + pattern : (isOr ? " = " : " <> ") + wanted;
        }
        return "(" + links + ")";
    }

    std::string cellText() {
        return pick({"Null", "''", "'ab'", "'AB  '", "'aB'", "'x'", "'3'", "'.fr'", "'é'", "'É'"});
    }

private:
    std::mt19937 random_;
};

constexpr int rowCount = 40;

void fill(JetFixture& database, Maker& maker) {
    database.run("CREATE TABLE R (id Long, a Long, b Double, c Currency, t Text(20), u Text(20))");
    for (int i = 0; i < rowCount; ++i)
        database.run("INSERT INTO R VALUES (" + std::to_string(i) + ", " +
                     maker.pick({"Null", "0", "1", "2", "-3", "7"}) + ", " +
                     maker.pick({"Null", "0", "2.5", "-0.5", "3.5"}) + ", " +
                     maker.pick({"Null", "0.1", "0.2", "-0.3", "2.5"}) + ", " + maker.cellText() + ", " +
                     maker.cellText() + ")");
}

/// Either the rows that a condition holds for, or the number of its error.
struct Answer {
    std::set<std::int64_t> rows;
    long error = 0;
};

Answer byStatement(JetFixture& database, const std::string& condition) {
    Answer answer;
    try {
        for (const auto& row : database.run("SELECT id FROM R WHERE " + condition).rows)
            answer.rows.insert(row.front().asInteger());
    } catch (const DatabaseError& error) {
        answer.error = error.number();
    }
    return answer;
}

Answer bySearch(const std::vector<std::vector<Value>>& rows, const std::string& condition) {
    static const std::vector<std::string> names{"id", "a", "b", "c", "t", "u"};
    Answer answer;
    try {
        const jet::Search search(condition, [](std::string_view name) {
            const auto found = std::find(names.begin(), names.end(), name);
            return found == names.end() ? -1 : static_cast<int>(found - names.begin());
        });
        for (const auto& row : rows) {
            if (search.matches([&](int column) -> const Value& { return row[static_cast<std::size_t>(column)]; }))
                answer.rows.insert(row.front().asInteger());
        }
    } catch (const DatabaseError& error) {
        answer.error = error.number();
    }
    return answer;
}

} // namespace

TEST(RandomConditions, AStatementAndASearchFindTheSameRows) {
    JetFixture database;
    Maker maker(20250131);
    fill(database, maker);
    const auto rows = database.run("SELECT * FROM R").rows;
    int compared = 0;
    int found = 0;
    for (int i = 0; i < 10000; ++i) {
        const std::string condition = maker.condition(1 + i % 4);
        const Answer statement = byStatement(database, condition);
        const Answer search = bySearch(rows, condition);
        // The two need not look at the same parts of a condition before they meet a fault.
        if (statement.error != 0 || search.error != 0)
            continue;
        ++compared;
        found += statement.rows.empty() ? 0 : 1;
        ASSERT_EQ(statement.rows, search.rows) << condition << "\n"
                                               << jet::translate("SELECT id FROM R WHERE " + condition, database).query;
    }
    EXPECT_GT(compared, 9000);
    EXPECT_GT(found, 4000);
}

TEST(RandomQueries, PlainStatementsOfTheLibraryGiveTheSame) {
    JetFixture database;
    Maker maker(7);
    database.run("CREATE TABLE P (k Long, n Long, d Double)");
    database.run("CREATE TABLE Q (k Long, w Long)");
    for (int i = 0; i < 200; ++i) {
        database.run("INSERT INTO P VALUES (" + std::to_string(maker.below(20)) + ", " +
                     maker.pick({"Null", "1", "2", "5"}) + ", " + std::to_string(maker.below(100)) + ".25)");
        if (i % 5 == 0)
            database.run("INSERT INTO Q VALUES (" + std::to_string(maker.below(30)) + ", " +
                         std::to_string(maker.below(9)) + ")");
    }
    for (int i = 0; i < 300; ++i) {
        const std::string join = maker.pick({"INNER", "LEFT", "RIGHT"}) + " JOIN Q ON P.k = Q.k";
        const std::string where = maker.pick({"", " WHERE P.n > 1", " WHERE Q.w <= 4 OR P.n IS NULL",
                                              " WHERE P.k NOT IN (SELECT k FROM Q WHERE w > 5)",
                                              " WHERE EXISTS (SELECT * FROM Q AS x WHERE x.k = P.k AND x.w = P.n)"});
        const std::string list = maker.pick({"P.k, Count(*) AS c, Sum(P.n) AS s", "P.k, Min(Q.w) AS c, Max(P.d) AS s",
                                             "P.k, Avg(P.d) AS c, Count(P.n) AS s"});
        const std::string sql =
            "SELECT " + list + " FROM P " + join + where + " GROUP BY P.k ORDER BY P.k" + maker.pick({"", " DESC"});
        const JetFixture::Result result = database.run(sql);
        ASSERT_EQ(result.rows, database.queryPlain(sql, result.columns)) << sql;
    }
}

TEST(RandomQueries, SetsJoinsAndGroupsAreThoseOfTheLibrary) {
    JetFixture database;
    Maker maker(11);
    for (const char* table : {"P", "Q", "S"}) {
        database.run(std::string("CREATE TABLE ") + table + " (k Long, n Long, t Text(5))");
        for (int i = 0; i < 60; ++i)
            database.run(std::string("INSERT INTO ") + table + " VALUES (" + std::to_string(maker.below(25)) + ", " +
                         maker.pick({"Null", "1", "2", "3"}) + ", " + maker.pick({"Null", "'a'", "'b'", "''"}) + ")");
    }
    const auto join = [&] { return maker.pick({" INNER", " LEFT", " RIGHT"}) + " JOIN "; };
    const auto condition = [&] {
        return maker.pick({"P.n > 1", "P.t = 'a'", "Q.n Is Null", "P.n + Q.n = 3", "Not P.n = 2", "P.k In (1, 2, 3, 4)",
                           "P.n In (SELECT n FROM S WHERE S.k = Q.k)", "P.k Between 5 And 20"});
    };
    int rows = 0;
    for (int i = 0; i < 400; ++i) {
        const std::string from = "P" + join() + "Q ON P.k = Q.k";
        const std::string nested = "(" + from + ")" + join() + "S ON Q.k = S.k";
        const std::string where = " WHERE " + condition() + maker.pick({" AND ", " OR "}) + condition();
        const std::string statements[] = {
            "SELECT P.k, Q.n, S.t FROM " + nested + where + " ORDER BY P.k, Q.n, S.t, P.n, Q.k, S.k",
            "SELECT DISTINCT P.t, Q.n FROM " + from + where + " ORDER BY P.t, Q.n",
            "SELECT DISTINCT P.t, P.n FROM " + from + " WHERE " +
                maker.pick({"Q.k Is Null", "P.n < 3", "Not Q.k Is Null Or P.n = 2", "Q.k Is Null And Q.n Is Null"}) +
                " ORDER BY P.t, P.n",
            "SELECT P.n, Count(*) AS c, Max(Q.k) AS m FROM " + from + where +
                " GROUP BY P.n HAVING Count(*) > 2 ORDER BY P.n DESC",
            "SELECT P.k, P.n FROM " + from + where + maker.pick({" UNION ", " UNION ALL "}) +
                "SELECT S.k, S.n FROM S WHERE S.n > 1 ORDER BY 1, 2",
            "SELECT x.n, Sum(x.k) AS s FROM (SELECT P.n, Q.k FROM " + from + where +
                ") AS x GROUP BY x.n ORDER BY x.n"};
        for (const std::string& sql : statements) {
            const JetFixture::Result result = database.run(sql);
            rows += static_cast<int>(result.rows.size());
            ASSERT_EQ(result.rows, database.queryPlain(sql, result.columns)) << sql << "\n" << result.program.query;
        }
    }
    EXPECT_GT(rows, 20000);
}

TEST(RandomChanges, LeaveTheTablesThatTheLibraryLeaves) {
    JetFixture database;
    Maker maker(23);
    const auto table = [&](const char* name) {
        return database.queryPlain(std::string("SELECT k, n FROM ") + name + " ORDER BY k, n",
                                   {{"k", FieldType::Long, 0, ""}, {"n", FieldType::Long, 0, ""}});
    };
    database.run("CREATE TABLE Keys (k Long, w Long)");
    database.run("CREATE UNIQUE INDEX Once ON Keys (k)");
    for (int k = 0; k < 30; k += 1 + maker.below(3))
        database.run("INSERT INTO Keys VALUES (" + std::to_string(k) + ", " + maker.pick({"Null", "5", "6"}) + ")");
    for (int round = 0; round < 60; ++round) {
        for (const char* drop : {"DROP TABLE IF EXISTS A", "DROP TABLE IF EXISTS B"})
            database.executePlain(drop);
        database.run("CREATE TABLE A (k Long, n Long)");
        for (int i = 0; i < 40; ++i)
            database.run("INSERT INTO A VALUES (" + std::to_string(maker.below(30)) + ", " +
                         maker.pick({"Null", "1", "2"}) + ")");
        database.run("SELECT * INTO B FROM A");
        const std::string test = maker.pick({"n = 1", "n Is Null", "k > 10", "k > 3 And n < 2", "Not n = 2"});
        struct Pair {
            std::string ours;
            std::string plain;
        };
        const std::string matching = "SELECT w FROM Keys WHERE Keys.k = B.k";
        const std::string qualified = maker.pick({"A.n = 1", "A.k > 10", "Keys.w = 5", "Keys.w Is Null"});
        std::string ofB = qualified;
        if (ofB.starts_with("A."))
            ofB.replace(0, 1, "B");
        const Pair pairs[] = {{"UPDATE A SET n = n + 10 WHERE " + test, "UPDATE B SET n = n + 10 WHERE " + test},
                              {"DELETE * FROM A WHERE " + test, "DELETE FROM B WHERE " + test},
                              {"INSERT INTO A SELECT k + 1 AS k, n FROM A WHERE " + test,
                               "INSERT INTO B SELECT k + 1, n FROM B WHERE " + test},
                              {"UPDATE A INNER JOIN Keys ON A.k = Keys.k SET A.n = Keys.w WHERE " + qualified,
                               "UPDATE B SET n = (" + matching +
                                   ") WHERE EXISTS (SELECT 1 FROM Keys WHERE Keys.k = B.k AND " + ofB + ")"},
                              {"UPDATE A LEFT JOIN Keys ON A.k = Keys.k SET A.n = Keys.w WHERE Keys.w Is Null",
                               "UPDATE B SET n = NULL WHERE (" + matching + ") IS NULL"},
                              {"DELETE A.* FROM A INNER JOIN Keys ON A.k = Keys.k WHERE " + qualified,
                               "DELETE FROM B WHERE EXISTS (SELECT 1 FROM Keys WHERE Keys.k = B.k AND " + ofB + ")"}};
        const Pair& pair = pairs[maker.below(6)];
        database.run(pair.ours);
        database.executePlain(pair.plain);
        ASSERT_EQ(table("A"), table("B")) << pair.ours << "\n" << pair.plain;
    }
}

TEST(RandomJoins, KeysThatDifferInCaseAndBlanksMeet) {
    JetFixture database;
    Maker maker(99);
    database.run("CREATE TABLE Many (k Text(20), n Long)");
    database.run("CREATE TABLE Keys (k Text(20))");
    const auto spelled = [&](int key) {
        std::string text = "Key " + std::to_string(key);
        if (maker.below(2) == 0)
            text = upperText(text);
        return text.append(static_cast<std::size_t>(maker.below(3)), ' ');
    };
    for (int i = 0; i < 30; ++i)
        database.run("INSERT INTO Keys VALUES ('" + spelled(i) + "')");
    int expected = 0;
    for (int i = 0; i < 3000; ++i) {
        const int key = maker.below(60);
        expected += key < 30;
        database.run("INSERT INTO Many VALUES ('" + spelled(key) + "', " + std::to_string(i) + ")");
    }
    const Value count(static_cast<std::int64_t>(expected));
    for (const char* sql : {"SELECT Count(*) AS c FROM Many INNER JOIN Keys ON Many.k = Keys.k",
                            "SELECT Count(*) AS c FROM Keys INNER JOIN Many ON Many.k = Keys.k WHERE Many.n >= 0",
                            "SELECT Count(*) AS c FROM Many WHERE k In (SELECT k FROM Keys)",
                            "SELECT Count(Keys.k) AS c FROM Many LEFT JOIN Keys ON Trim(Many.k) = Trim(Keys.k)"})
        EXPECT_EQ(database.run(sql).rows.front().front(), count) << sql;
}

/// Keys of calculated texts, the distinct values of a table and the order of joins are chosen for equality only: the
/// same question with "Not … <> …" is answered pair by pair.
TEST(RandomJoins, CalculatedTextsMeetAsPairByPair) {
    JetFixture database;
    Maker maker(41);
    for (const char* table : {"A", "B", "C"}) {
        database.run(std::string("CREATE TABLE ") + table + " (n Long, x Text(20), y Memo)");
        for (int i = 0; i < 25; ++i) {
            const auto text = [&] {
                return maker.pick({"Null", "''", "' '", "'ab'", "'AB '", "' ab'", "'abc'", "'É'", "'é '", "'b'"});
            };
            database.run(std::string("INSERT INTO ") + table + " VALUES (" + std::to_string(i) + ", " + text() + ", " +
                         text() + ")");
        }
    }
    const auto side = [&](const std::string& table) {
        const std::string column = table + maker.pick({".x", ".y"});
        const std::string shape = maker.pick({"#", "Trim(#)", "UCase(Trim(#))", "Left(#, 2)", "# & ''", "Mid(#, 2)",
                                              "Nz(#, 'ab')", "LTrim(#) & 'a'", "(# + ' ')"});
        return std::string(shape).replace(shape.find('#'), 1, column);
    };
    const auto join = [&] { return maker.pick({" INNER", " LEFT", " RIGHT"}) + " JOIN "; };
    int rows = 0;
    for (int i = 0; i < 600; ++i) {
        const std::string a = side("A");
        const std::string b = side("B");
        const std::string b2 = side("B");
        const std::string c = side("C");
        const std::string first = join();
        const std::string second = join();
        const std::string extra =
            maker.pick({"", " AND A.n > 5", " AND B.n < 20", " AND B.x Is Null", " OR A.n = B.n"});
        const int form = maker.below(5);
        const auto statement = [&](const std::string& from, const std::string& sign, const std::string& to) {
            const std::string ab = "(" + from + a + sign + b + to + ")";
            const std::string bc = "(" + from + b2 + sign + c + to + ")";
            const std::string list = "SELECT A.n AS p, B.n AS q, ";
            switch (form) {
            case 0:
                return list + "C.n AS r FROM (A" + first + "B ON " + ab + ")" + second + "C ON " + bc +
                       " WHERE A.n < 22" + extra + " ORDER BY 1, 2, 3";
            case 1:
                return list + "C.n AS r FROM A, B, C WHERE " + ab + " AND " + bc + extra + " ORDER BY 1, 2, 3";
            case 2:
                return list + "1 AS r FROM A" + first + "B ON " + ab + extra + " ORDER BY 1, 2, 3";
            case 3:
                return "SELECT DISTINCT A.x AS p, A.n AS q FROM A" + first + "B ON " + ab +
                       " WHERE B.x Is Null ORDER BY 1, 2";
            default:
                return list + "C.n AS r FROM A" + first + "(B" + second + "C ON " + bc + ") ON " + ab +
                       " ORDER BY 1, 2, 3";
            }
        };
        const auto keyed = database.run(statement("", " = ", ""));
        const auto paired = database.run(statement("Not (", " <> ", ")"));
        rows += static_cast<int>(keyed.rows.size());
        ASSERT_EQ(keyed.rows, paired.rows) << statement("", " = ", "") << "\n" << keyed.program.query;
    }
    EXPECT_GT(rows, 20000);
}
