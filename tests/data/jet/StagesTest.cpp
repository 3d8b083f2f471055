#include "data/jet/Binder.h"
#include "data/jet/Emitter.h"
#include "data/jet/Lexer.h"
#include "data/jet/Parser.h"
#include "data/types/DatabaseError.h"
#include "tests/data/jet/JetFixture.h"

#include <gtest/gtest.h>

using namespace jet;

TEST(Lexer, GivesKindPositionAndValueOfEachWord) {
    const auto words = lex("Left$([a b],2)>='it''s' & #1/2/2025# <>.5");
    struct Expected {
        Token::Kind kind;
        std::size_t position;
        std::string text;
    };
    const std::vector<Expected> expected{
        {Token::Kind::Word, 0, "Left$"}, {Token::Kind::Symbol, 5, "("},   {Token::Kind::Name, 6, "a b"},
        {Token::Kind::Symbol, 11, ","},  {Token::Kind::Number, 12, "2"},  {Token::Kind::Symbol, 13, ")"},
        {Token::Kind::Symbol, 14, ">="}, {Token::Kind::Text, 16, ""},     {Token::Kind::Symbol, 24, "&"},
        {Token::Kind::DateTime, 26, ""}, {Token::Kind::Symbol, 37, "<>"}, {Token::Kind::Number, 39, ".5"},
        {Token::Kind::End, 41, ""},
    };
    ASSERT_EQ(words.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(words[i].kind, expected[i].kind) << i;
        EXPECT_EQ(words[i].position, expected[i].position) << i;
        EXPECT_EQ(words[i].text, expected[i].text) << i;
    }
    EXPECT_EQ(words[7].value, Value("it's"));
    EXPECT_EQ(words[9].value, Value(dateOf({2025, 1, 2, 0, 0, 0})));
    EXPECT_EQ(words[11].value, Value(0.5));
}

TEST(Lexer, StopsAtWhatItCannotRead) {
    for (const char* text : {"a 'open", "a [open", "a #open", "a #99/99/9999#", "a ?", "a []", "a 1e999"}) {
        const auto words = lex(text);
        ASSERT_EQ(words.size(), 3u) << text;
        EXPECT_EQ(words[1].kind, Token::Kind::Bad) << text;
        EXPECT_EQ(words[1].position, 2u) << text;
    }
}

TEST(Parser, BindsOperatorsAsTightlyAsTheDialectDoes) {
    // Not binds less than a comparison, And more than Or; & less than +.
    const ExpressionPtr tree = parseExpression("Not a = 1 And b Or 'x' & 1 + 2 Like 'y'");
    ASSERT_EQ(tree->kind, Expression::Kind::Or);
    const Expression& both = *tree->operands[0];
    ASSERT_EQ(both.kind, Expression::Kind::And);
    EXPECT_EQ(both.operands[0]->kind, Expression::Kind::Not);
    EXPECT_EQ(both.operands[0]->operands[0]->kind, Expression::Kind::Comparison);
    const Expression& like = *tree->operands[1];
    ASSERT_EQ(like.kind, Expression::Kind::Like);
    EXPECT_EQ(like.operands[0]->op, Operator::Concatenate);
    EXPECT_EQ(like.operands[0]->operands[1]->op, Operator::Add);
}

TEST(Parser, LongChainsMakeNoDeepTreeAndDeepOnesAreRefused) {
    std::string chain = "a = 0";
    for (int i = 1; i < 5000; ++i)
        chain += " Or a = " + std::to_string(i);
    const ExpressionPtr tree = parseExpression(chain);
    EXPECT_EQ(tree->operands.size(), 5000u);
    EXPECT_LT(tree->depth, 5);

    const auto refused = [](const std::string& text) {
        try {
            parse(text);
        } catch (const DatabaseError& error) {
            return error.number();
        }
        return 0L;
    };
    const std::string many(20000, '(');
    EXPECT_EQ(refused("SELECT " + many), 3360);
    EXPECT_EQ(refused("SELECT * FROM " + many), 3360);
    std::string sum = "SELECT 1";
    std::string negations = "SELECT ";
    for (int i = 0; i < 20000; ++i) {
        sum += "+1";
        negations += "Not ";
    }
    EXPECT_EQ(refused(sum), 3360);
    EXPECT_EQ(refused(negations + "1"), 0L) << "any number of Not is one or two";
}

TEST(Binder, GivesColumnsTheirSourceAndExpressionsTheirType) {
    JetFixture database;
    database.run("CREATE TABLE Areas (Name Text(50), Calls Long, Cost Currency, Day DateTime)");
    Statement statement = parse("SELECT a.Name & 'x' AS n, Calls / 2, Cost * 2, Day + 1, Max(Day) AS m FROM Areas AS a "
                                "GROUP BY Name, Calls, Cost, Day");
    auto& query = std::get<Query>(statement);
    Binder(database).query(query);
    const std::vector<FieldType> types{FieldType::Text, FieldType::Double, FieldType::Currency, FieldType::Date,
                                       FieldType::Date};
    ASSERT_EQ(query.outputs().size(), types.size());
    for (std::size_t i = 0; i < types.size(); ++i)
        EXPECT_EQ(query.outputs()[i].column.type, types[i]) << i;
    const Expression& name = *query.outputs()[0].expression->operands[0];
    ASSERT_NE(name.bound.source, nullptr);
    EXPECT_EQ(name.bound.source->name, "a");
    EXPECT_EQ(name.bound.column, 0);
    EXPECT_TRUE(query.selects.front().grouped);
}

TEST(Emitter, WritesABoundTreeOnItsOwn) {
    JetFixture database;
    database.run("CREATE TABLE Areas (Name Text(50), Calls Long)");
    Statement statement = parse("SELECT Calls FROM Areas WHERE Name = 'x'");
    auto& query = std::get<Query>(statement);
    Binder(database).query(query);
    EXPECT_EQ(Emitter().condition(*query.selects.front().where), "(\"Areas\".\"Name\" = 'x')");
}
