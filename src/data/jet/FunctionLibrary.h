#pragma once

#include "data/jet/ScalarFunctions.h"

/// The functions of the dialect by name; see ScalarFunction for what they throw. Unless a function says otherwise, a
/// null argument gives null.
namespace jet::functions {

// ChoiceFunctions.cpp
Value iif(Arguments arguments);
Value nz(Arguments arguments);
Value switchOf(Arguments arguments);
Value choose(Arguments arguments);
Value isNull(Arguments arguments);

// TextFunctions.cpp
Value left(Arguments arguments);
Value right(Arguments arguments);
Value mid(Arguments arguments);
Value len(Arguments arguments);
Value trim(Arguments arguments);
Value ltrim(Arguments arguments);
Value rtrim(Arguments arguments);
Value ucase(Arguments arguments);
Value lcase(Arguments arguments);
Value inStr(Arguments arguments);
Value inStrRev(Arguments arguments);
Value replace(Arguments arguments);
Value space(Arguments arguments);
Value string(Arguments arguments);
Value strReverse(Arguments arguments);
Value strComp(Arguments arguments);
Value asc(Arguments arguments);
Value chr(Arguments arguments);
Value format(Arguments arguments); ///< of null: empty text

// NumberFunctions.cpp
Value round(Arguments arguments);
Value intOf(Arguments arguments);
Value fix(Arguments arguments);
Value abs(Arguments arguments);
Value sgn(Arguments arguments);
Value sqr(Arguments arguments);
Value exp(Arguments arguments);
Value log(Arguments arguments);
Value sin(Arguments arguments);
Value cos(Arguments arguments);
Value tan(Arguments arguments);
Value atn(Arguments arguments);

// ConversionFunctions.cpp; the conversions refuse null with error 94
Value cStr(Arguments arguments);
Value cBool(Arguments arguments);
Value cByte(Arguments arguments);
Value cInt(Arguments arguments);
Value cLng(Arguments arguments);
Value cDbl(Arguments arguments);
Value cCur(Arguments arguments);
Value cDate(Arguments arguments);
Value dateValue(Arguments arguments);
Value timeValue(Arguments arguments);
Value val(Arguments arguments);
Value str(Arguments arguments);
Value hex(Arguments arguments);
Value isNumeric(Arguments arguments);
Value isDate(Arguments arguments);

// DateFunctions.cpp
Value year(Arguments arguments);
Value month(Arguments arguments);
Value day(Arguments arguments);
Value hour(Arguments arguments);
Value minute(Arguments arguments);
Value second(Arguments arguments);
Value weekday(Arguments arguments);
Value monthName(Arguments arguments);
Value weekdayName(Arguments arguments);
Value dateSerial(Arguments arguments);
Value timeSerial(Arguments arguments);
Value dateAdd(Arguments arguments);
Value dateDiff(Arguments arguments);
Value datePart(Arguments arguments);
Value now(Arguments arguments);
Value date(Arguments arguments);
Value time(Arguments arguments);

} // namespace jet::functions
