#include "stats/calls/CallColumns.h"

std::size_t CallColumns::bytes() const {
    std::size_t total = money.size() * sizeof(money[0]) + answerInd.size() + callerFlags.size();
    for (const auto& column : ids)
        total += column.size() * sizeof(std::uint16_t);
    return total;
}

std::vector<AnswerKind> answerKindsOf(const std::vector<Value>& answerInds) {
    std::vector<AnswerKind> kinds;
    for (const Value& value : answerInds) {
        if (value.isNull())
            kinds.push_back(AnswerKind::Unknown);
        else if (equalText(value.asText(), "0") || equalText(value.asText(), "8"))
            kinds.push_back(AnswerKind::Answered);
        else
            kinds.push_back(AnswerKind::Unanswered);
    }
    return kinds;
}
