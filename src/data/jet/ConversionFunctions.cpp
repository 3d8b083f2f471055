#include "core/RuntimeError.h"
#include "data/jet/FunctionLibrary.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace jet::functions {

namespace {

void refuseNull(const Value& value) {
    if (value.isNull())
        throw RuntimeError(94, "Invalid use of Null");
}

Value whole(const Value& value, std::int64_t least, std::int64_t most) {
    refuseNull(value);
    const std::int64_t number = value.asInteger();
    if (number < least || number > most)
        throw RuntimeError(6, "Overflow");
    return number;
}

} // namespace

Value cStr(Arguments a) {
    refuseNull(a[0]);
    return a[0].asText();
}

Value cBool(Arguments a) {
    refuseNull(a[0]);
    return a[0].asBoolean();
}

Value cByte(Arguments a) {
    return whole(a[0], 0, 255);
}
Value cInt(Arguments a) {
    return whole(a[0], std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
}
Value cLng(Arguments a) {
    return whole(a[0], std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
}

Value cDbl(Arguments a) {
    refuseNull(a[0]);
    return a[0].asDouble();
}

Value cCur(Arguments a) {
    refuseNull(a[0]);
    return a[0].asMoney();
}

Value cDate(Arguments a) {
    refuseNull(a[0]);
    return a[0].asDate();
}

Value dateValue(Arguments a) {
    refuseNull(a[0]);
    return Date{std::trunc(a[0].asDate().days)};
}

Value timeValue(Arguments a) {
    refuseNull(a[0]);
    const DateParts parts = partsOf(a[0].asDate());
    DateParts time;
    time.hour = parts.hour;
    time.minute = parts.minute;
    time.second = parts.second;
    return dateOf(time);
}

/// The number at the front of a text; 0 where there is none. Blanks inside do not count.
Value val(Arguments a) {
    refuseNull(a[0]);
    std::string digits;
    for (const char c : a[0].asText()) {
        if (c != ' ' && c != '\t')
            digits += c;
    }
    const char* begin = digits.data();
    const char* end = begin + digits.size();
    if (begin != end && *begin == '+')
        ++begin;
    const char* first = begin != end && *begin == '-' ? begin + 1 : begin;
    if (first == end || !((*first >= '0' && *first <= '9') || *first == '.'))
        return 0.0; // also keeps words such as "infinity" from being numbers
    double number = 0;
    if (std::from_chars(begin, end, number).ec != std::errc{})
        return 0.0;
    return number;
}

/// A number with a blank in the place of the plus sign.
Value str(Arguments a) {
    if (a[0].isNull())
        return {};
    const Value number = a[0].isText() ? Value(a[0].asDouble()) : a[0];
    const std::string text = number.isDate() ? number.asText() : shortestText(number.asDouble());
    return text.starts_with('-') || number.isDate() ? text : " " + text;
}

Value hex(Arguments a) {
    if (a[0].isNull())
        return {};
    char text[20];
    std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(a[0].asLong()));
    return text;
}

Value isNumeric(Arguments a) {
    if (a[0].isNull() || a[0].isDate())
        return false;
    if (a[0].isNumber())
        return true;
    try {
        a[0].asDouble();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

Value isDate(Arguments a) {
    if (a[0].isDate())
        return true;
    if (!a[0].isText())
        return false;
    try {
        a[0].asDate();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace jet::functions
