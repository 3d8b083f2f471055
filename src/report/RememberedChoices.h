#pragma once

#include "data/engine/Recordset.h"

#include <string>
#include <string_view>
#include <vector>

/// What a run was asked for, as the capture row remembers it.

/// A list of FrmMain from which a run takes one entry where its option is set, and the column that remembers it: the
/// entry, or an empty text where the option was not set.
struct RememberedChoice {
    std::string column;
    bool isSet;
    std::string text;
};

bool choicesDiffer(const Recordset& row, const std::vector<RememberedChoice>& choices);
/// Into a row that is being edited.
void setChoices(Recordset& row, const std::vector<RememberedChoice>& choices);

/// Days and times of day are compared by their digits, "DDMMYY" and "HHMMSS"; nothing remembered is not the same.
bool sameDay(const Value& stored, Date day);
bool sameTime(const Value& stored, Date time);
