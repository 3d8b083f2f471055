#include "tests/animation/AnimatedProject.h"

#include <functional>

namespace {

int secondsOf(const std::string& time) {
    return (std::stoi(time.substr(0, 2)) * 60 + std::stoi(time.substr(3, 2))) * 60;
}

/// Whether a frame counts a call, by its hour and minute; times in seconds of the day.
struct PlainFrame {
    int startDay, startTime, endDay, endTime;
    bool overnight = false;

    bool counts(const SmallCall& call) const {
        const int time = secondsOf(call.time);
        if (call.day < startDay || call.day > endDay)
            return false;
        if (startTime == endTime)
            return true;
        if (startTime < endTime)
            return time >= startTime && time <= endTime;
        if (overnight)
            return (call.day < endDay && time > startTime) || (call.day > startDay && time <= endTime);
        return time >= startTime || time <= endTime;
    }
};

/// Ten hours from eight in the evening of the first: each a second further on than the one before.
PlainFrame hourFrame(int frame, bool overnight) {
    const int start = 20 * 3600 + (frame - 1) * 3601;
    const int end = start + 3600;
    return {1 + start / 86400, start % 86400, 1 + end / 86400, end % 86400, overnight};
}

struct AreaOfCalls {
    std::string condition;
    std::vector<std::string> codes;
};

using Counts = std::vector<long>;

class FrameFigures : public AnimatedProject {
protected:
    void expectFrames(long boundary, const std::vector<AreaOfCalls>& areas, bool overnight,
                      const std::function<bool(const SmallCall&)>& filter) {
        long largest = 0;
        for (int frame = 1; frame <= 10; ++frame) {
            const PlainFrame plain = hourFrame(frame, overnight);
            for (const AreaOfCalls& area : areas) {
                Counts counts(3);
                for (const SmallCall& call : calls) {
                    if (!filter(call) || !plain.counts(call) ||
                        std::find(area.codes.begin(), area.codes.end(), call.code) == area.codes.end())
                        continue;
                    ++counts[0];
                    ++counts[call.answerInd == "0" || call.answerInd == "8" ? 1 : 2];
                }
                largest = std::max(largest, counts[0]);
                EXPECT_EQ(inTable(boundary, frame, area.condition), counts)
                    << "frame " << frame << ", " << area.condition;
            }
        }
        EXPECT_GT(largest, 1) << "there is something to be counted";
        EXPECT_EQ(mapMaxima.MaxTotalCalls, static_cast<double>(largest)) << "one scale for all frames";
    }

    Counts inTable(long boundary, int frame, const std::string& area) {
        const std::string table =
            std::string(boundary == 2 ? "TblAnimatedTV" : "TblAnimatedPostCodeDistrict") + (frame < 6 ? "1" : "2");
        const std::string period = std::to_string(frame < 6 ? frame : frame - 5);
        Counts counts;
        for (const char* measure : {"TotalCalls", "Answered", "Ineffective"})
            counts.push_back(std::stol(figure(measure + period, table, area)));
        return counts;
    }

    const std::vector<AreaOfCalls> regions{{"TVRegion = 'Yorkshire'", {"0113", "0114"}},
                                           {"TVRegion = 'Mobile'", {"MOBILE"}},
                                           {"TVRegion = 'International'", {".33"}}};
    const std::vector<AreaOfCalls> districts{{"PostCodeDistrict = 'LS1'", {"0113"}},
                                             {"PostCodeDistrict = 'S1'", {"0114"}},
                                             {"PostCodeDistrict = 'Mobile'", {"MOBILE"}},
                                             {"PostCodeDistrict = 'International'", {".33"}}};
};

TEST_F(FrameFigures, EachFrameOfRegionsHoldsItsOwnCallsUnderTheFilterOfTheReport) {
    addScatteredCalls(800);
    mapMaxima.MaxTotalCalls = 1e6;
    ReportParameters parameters;
    parameters.DTStart = parameters.DTEnd = parseDate("03/01/2025"); // the frames have days and hours of their own
    parameters.DTStartTime = {parseDate("09:00:00"), parseDate("10:00:00")};
    parameters.OptInbound = 1;
    parameters.CmbInbound = "0800";
    parameters.optDestinationNo = 1;
    parameters.cmbDestinationNo = "D2";
    ASSERT_TRUE(apply(parameters));
    expectFrames(2, regions, false,
                 [](const SmallCall& call) { return call.called == "0800" && call.destination == "D2"; });
    EXPECT_EQ(SelectionDescription, "Called No = 0800\r\nDestination ID = D2");
    EXPECT_EQ(currentTables.TV, "TblAnimatedTV1");
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(FrameFigures, OvernightAFrameAcrossMidnightIsOneStretchOfTime) {
    addScatteredCalls(800);
    showMapOf(3);
    ReportParameters parameters;
    parameters.ChkOverNight = true;
    ASSERT_TRUE(apply(parameters));
    expectFrames(3, districts, true, [](const SmallCall&) { return true; });
    EXPECT_EQ(currentTables.PostCodeDistrict, "TblAnimatedPostCodeDistrict1");
    EXPECT_TRUE(currentTables.TV.empty());
}

TEST_F(FrameFigures, WholeDaysFromMidnightToMidnight) {
    addScatteredCalls(200);
    settings.startTime = Date{0.0};
    settings.CmbDataPeriod = "24hr";
    settings.CmbFrames = "4";
    ASSERT_TRUE(apply());
    for (int day = 1; day <= 4; ++day) {
        const auto mobiles = std::count_if(calls.begin(), calls.end(), [&](const SmallCall& call) {
            return call.day == day && call.code == "MOBILE";
        });
        EXPECT_EQ(inTable(2, day, "TVRegion = 'Mobile'").front(), mobiles) << day;
    }
}

} // namespace
