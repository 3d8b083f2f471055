#include "sample/installation/TeleItemWriter.h"

#include "data/engine/Database.h"
#include "data/types/FieldType.h"

#include <algorithm>

namespace sample {

namespace {

enum Parameter {
    CallDate = 1,
    CallTime,
    CalledNo,
    CallingNo,
    GeographyCode,
    AnswerInd,
    AnswerLoc,
    NetAddress,
    Legs,
    AnswerTime,
    ActualDuration,
    Duration1,
    Discounted,
    TotalAnswerTime,
    PayPhone
};

std::string insertStatement(const Database& project) {
    return "INSERT INTO " + quoteIdentifier(project.schema()) +
           ".TblTeleItem(CallDate, CallTime, CalledNo, CallingNo, \"1141\", AnswerInd, AnswerLoc, NetAddress, Legs, "
           "AnswerTime, ActualDuration, Duration1, Discounted, TotalAnswerTime, PayPhone) "
           "VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
}

void putTwoDigits(char* place, int number) {
    place[0] = static_cast<char>('0' + number / 10);
    place[1] = static_cast<char>('0' + number % 10);
}

} // namespace

TeleItemWriter::TeleItemWriter(Database& project, const CallCalendar& calendar, const CallerPool& callers)
    : calendar_(calendar), callers_(callers), insert_(project.connection(), insertStatement(project)) {
    callTime_[2] = callTime_[5] = ':';
    insert_.bindStatic(CallTime, {callTime_.data(), callTime_.size()});
    insert_.bindStatic(AnswerInd, {&answerInd_, 1});
}

void TeleItemWriter::write(const Call& call) {
    bindTimes(call);
    bindCaller(call);
    answerInd_ = call.answerInd;
    insert_.bindStatic(CalledNo, inboundNumbers()[call.number].number);
    insert_.bindStatic(AnswerLoc, answerPoints()[call.answerPoint].name);
    insert_.bindStatic(NetAddress, destinations()[call.destination].id);
    insert_.bind(Discounted, static_cast<double>(call.discounted) / 10000.0);
    insert_.step();
    insert_.reset();
}

void TeleItemWriter::bindTimes(const Call& call) {
    if (call.day != day_) {
        day_ = call.day;
        insert_.bind(CallDate, calendar_.date(day_).days);
    }
    putTwoDigits(&callTime_[0], call.second / 3600);
    putTwoDigits(&callTime_[3], call.second / 60 % 60);
    putTwoDigits(&callTime_[6], call.second % 60);

    // The rule by which the program itself fills TotalAnswerTime in projects that have no such column.
    const int total = call.legs > 1 ? call.actualDuration - call.duration1 : call.answerTime;
    insert_.bind(Legs, std::int64_t{call.legs});
    insert_.bind(AnswerTime, std::int64_t{call.answerTime});
    insert_.bind(ActualDuration, std::int64_t{call.actualDuration});
    insert_.bind(Duration1, std::int64_t{call.duration1});
    insert_.bind(TotalAnswerTime, std::int64_t{total});
}

void TeleItemWriter::bindCaller(const Call& call) {
    const Caller& caller = callers_[call.caller];
    const ReferenceCode& code = callers_.codeOf(call.caller);
    char* end = std::copy(code.callingPrefix.begin(), code.callingPrefix.end(), callingNo_.begin());
    end += code.furtherDigits;
    std::uint32_t rest = caller.number;
    for (char* digit = end; digit != end - code.furtherDigits; rest /= 10)
        *--digit = static_cast<char>('0' + rest % 10);
    insert_.bindStatic(CallingNo, {callingNo_.data(), static_cast<std::size_t>(end - callingNo_.data())});
    insert_.bindStatic(GeographyCode, code.code);
    if (caller.isPayphone)
        insert_.bindStatic(PayPhone, "P");
    else
        insert_.bindNull(PayPhone);
}

} // namespace sample
