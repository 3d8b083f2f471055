#include "data/jet/Evaluate.h"

#include "data/jet/Like.h"
#include "data/jet/Operators.h"
#include "data/jet/ScalarFunctions.h"
#include "data/types/DatabaseError.h"

#include <algorithm>

namespace jet {

namespace {

using Kind = Expression::Kind;
using Truth = std::optional<bool>;

Value ofTruth(Truth truth) {
    return truth ? Value(*truth) : Value();
}

class Evaluator {
public:
    explicit Evaluator(const Cells& cells) : cells_(cells) {}

    Value value(const Expression& e) const {
        switch (e.kind) {
        case Kind::Literal:
            return e.literal;
        case Kind::Missing:
            return {};
        case Kind::Column:
            return cells_(e.bound.column);
        case Kind::Negate:
            return located(e, [&] { return negated(value(*e.operands[0])); });
        case Kind::Arithmetic:
            return located(e, [&] { return arithmetic(e.op, value(*e.operands[0]), value(*e.operands[1])); });
        case Kind::Function:
            return function(e);
        case Kind::And:
        case Kind::Or:
        case Kind::Not:
        case Kind::Logic:
            return logic(e);
        default:
            return ofTruth(truth(e));
        }
    }

    Truth truth(const Expression& e) const {
        switch (e.kind) {
        case Kind::And:
        case Kind::Or:
        case Kind::Not:
        case Kind::Logic:
            if (std::none_of(e.operands.begin(), e.operands.end(), mayBeNumber))
                return condition(e);
            break;
        case Kind::Comparison:
            return comparison(e);
        case Kind::Between:
            return between(e);
        case Kind::Like:
            return like(e);
        case Kind::InList:
            return inList(e);
        case Kind::IsNull:
            return value(*e.operands[0]).isNull() != e.negated;
        case Kind::InQuery:
        case Kind::Exists:
        case Kind::ScalarQuery:
        case Kind::Aggregate:
            throw DatabaseError(3077, "A query or aggregate cannot stand in this expression", e.position);
        default:
            break;
        }
        return located(e, [&] {
            const Value result = value(e);
            return result.isNull() ? Truth() : Truth(result.asBoolean());
        });
    }

private:
    /// Runs `work`; a fault of the values gets the position of the expression.
    template<typename Work>
    auto located(const Expression& e, Work work) const -> decltype(work()) {
        try {
            return work();
        } catch (const DatabaseError&) {
            throw;
        } catch (const RuntimeError& error) {
            if (error.number() == 13)
                throw DatabaseError(3464, "Data type mismatch in criteria expression.", e.position);
            throw DatabaseError(error.number(), error.description(), e.position);
        }
    }

    /// Tests give yes or no; whatever else stands in a logical operator can be a number.
    static bool mayBeNumber(const ExpressionPtr& e) {
        switch (e->kind) {
        case Kind::And:
        case Kind::Or:
        case Kind::Not:
        case Kind::Logic:
            return std::any_of(e->operands.begin(), e->operands.end(), mayBeNumber);
        case Kind::Comparison:
        case Kind::Between:
        case Kind::Like:
        case Kind::InList:
        case Kind::IsNull:
            return false;
        default:
            return true;
        }
    }

    /// A logical operator: of truths, or bit by bit where an operand is a number.
    Value logic(const Expression& e) const {
        if (std::none_of(e.operands.begin(), e.operands.end(), mayBeNumber))
            return ofTruth(condition(e));
        std::vector<Value> values;
        bool numbers = false;
        for (const ExpressionPtr& operand : e.operands) {
            values.push_back(value(*operand));
            if (values.back().isText())
                throw DatabaseError(3464, "Data type mismatch in criteria expression.", operand->position);
            const bool isBoolean = std::holds_alternative<bool>(values.back().storage());
            numbers = numbers || (!values.back().isNull() && !isBoolean);
        }
        return numbers ? located(e, [&] { return combineBits(e, values); }) : ofTruth(condition(e));
    }

    static Value combineBits(const Expression& e, const std::vector<Value>& values) {
        if (std::any_of(values.begin(), values.end(), [](const Value& value) { return value.isNull(); }))
            return {};
        std::int64_t bits = values.front().asInteger();
        if (e.kind == Kind::Not)
            return ~bits;
        for (std::size_t i = 1; i < values.size(); ++i) {
            const std::int64_t other = values[i].asInteger();
            if (e.kind == Kind::And)
                bits &= other;
            else if (e.kind == Kind::Or)
                bits |= other;
            else if (e.op == Operator::Implies)
                bits = ~bits | other;
            else
                bits = e.op == Operator::Xor ? bits ^ other : ~(bits ^ other);
        }
        return bits;
    }

    /// A logical operator of truths.
    Truth condition(const Expression& e) const {
        if (e.kind == Kind::And)
            return junction(e, false);
        if (e.kind == Kind::Or)
            return junction(e, true);
        const Truth a = truth(*e.operands[0]);
        if (e.kind == Kind::Not)
            return a ? Truth(!*a) : Truth();
        const Truth b = truth(*e.operands[1]);
        if (e.op == Operator::Implies)
            return a == false || b == true ? Truth(true) : (a && b ? Truth(false) : Truth());
        return a && b ? Truth((*a != *b) == (e.op == Operator::Xor)) : Truth();
    }

    Truth junction(const Expression& e, bool decides) const {
        bool unknown = false;
        for (const ExpressionPtr& operand : e.operands) {
            const Truth part = truth(*operand);
            if (part == decides)
                return decides;
            unknown = unknown || !part;
        }
        return unknown ? Truth() : Truth(!decides);
    }

    /// An operand of a comparison without a copy where it lies in the row or the statement; `held` keeps any other.
    /// Case does not count in comparisons, so that UCase(x) is x.
    const Value& compared(const Expression& e, Value& held) const {
        if (e.kind == Kind::Literal)
            return e.literal;
        if (e.kind == Kind::Column)
            return cells_(e.bound.column);
        if (e.kind == Kind::Function && (e.bound.function->name == "UCASE" || e.bound.function->name == "LCASE")) {
            const Value& inner = compared(*e.operands[0], held);
            if (inner.isText())
                return inner;
        }
        held = value(e);
        return held;
    }

    Truth comparison(const Expression& e) const {
        Value heldA;
        Value heldB;
        const Value& a = compared(*e.operands[0], heldA);
        const Value& b = compared(*e.operands[1], heldB);
        if (a.isNull() || b.isNull())
            return {};
        const int order = located(e, [&] { return compareValues(a, b); });
        switch (e.op) {
        case Operator::Equal:
            return order == 0;
        case Operator::NotEqual:
            return order != 0;
        case Operator::Less:
            return order < 0;
        case Operator::LessEqual:
            return order <= 0;
        case Operator::Greater:
            return order > 0;
        default:
            return order >= 0;
        }
    }

    Truth between(const Expression& e) const {
        const Value tested = value(*e.operands[0]);
        const Value first = value(*e.operands[1]);
        const Value second = value(*e.operands[2]);
        if (tested.isNull() || first.isNull() || second.isNull())
            return {};
        return located(e, [&] {
            const bool turned = compareValues(first, second) > 0;
            const bool inside = compareValues(tested, turned ? second : first) >= 0 &&
                                compareValues(tested, turned ? first : second) <= 0;
            return Truth(inside != e.negated);
        });
    }

    Truth like(const Expression& e) const {
        Value heldText;
        Value heldPattern;
        const Value& text = compared(*e.operands[0], heldText);
        const Value& pattern = compared(*e.operands[1], heldPattern);
        if (text.isNull() || pattern.isNull())
            return {};
        return located(e, [&] { return isLike(text.asText(), pattern.asText()); }) != e.negated;
    }

    Truth inList(const Expression& e) const {
        Value heldTested;
        Value heldMember;
        const Value& tested = compared(*e.operands[0], heldTested);
        if (tested.isNull())
            return {};
        bool unknown = false;
        for (std::size_t i = 1; i < e.operands.size(); ++i) {
            const Value& member = compared(*e.operands[i], heldMember);
            if (member.isNull())
                unknown = true;
            else if (located(*e.operands[i], [&] { return compareValues(tested, member); }) == 0)
                return !e.negated;
        }
        return unknown ? Truth() : Truth(e.negated);
    }

    /// IIf looks at the branch it takes only, so that the other may divide by zero or convert what is no date.
    Value function(const Expression& e) const {
        if (e.bound.function->name == "IIF") {
            const std::size_t branch = truth(*e.operands[0]).value_or(false) ? 1 : 2;
            return branch < e.operands.size() ? value(*e.operands[branch]) : Value();
        }
        std::vector<Value> arguments;
        for (const ExpressionPtr& operand : e.operands)
            arguments.push_back(value(*operand));
        return located(e, [&] { return e.bound.function->apply(arguments); });
    }

    const Cells& cells_;
};

} // namespace

Value evaluate(const Expression& expression, const Cells& cells) {
    return Evaluator(cells).value(expression);
}

std::optional<bool> evaluateCondition(const Expression& expression, const Cells& cells) {
    return Evaluator(cells).truth(expression);
}

} // namespace jet
