#include "data/schema/VocabularyBuilder.h"

#include <array>

namespace vocabulary {

namespace {

/// How the columns behind the key of a statistics table differ from table to table.
struct Measures {
    int slots = 1;             ///< the measures stand there once for each slot from 1
    bool averageCalls = false; ///< AverageCalls1 behind them
    bool campaignCost = false; ///< and the two columns of the campaign spend behind that
    bool ratios = false;       ///< every figure is a double: calls per head of population
};

struct Measure {
    std::string_view name;
    bool isMoney = false;
};

/// The ten measures in their order. Slot n begins at position (n - 1) * 10 + 1, the key column being at 0.
constexpr std::array<Measure, 10> measures{{{"TotalCalls"},
                                            {"Answered"},
                                            {"Ineffective"},
                                            {"Cost", true},
                                            {"Revenue", true},
                                            {"Engaged"},
                                            {"RTNR"},
                                            {"Other"},
                                            {"LostCallers"},
                                            {"AnsweredCallers"}}};

Field measureField(const Measure& measure, int slot, bool ratios) {
    const std::string name = std::string(measure.name) + std::to_string(slot);
    if (ratios)
        return real(name);
    return measure.isMoney ? money(name) : longInteger(name);
}

VocabularyTable statistics(std::string_view name, std::string_view key, const Measures& has) {
    Fields fields{text(key, 50)};
    for (int slot = 1; slot <= has.slots; ++slot) {
        for (const Measure& measure : measures)
            fields.push_back(measureField(measure, slot, has.ratios));
    }
    if (has.averageCalls)
        fields.push_back(real("AverageCalls1"));
    if (has.campaignCost) {
        fields.push_back(money("AreaCostPerAnsweredCall"));
        fields.push_back(money("AreaCostPerAnsweredCaller"));
    }
    return table(DatabaseKind::SystemMap, TableOrigin::Delivered, name, std::move(fields));
}

VocabularyTable averages(std::string_view name, std::string_view key) {
    return table(DatabaseKind::SystemMap, TableOrigin::Delivered, name, {text(key, 50), real("Average")});
}

constexpr Measures wholeProject{.slots = 1, .campaignCost = true};
constexpr Measures allSlots{.slots = 7, .campaignCost = true};
constexpr Measures allSlotsAndAverage{.slots = 7, .averageCalls = true, .campaignCost = true};
constexpr Measures frames{.slots = 5};
constexpr Measures perHead{.slots = 1, .campaignCost = true, .ratios = true};

} // namespace

Tables statisticsTables() {
    // Campaign spend is written to, and the grid of figures reads it from, whatever table a map shows, so every table
    // but those of the animation has its two columns.
    return {
        statistics("TblTV", "TVRegion", {.slots = 1, .averageCalls = true, .campaignCost = true}),
        statistics("TblCSG", "CSG", wholeProject),
        statistics("TblExchangeArea", "Exchange", allSlots),
        statistics("TblPostCodeDistrict", "PostCodeDistrict", allSlotsAndAverage),
        statistics("TblCustomerGroups", "GroupName", allSlots),
        statistics("TblSelectedDataForTV", "TVRegion", allSlotsAndAverage),
        statistics("TblSelectedDataForCSG", "CSG", wholeProject),
        statistics("TblSelectedDataForExchangeArea", "Exchange", allSlots),
        statistics("TblSelectedDataForPostCodeDistrict", "PostCodeDistrict", allSlotsAndAverage),
        statistics("TblSelectedDataForCustomerGroups", "GroupName", allSlots),
        statistics("TblAnimatedTV1", "TVRegion", frames),
        statistics("TblAnimatedTV2", "TVRegion", frames),
        statistics("TblAnimatedPostCodeDistrict1", "PostCodeDistrict", frames),
        statistics("TblAnimatedPostCodeDistrict2", "PostCodeDistrict", frames),
        statistics("tblTVByPopulation", "TVRegion", perHead),
        statistics("tblPostCodeByPopulation", "PostCodeDistrict", perHead),
        averages("tblTVAverageCalls", "TVRegion"),
        averages("tblPostCodeAverageCalls", "PostCode"),
    };
}

} // namespace vocabulary
