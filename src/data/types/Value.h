#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Fixed-point money, four decimals.
struct Money {
    std::int64_t tenThousandths = 0;
    static Money
    fromDouble(double pounds); ///< rounds half to even at the fourth decimal; throws RuntimeError 6 on overflow
    double toDouble() const { return static_cast<double>(tenThousandths) / 10000.0; }
    friend bool operator==(const Money&, const Money&) = default;
};

/// A date and time: days since 30 December 1899; the fraction is the time of day.
struct Date {
    double days = 0.0;
    friend bool operator==(const Date&, const Date&) = default;
};

using Bytes = std::vector<std::byte>;

/// One value of a row or of an expression. Null is its own state, apart from empty text.
/// The as… functions convert as the dialect does and throw RuntimeError: 94 on null, 13 where the text is no such
/// value, 6 on overflow.
class Value {
public:
    using Storage = std::variant<std::monostate, bool, std::int64_t, double, Money, Date, std::string, Bytes>;

    Value() = default;
    Value(bool value) : storage_(value) {}
    Value(int value) : storage_(std::int64_t{value}) {}
    Value(std::int64_t value) : storage_(value) {}
    Value(double value) : storage_(value) {}
    Value(Money value) : storage_(value) {}
    Value(Date value) : storage_(value) {}
    Value(std::string value) : storage_(std::move(value)) {}
    Value(std::string_view value) : storage_(std::string(value)) {}
    Value(const char* value) : storage_(std::string(value)) {}
    Value(Bytes value) : storage_(std::move(value)) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(storage_); }
    bool isNumber() const; ///< bool, integer, double or Money
    bool isText() const { return std::holds_alternative<std::string>(storage_); }
    bool isDate() const { return std::holds_alternative<Date>(storage_); }
    const Storage& storage() const { return storage_; }

    bool asBoolean() const;
    std::int64_t asInteger() const; ///< rounds half to even
    std::int32_t asLong() const;    ///< 32 bits, overflow is error 6
    double asDouble() const;        ///< a boolean gives -1 or 0, a Date its days
    Money asMoney() const;          ///< of texts as of those of the other numbers: "1,234.50" and "£1.50", too
    Date asDate() const;
    const Bytes& asBytes() const; ///< throws 13 unless it holds bytes
    /// As `&` writes it: numbers in their shortest decimal text, booleans "True"/"False", dates "dd/mm/yyyy hh:mm:ss"
    /// (the date left out for day 0, else the time left out at midnight). Null gives the empty text.
    std::string asText() const;

    friend bool operator==(const Value&, const Value&) = default; ///< same kind and same bits; not the dialect's `=`

private:
    Storage storage_;
};

/// The shortest decimal text that reads back as `number`, without an exponent below 1e15 ("0.5", "3", "1E+20").
std::string shortestText(double number);

/// Date texts and parts. Day first, as in the United Kingdom; a month above 12 swaps day and month.
struct DateParts {
    int year = 1899, month = 12, day = 30, hour = 0, minute = 0, second = 0;
};
/// The date itself. Throws RuntimeError 6 where it lies outside the years 100 to 9999.
Date checkedDate(Date date);
DateParts partsOf(Date date);
Date dateOf(const DateParts& parts);
/// Parses "31/12/2025", "31/12/2025 17:05", "2025-12-31", "17:05:09", "5 Jan 2025", "01/Jan/1800". `monthFirst`: as
/// between # signs. Throws RuntimeError 13 where the text is no date.
Date parseDate(std::string_view text, bool monthFirst = false);

/// The order of texts everywhere in the system: without case, trailing blanks ignored (collation JET).
/// Negative, 0 or positive; `a` and `b` are UTF-8.
int compareText(std::string_view a, std::string_view b);
bool equalText(std::string_view a, std::string_view b);
/// Text folded so that equal texts have equal bytes: upper case, trailing blanks removed.
std::string foldText(std::string_view text);
/// Upper case and lower case of UTF-8 (Latin, Greek and Cyrillic letters).
std::string upperText(std::string_view text);
std::string lowerText(std::string_view text);
/// Without blanks at its ends.
std::string trimmedText(std::string_view text);
/// At most the first or last `count` characters of UTF-8.
std::string firstCharacters(std::string_view text, std::size_t count);
std::string lastCharacters(std::string_view text, std::size_t count);
