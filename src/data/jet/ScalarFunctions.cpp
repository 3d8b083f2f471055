#include "data/jet/ScalarFunctions.h"

#include "data/jet/FunctionLibrary.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

using R = ScalarFunction::Result;
using A = ScalarFunction::Argument;
constexpr int any = 60; ///< arguments of Choose and Switch

constexpr std::array table{
    // choices; written out by the emitter, called by searches
    ScalarFunction{"IIF", 2, 3, R::Choice, A::Plain, functions::iif},
    ScalarFunction{"NZ", 1, 2, R::Choice, A::Plain, functions::nz},
    ScalarFunction{"SWITCH", 2, any, R::Choice, A::Plain, functions::switchOf},
    ScalarFunction{"CHOOSE", 2, any, R::Choice, A::Plain, functions::choose},
    ScalarFunction{"ISNULL", 1, 1, R::Boolean, A::Plain, functions::isNull},
    // text
    ScalarFunction{"LEFT", 2, 2, R::Text, A::Text, functions::left},
    ScalarFunction{"RIGHT", 2, 2, R::Text, A::Text, functions::right},
    ScalarFunction{"MID", 2, 3, R::Text, A::Text, functions::mid},
    ScalarFunction{"LEN", 1, 1, R::Long, A::Text, functions::len},
    ScalarFunction{"TRIM", 1, 1, R::Text, A::Text, functions::trim},
    ScalarFunction{"LTRIM", 1, 1, R::Text, A::Text, functions::ltrim},
    ScalarFunction{"RTRIM", 1, 1, R::Text, A::Text, functions::rtrim},
    ScalarFunction{"UCASE", 1, 1, R::Text, A::Text, functions::ucase},
    ScalarFunction{"LCASE", 1, 1, R::Text, A::Text, functions::lcase},
    ScalarFunction{"INSTR", 2, 4, R::Long, A::Text, functions::inStr},
    ScalarFunction{"INSTRREV", 2, 2, R::Long, A::Text, functions::inStrRev},
    ScalarFunction{"REPLACE", 3, 3, R::Text, A::Text, functions::replace},
    ScalarFunction{"SPACE", 1, 1, R::Text, A::Plain, functions::space},
    ScalarFunction{"STRING", 2, 2, R::Text, A::Plain, functions::string},
    ScalarFunction{"STRREVERSE", 1, 1, R::Text, A::Text, functions::strReverse},
    ScalarFunction{"STRCOMP", 2, 3, R::Long, A::Text, functions::strComp},
    ScalarFunction{"ASC", 1, 1, R::Long, A::Text, functions::asc},
    ScalarFunction{"CHR", 1, 1, R::Text, A::Plain, functions::chr},
    ScalarFunction{"FORMAT", 1, 2, R::Text, A::Typed, functions::format},
    // numbers
    ScalarFunction{"ROUND", 1, 2, R::AsArgument, A::Plain, functions::round},
    ScalarFunction{"INT", 1, 1, R::AsArgument, A::Plain, functions::intOf},
    ScalarFunction{"FIX", 1, 1, R::AsArgument, A::Plain, functions::fix},
    ScalarFunction{"ABS", 1, 1, R::AsArgument, A::Plain, functions::abs},
    ScalarFunction{"SGN", 1, 1, R::Long, A::Plain, functions::sgn},
    ScalarFunction{"SQR", 1, 1, R::Double, A::Plain, functions::sqr},
    ScalarFunction{"EXP", 1, 1, R::Double, A::Plain, functions::exp},
    ScalarFunction{"LOG", 1, 1, R::Double, A::Plain, functions::log},
    ScalarFunction{"SIN", 1, 1, R::Double, A::Plain, functions::sin},
    ScalarFunction{"COS", 1, 1, R::Double, A::Plain, functions::cos},
    ScalarFunction{"TAN", 1, 1, R::Double, A::Plain, functions::tan},
    ScalarFunction{"ATN", 1, 1, R::Double, A::Plain, functions::atn},
    // conversions
    ScalarFunction{"CSTR", 1, 1, R::Text, A::Typed, functions::cStr},
    ScalarFunction{"CBOOL", 1, 1, R::Boolean, A::Plain, functions::cBool},
    ScalarFunction{"CBYTE", 1, 1, R::Long, A::Plain, functions::cByte},
    ScalarFunction{"CINT", 1, 1, R::Long, A::Plain, functions::cInt},
    ScalarFunction{"CLNG", 1, 1, R::Long, A::Plain, functions::cLng},
    ScalarFunction{"CSNG", 1, 1, R::Double, A::Plain, functions::cDbl},
    ScalarFunction{"CDBL", 1, 1, R::Double, A::Plain, functions::cDbl},
    ScalarFunction{"CCUR", 1, 1, R::Currency, A::Plain, functions::cCur},
    ScalarFunction{"CDATE", 1, 1, R::Date, A::Plain, functions::cDate},
    ScalarFunction{"CVDATE", 1, 1, R::Date, A::Plain, functions::cDate},
    ScalarFunction{"DATEVALUE", 1, 1, R::Date, A::Plain, functions::dateValue},
    ScalarFunction{"TIMEVALUE", 1, 1, R::Date, A::Plain, functions::timeValue},
    ScalarFunction{"VAL", 1, 1, R::Double, A::Text, functions::val},
    ScalarFunction{"STR", 1, 1, R::Text, A::Typed, functions::str},
    ScalarFunction{"HEX", 1, 1, R::Text, A::Plain, functions::hex},
    ScalarFunction{"ISNUMERIC", 1, 1, R::Boolean, A::Typed, functions::isNumeric},
    ScalarFunction{"ISDATE", 1, 1, R::Boolean, A::Typed, functions::isDate},
    // dates
    ScalarFunction{"YEAR", 1, 1, R::Long, A::Plain, functions::year},
    ScalarFunction{"MONTH", 1, 1, R::Long, A::Plain, functions::month},
    ScalarFunction{"DAY", 1, 1, R::Long, A::Plain, functions::day},
    ScalarFunction{"HOUR", 1, 1, R::Long, A::Plain, functions::hour},
    ScalarFunction{"MINUTE", 1, 1, R::Long, A::Plain, functions::minute},
    ScalarFunction{"SECOND", 1, 1, R::Long, A::Plain, functions::second},
    ScalarFunction{"WEEKDAY", 1, 2, R::Long, A::Plain, functions::weekday},
    ScalarFunction{"MONTHNAME", 1, 2, R::Text, A::Plain, functions::monthName},
    ScalarFunction{"WEEKDAYNAME", 1, 3, R::Text, A::Plain, functions::weekdayName},
    ScalarFunction{"DATESERIAL", 3, 3, R::Date, A::Plain, functions::dateSerial},
    ScalarFunction{"TIMESERIAL", 3, 3, R::Date, A::Plain, functions::timeSerial},
    ScalarFunction{"DATEADD", 3, 3, R::Date, A::Plain, functions::dateAdd},
    ScalarFunction{"DATEDIFF", 3, 5, R::Long, A::Plain, functions::dateDiff},
    ScalarFunction{"DATEPART", 2, 4, R::Long, A::Plain, functions::datePart},
    ScalarFunction{"NOW", 0, 0, R::Date, A::Plain, functions::now},
    ScalarFunction{"DATE", 0, 0, R::Date, A::Plain, functions::date},
    ScalarFunction{"TIME", 0, 0, R::Date, A::Plain, functions::time},
};

} // namespace

const ScalarFunction* findFunction(std::string_view name) {
    const std::string upper = upperText(name);
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const ScalarFunction& function) { return function.name == upper; });
    return found == table.end() ? nullptr : &*found;
}

std::span<const ScalarFunction> scalarFunctions() {
    return table;
}

} // namespace jet
