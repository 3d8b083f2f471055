#pragma once

#include "data/jet/Statement.h"
#include "data/jet/TokenStream.h"

namespace jet {

/// Recursive descent over one statement; used once. Its members stand in one source file per kind of clause.
class StatementParser {
public:
    explicit StatementParser(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    Statement statement();
    ExpressionPtr wholeExpression(); ///< up to the end of the text; faults are 3077

private:
    Statement byFirstWord(long& error);

    // ExpressionParser.cpp
    enum class Follower { Alias, NoName };
    /// A whole expression; faults where what stands behind it cannot follow one.
    ExpressionPtr expression(Follower follower = Follower::NoName);
    ExpressionPtr logic(int level);
    ExpressionPtr junction();
    ExpressionPtr conjunction();
    ExpressionPtr negation();
    ExpressionPtr comparison();
    ExpressionPtr test(ExpressionPtr value);
    ExpressionPtr listTest(ExpressionPtr value, bool negated);
    ExpressionPtr arithmetic(int level);
    ExpressionPtr unary();
    ExpressionPtr power();
    ExpressionPtr primary();
    ExpressionPtr columnName();
    ExpressionPtr call();
    ExpressionPtr literal();
    ExpressionPtr bracketed();
    ExpressionPtr binary(Expression::Kind kind, Operator op, std::size_t position, ExpressionPtr left,
                         ExpressionPtr right);
    void checkDepth(const Expression& expression) const;

    // QueryParser.cpp
    std::unique_ptr<Query> query(); ///< SELECT …, with UNION and ORDER BY
    Select select();
    void unionMember(Query& into);
    void selectTop(Select& into);
    SelectColumn selectColumn();
    std::vector<OrderTerm> orderTerms();
    std::string optionalAlias(long error);
    std::vector<std::unique_ptr<FromItem>> fromList();
    std::unique_ptr<FromItem> joined();
    std::unique_ptr<FromItem> fromPrimary();
    TableName tableName(long error);
    std::string tableAlias();
    std::string optionalPath();
    void externalFile(std::vector<std::unique_ptr<FromItem>>& items);

    // ChangeParser.cpp
    Insert insert();
    Update update();
    Delete deletion();
    std::string deletedTable();
    ExpressionPtr optionalWhere();

    // SchemaParser.cpp
    Statement create();
    CreateTable createTable();
    void tableConstraint(CreateTable& table);
    CreateIndex createIndex(bool unique);
    std::vector<IndexDefinition::Column> indexColumns(long error);
    ColumnDefinition columnDefinition(long error);
    void columnType(ColumnDefinition& column, long error);
    void columnConstraints(ColumnDefinition& column, long error);
    Statement drop();
    AlterTable alter();

    /// Counts one level of brackets while it lives.
    class Nesting {
    public:
        explicit Nesting(StatementParser& parser);
        ~Nesting() { --parser_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        StatementParser& parser_;
    };

    TokenStream tokens_;
    long expressionError_ = 3075;
    int nesting_ = 0;
};

} // namespace jet
