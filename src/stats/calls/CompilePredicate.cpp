#include "stats/calls/CompilePredicate.h"

#include "data/engine/Database.h"
#include "data/jet/Binder.h"
#include "data/jet/Evaluate.h"
#include "data/jet/Parser.h"
#include "data/jet/ScalarFunctions.h"
#include "data/types/DatabaseError.h"

#include <algorithm>
#include <unordered_set>

namespace {

using jet::Expression;
using Kind = Expression::Kind;
using Node = CallPredicate::Node;

/// A form that has no meaning over columns.
struct DoesNotFit {};

/// Conditions name no other table than the two that are in scope.
class NoTables : public jet::Catalog {
public:
    std::string defaultSchema() const override { return {}; }
    std::optional<jet::Table> findTable(std::string_view) override { return {}; }
    std::optional<jet::Table> findTableIn(std::string_view, std::string_view) override { return {}; }
    std::string schemaOf(std::string_view) override { return {}; }
};

/// Functions whose value is that of their arguments alone and the same in a statement and in memory.
constexpr std::string_view plainFunctions[] = {"LEFT", "MID",   "RIGHT",  "UCASE", "LCASE",  "TRIM", "LTRIM", "RTRIM",
                                               "LEN",  "CDATE", "ISNULL", "HOUR",  "MINUTE", "YEAR", "MONTH", "DAY"};

std::int64_t wholeNumber(const Expression& expression) {
    const auto* number = std::get_if<std::int64_t>(&expression.literal.storage());
    return expression.kind == Kind::Literal && number ? *number : -1;
}

class Compiler {
public:
    Compiler(const CallTables& tables, const CallColumns& columns) : tables_(tables), columns_(columns) {
        constexpr std::pair<std::string_view, CallField> names[] = {
            {"CallDate", CallField::Date},       {"CallTime", CallField::Time}, {"CalledNo", CallField::CalledNo},
            {"AnswerLoc", CallField::AnswerLoc}, {"1141", CallField::Code},     {"NetAddress", CallField::NetAddress},
            {"AnswerInd", CallField::AnswerInd}};
        for (const jet::ResultColumn& column : tables.calls.columns) {
            const auto found = std::find_if(std::begin(names), std::end(names),
                                            [&](const auto& name) { return equalText(name.first, column.name); });
            fields_.push_back(found == std::end(names) ? std::optional<CallField>() : found->second);
        }
    }

    Node compile(const Expression& expression, std::size_t depth = 0) const {
        const unsigned used = fieldsOf(expression);
        if ((used & (used - 1)) == 0)
            return tableNode(expression, used);
        const bool isJunction = expression.kind == Kind::And || expression.kind == Kind::Or;
        if ((!isJunction && expression.kind != Kind::Not) || expression.bound.type.type == FieldType::Long ||
            depth >= CallPredicate::mostDepth)
            throw DoesNotFit();
        Node node;
        node.kind = expression.kind == Kind::Not ? Node::Kind::Not
                                                 : (expression.kind == Kind::And ? Node::Kind::And : Node::Kind::Or);
        for (const auto& operand : expression.operands)
            addOperand(node, compile(*operand, depth + 1));
        return node;
    }

private:
    /// The columns that an expression looks at, a bit for each. Throws DoesNotFit.
    unsigned fieldsOf(const Expression& e) const {
        switch (e.kind) {
        case Kind::Column:
            return bit(fieldOf(e), false);
        case Kind::Aggregate:
        case Kind::InQuery:
        case Kind::Exists:
        case Kind::ScalarQuery:
        case Kind::Missing:
            throw DoesNotFit();
        case Kind::Arithmetic:
            if (e.op != jet::Operator::Concatenate)
                throw DoesNotFit();
            break;
        case Kind::Negate:
            if (e.operands.front()->kind != Kind::Literal)
                throw DoesNotFit();
            break;
        case Kind::Function:
            if (std::find(std::begin(plainFunctions), std::end(plainFunctions), e.bound.function->name) ==
                std::end(plainFunctions))
                throw DoesNotFit();
            break;
        default:
            break;
        }
        unsigned used = 0;
        for (const auto& operand : e.operands) {
            if (operand->kind == Kind::Column)
                used |= bit(fieldOf(*operand), seesHourOrMinuteOnly(e));
            else
                used |= fieldsOf(*operand);
        }
        return used;
    }

    /// Of CallTime the columns hold the part that makes hours and minutes.
    static bool seesHourOrMinuteOnly(const Expression& e) {
        if (e.kind == Kind::IsNull)
            return true;
        if (e.kind != Kind::Function)
            return false;
        if (e.bound.function->name == "ISNULL")
            return true;
        if (e.bound.function->name == "LEFT") {
            const std::int64_t length = wholeNumber(*e.operands[1]);
            return length >= 0 && length <= 2;
        }
        if (e.bound.function->name != "MID" || e.operands.size() < 3)
            return false;
        const std::int64_t start = wholeNumber(*e.operands[1]);
        const std::int64_t length = wholeNumber(*e.operands[2]);
        return start >= 4 && start <= 5 && length >= 0 && start + length <= 6;
    }

    CallField fieldOf(const Expression& column) const {
        if (column.bound.source != &tables_.calls || column.bound.column < 0)
            throw DoesNotFit();
        const auto field = fields_[static_cast<std::size_t>(column.bound.column)];
        if (!field)
            throw DoesNotFit();
        return *field;
    }

    static unsigned bit(CallField field, bool hourOrMinute) {
        if (field == CallField::Time && !hourOrMinute)
            throw DoesNotFit();
        return 1u << static_cast<unsigned>(field);
    }

    /// The truth of an expression by the id of the only column it looks at, or of any where it looks at none.
    Node tableNode(const Expression& expression, unsigned used) const {
        Node node;
        for (unsigned field = 0; field < callFieldCount; ++field) {
            if (used == 1u << field)
                node.field = static_cast<CallField>(field);
        }
        const std::vector<Value>& values = columns_.valuesOf(node.field);
        node.table = truths(expression, values);
        return node;
    }

    /// Lists of texts are looked up, everything else is evaluated value by value.
    std::vector<std::uint8_t> truths(const Expression& expression, const std::vector<Value>& values) const {
        std::vector<std::uint8_t> table(values.size());
        const bool isOr = expression.kind == Kind::Or && expression.bound.type.type != FieldType::Long;
        std::unordered_set<std::string> equals;
        std::vector<const Expression*> others;
        if (isOr) {
            for (const auto& operand : expression.operands) {
                if (!addTexts(*operand, equals))
                    others.push_back(operand.get());
            }
        } else if (!addTexts(expression, equals)) {
            others.push_back(&expression);
        }
        for (std::size_t id = 0; id < values.size(); ++id) {
            const Value& value = values[id];
            const jet::Cells cells = [&](int) -> const Value& { return value; };
            if (!equals.empty()) {
                if (!value.isNull())
                    table[id] = equals.contains(foldText(value.asText())) ? truthBits::yes : truthBits::no;
            } else {
                table[id] = truthBits::no;
            }
            for (const Expression* other : others)
                table[id] = either(table[id], bitsOf(jet::evaluateCondition(*other, cells)));
        }
        return table;
    }

    static std::uint8_t bitsOf(std::optional<bool> truth) {
        return truth ? (*truth ? truthBits::yes : truthBits::no) : std::uint8_t{0};
    }
    static std::uint8_t either(std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>((a & b & truthBits::no) | ((a | b) & truthBits::yes));
    }

    /// Column = 'text' and Column In ('text', …): the texts, folded. False for anything else.
    static bool addTexts(const Expression& e, std::unordered_set<std::string>& texts) {
        const bool isEqual = e.kind == Kind::Comparison && e.op == jet::Operator::Equal;
        if ((!isEqual && e.kind != Kind::InList) || e.negated || e.operands.front()->kind != Kind::Column)
            return false;
        const auto isText = [](const auto& o) { return o->kind == Kind::Literal && o->literal.isText(); };
        if (!std::all_of(e.operands.begin() + 1, e.operands.end(), isText))
            return false;
        for (auto operand = e.operands.begin() + 1; operand != e.operands.end(); ++operand)
            texts.insert(foldText((*operand)->literal.asText()));
        return true;
    }

    /// Tables of one column in one junction become one table.
    static void addOperand(Node& node, Node operand) {
        if (node.kind != Node::Kind::Not && operand.kind == Node::Kind::Table) {
            for (Node& other : node.operands) {
                if (other.kind != Node::Kind::Table || other.field != operand.field)
                    continue;
                const std::uint8_t both = node.kind == Node::Kind::And ? truthBits::yes : truthBits::no;
                for (std::size_t i = 0; i < other.table.size(); ++i) {
                    const std::uint8_t a = other.table[i];
                    const std::uint8_t b = operand.table[i];
                    other.table[i] = static_cast<std::uint8_t>((a & b & both) | ((a | b) & (both ^ 3)));
                }
                return;
            }
        }
        node.operands.push_back(std::move(operand));
    }

    const CallTables& tables_;
    const CallColumns& columns_;
    std::vector<std::optional<CallField>> fields_; ///< by position in TblTeleItem
};

bool holdsQuery(const Expression& expression) {
    return expression.query || std::any_of(expression.operands.begin(), expression.operands.end(),
                                           [](const auto& operand) { return holdsQuery(*operand); });
}

jet::Source sourceOf(Database& project, const std::string& name) {
    const TableDef* table = project.tableDefs().find(name);
    if (!table)
        throw DatabaseError(3078, "The project has no table '" + name + "'");
    jet::Source source;
    source.name = name;
    for (const Field& field : table->fields)
        source.columns.push_back({field.name, field.type, field.size, {}});
    return source;
}

} // namespace

CallTables callTablesOf(Database& project) {
    return {sourceOf(project, "TblTeleItem"), sourceOf(project, "TblMappingGIS")};
}

std::unique_ptr<Node> compileCondition(std::string_view condition, const CallTables& tables,
                                       const CallColumns& columns) {
    const jet::ExpressionPtr expression = jet::parseExpression(condition);
    if (holdsQuery(*expression))
        return nullptr;
    NoTables catalog;
    jet::Scope scope;
    scope.sources = {&tables.calls, &tables.places};
    jet::Binder(catalog).condition(*expression, scope, jet::Clause::Where);
    try {
        return std::make_unique<Node>(Compiler(tables, columns).compile(*expression));
    } catch (const DoesNotFit&) {
        return nullptr;
    }
}
