#pragma once

#include "data/types/Value.h"

#include <array>
#include <string>

/// The parameters of a single-map report. The fields mirror the controls of FrmMain under their names; an option array
/// is the index of the option that is set.
struct ReportParameters {
    Date DTStart; ///< first day
    Date DTEnd;   ///< last day
    /// Time of day from which and to which calls count, as fractions of day 0. By default the whole day.
    std::array<Date, 2> DTStartTime{Date{0.0}, Date{86399.0 / 86400.0}};
    bool ChkOverNight = false; ///< a range of hours that crosses midnight goes on into the next day

    int OptInbound = 0; ///< 0 all inbound numbers, 1 CmbInbound, 2 the community group cmbCG
    std::string CmbInbound;
    std::string cmbCG;

    int OptAnswer = 0; ///< 0 all answer points, 1 CmbAnswer, 2 the group CmbAnswerGroup
    std::string CmbAnswer;
    std::string CmbAnswerGroup;

    int optDestinationNo = 0; ///< 0 all destination IDs, 1 cmbDestinationNo
    std::string cmbDestinationNo;
};
