#include "report/RememberedChoices.h"

#include <algorithm>

bool choicesDiffer(const Recordset& row, const std::vector<RememberedChoice>& choices) {
    return std::any_of(choices.begin(), choices.end(), [&](const RememberedChoice& choice) {
        const std::string stored = row.value(choice.column).asText();
        return stored.empty() ? choice.isSet : !choice.isSet || choice.text != stored;
    });
}

void setChoices(Recordset& row, const std::vector<RememberedChoice>& choices) {
    for (const RememberedChoice& choice : choices)
        row.set(choice.column, choice.isSet ? choice.text : std::string());
}

bool sameDay(const Value& stored, Date day) {
    if (stored.isNull())
        return false;
    const DateParts a = partsOf(stored.asDate()), b = partsOf(day);
    return a.day == b.day && a.month == b.month && a.year % 100 == b.year % 100;
}

bool sameTime(const Value& stored, Date time) {
    if (stored.isNull())
        return false;
    const DateParts a = partsOf(stored.asDate()), b = partsOf(time);
    return a.hour == b.hour && a.minute == b.minute && a.second == b.second;
}
