#include "stats/calls/CallPredicate.h"

#include "data/types/DatabaseError.h"
#include "stats/calls/CompilePredicate.h"

#include <algorithm>

namespace {

using Node = CallPredicate::Node;

/// Kleene logic on the two bits of a truth.
void combine(bool isAnd, std::uint8_t* out, const std::uint8_t* other, std::size_t count) {
    const std::uint8_t both = isAnd ? truthBits::yes : truthBits::no;
    const std::uint8_t any = isAnd ? truthBits::no : truthBits::yes;
    for (std::size_t i = 0; i < count; ++i) {
        const auto a = out[i];
        const auto b = other[i];
        out[i] = static_cast<std::uint8_t>((a & b & both) | ((a | b) & any));
    }
}

/// Calls `take` with the ids of a field from the call `begin` on.
template<typename Take>
void withIds(const CallColumns& columns, CallField field, std::size_t begin, Take take) {
    if (field == CallField::AnswerInd)
        take(columns.answerInd.data() + begin);
    else
        take(columns.idsOf(field).data() + begin);
}

/// Where only yes counts, an And of tables needs no third value.
bool isAndOfTables(const Node& node) {
    return node.kind == Node::Kind::And && std::all_of(node.operands.begin(), node.operands.end(),
                                                       [](const Node& part) { return part.kind == Node::Kind::Table; });
}

/// Looks up all tables of an And; three of the wide columns, as dates, times and numbers are, in one go.
void narrow(const std::vector<Node>& tables, const CallColumns& columns, std::size_t begin, std::size_t count,
            std::uint8_t* mask) {
    const auto isWide = [](const Node& node) { return node.field != CallField::AnswerInd; };
    std::size_t done = 0;
    if (tables.size() >= 3 && std::all_of(tables.begin(), tables.begin() + 3, isWide)) {
        const std::uint16_t* ids[3];
        const std::uint8_t* table[3];
        for (; done < 3; ++done) {
            ids[done] = columns.idsOf(tables[done].field).data() + begin;
            table[done] = tables[done].table.data();
        }
        const auto [a, b, c] = ids;
        const auto [ofA, ofB, ofC] = table;
        for (std::size_t i = 0; i < count; ++i)
            mask[i] = ofA[a[i]] & ofB[b[i]] & ofC[c[i]];
    } else {
        std::fill_n(mask, count, truthBits::yes);
    }
    for (; done < tables.size(); ++done) {
        withIds(columns, tables[done].field, begin, [&](const auto* ids) {
            const std::uint8_t* table = tables[done].table.data();
            for (std::size_t i = 0; i < count; ++i)
                mask[i] &= table[ids[i]];
        });
    }
}

void evaluate(const Node& node, const CallColumns& columns, std::size_t begin, std::size_t count, std::uint8_t* out,
              CallPredicate::Scratch& scratch, std::size_t level) {
    switch (node.kind) {
    case Node::Kind::Table:
        withIds(columns, node.field, begin, [&](const auto* ids) {
            const std::uint8_t* table = node.table.data();
            for (std::size_t i = 0; i < count; ++i)
                out[i] = table[ids[i]];
        });
        break;
    case Node::Kind::Not:
        evaluate(node.operands.front(), columns, begin, count, out, scratch, level);
        for (std::size_t i = 0; i < count; ++i)
            out[i] = static_cast<std::uint8_t>(((out[i] & 1) << 1) | (out[i] >> 1));
        break;
    default:
        evaluate(node.operands.front(), columns, begin, count, out, scratch, level + 1);
        std::uint8_t* other = scratch.levels[level].data();
        for (std::size_t i = 1; i < node.operands.size(); ++i) {
            evaluate(node.operands[i], columns, begin, count, other, scratch, level + 1);
            combine(node.kind == Node::Kind::And, out, other, count);
        }
        break;
    }
}

} // namespace

CallPredicate::CallPredicate(std::unique_ptr<Node> root) : root_(std::move(root)) {}
CallPredicate::CallPredicate(CallPredicate&&) noexcept = default;
CallPredicate& CallPredicate::operator=(CallPredicate&&) noexcept = default;
CallPredicate::~CallPredicate() = default;

std::optional<CallPredicate> CallPredicate::compile(std::string_view condition, const CallTables& tables,
                                                    const CallColumns& columns) {
    try {
        auto root = compileCondition(condition, tables, columns);
        if (!root)
            return {};
        return CallPredicate(std::move(root));
    } catch (const RuntimeError&) {
        return {}; // the statement will fail in its own words
    }
}

void CallPredicate::select(const CallColumns& columns, std::size_t begin, std::size_t count, std::uint8_t* mask,
                           Scratch& scratch) const {
    if (isAndOfTables(*root_))
        narrow(root_->operands, columns, begin, count, mask);
    else
        evaluate(*root_, columns, begin, count, mask, scratch, 0);
    for (std::size_t i = 0; i < count; ++i)
        mask[i] &= truthBits::yes;
}
