#include "tools/callscope-tool/TextOutput.h"

#include "data/engine/Recordset.h"

#include <cmath>
#include <cstdio>

namespace {

std::string isoDate(Date date) {
    const DateParts p = partsOf(date);
    const bool hasTime = p.hour != 0 || p.minute != 0 || p.second != 0;
    const bool hasDay = std::trunc(date.days) != 0.0 || !hasTime;
    char day[24] = "";
    char time[16] = "";
    if (hasDay)
        std::snprintf(day, sizeof day, "%04d-%02d-%02d", p.year, p.month, p.day);
    if (hasTime)
        std::snprintf(time, sizeof time, "%02d:%02d:%02d", p.hour, p.minute, p.second);
    return std::string(day) + (hasDay && hasTime ? " " : "") + time;
}

std::string hexadecimal(const Bytes& bytes) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const std::byte byte : bytes) {
        text += digits[std::to_integer<unsigned>(byte) >> 4];
        text += digits[std::to_integer<unsigned>(byte) & 0xF];
    }
    return text;
}

std::string plainText(const Value& value) {
    if (const auto* boolean = std::get_if<bool>(&value.storage()))
        return *boolean ? "-1" : "0";
    if (const auto* date = std::get_if<Date>(&value.storage()))
        return isoDate(*date);
    if (const auto* bytes = std::get_if<Bytes>(&value.storage()))
        return hexadecimal(*bytes);
    return value.asText();
}

std::string quotedForCsv(const std::string& text, bool quoteEmpty) {
    const bool quote = text.empty() ? quoteEmpty : text.find_first_of(",\"\r\n") != std::string::npos;
    if (!quote)
        return text;
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

std::string escapedForTsv(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '\t':
            escaped += "\\t";
            break;
        case '\n':
            escaped += "\\n";
            break;
        case '\r':
            escaped += "\\r";
            break;
        case '\\':
            escaped += "\\\\";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

} // namespace

std::string cellText(const Value& value, RowFormat format) {
    if (value.isNull())
        return format == RowFormat::Csv ? "" : "\\N";
    const std::string text = plainText(value);
    return format == RowFormat::Csv ? quotedForCsv(text, true) : escapedForTsv(text);
}

void writeRows(std::ostream& out, Recordset& rows, RowFormat format) {
    const char* separator = format == RowFormat::Csv ? "," : "\t";
    const int columns = rows.fieldCount();
    for (int i = 0; i < columns; ++i)
        out << (i == 0 ? "" : separator) << cellText(rows.field(i).name, format);
    out << '\n';
    for (; !rows.EOF_(); rows.MoveNext()) {
        for (int i = 0; i < columns; ++i)
            out << (i == 0 ? "" : separator) << cellText(rows.value(i), format);
        out << '\n';
    }
}
