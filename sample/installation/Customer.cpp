#include "sample/installation/Customer.h"

#include <algorithm>

namespace sample {

namespace {

constexpr std::string_view orders = "Orders";
constexpr std::string_view deliveries = "Deliveries";
constexpr std::string_view careLine = "Care Line";
constexpr std::string_view branches = "Branches";
constexpr std::string_view campaigns = "Campaigns";
constexpr std::string_view freeNumbers = "Free Numbers";

enum Place { Leeds, Cardiff, Glasgow, Belfast, Norwich, Exeter, Swindon, Derby, Tyneside, Croydon, Bolton, NightDesk };

constexpr std::array<AnswerPoint, 12> places{{
    {"Leeds Contact Centre", "Contact Centres", Cardiff},
    {"Cardiff Contact Centre", "Contact Centres", Glasgow},
    {"Glasgow Contact Centre", "Contact Centres", Leeds},
    {"Belfast Service Desk", "Service Desks", Glasgow},
    {"Norwich Service Desk", "Service Desks", Leeds},
    {"Exeter Service Desk", "Service Desks", Cardiff},
    {"Swindon Delivery Office", "Delivery Offices", Derby},
    {"Derby Delivery Office", "Delivery Offices", Swindon},
    {"Tyneside Delivery Office", "Delivery Offices", Derby},
    {"Croydon Branch Line", "Branch Lines", Cardiff},
    {"Bolton Branch Line", "Branch Lines", Leeds},
    {"Night Desk", "", NightDesk},
}};

// Numbers from the ranges that are kept free for drama and examples, and made-up ones of the same look.
constexpr std::array<InboundNumber, 20> numbers{{
    {"08081570101", Tariff::Freephone, 14.0, Leeds, {orders, freeNumbers, ""}},
    {"08081570102", Tariff::Freephone, 9.0, Cardiff, {orders, freeNumbers, ""}},
    {"08081570103", Tariff::Freephone, 6.5, Glasgow, {orders, freeNumbers, ""}},
    {"08081570110", Tariff::Freephone, 2.5, Leeds, {campaigns, orders, freeNumbers}},
    {"08081570111", Tariff::Freephone, 2.0, Cardiff, {campaigns, orders, freeNumbers}},
    {"08081570112", Tariff::Freephone, 2.0, Glasgow, {campaigns, orders, freeNumbers}},
    {"08081570120", Tariff::Freephone, 8.0, Norwich, {careLine, freeNumbers, ""}},
    {"08081570121", Tariff::Freephone, 5.0, Belfast, {careLine, freeNumbers, ""}},
    {"08450960200", Tariff::Shared, 6.0, Swindon, {deliveries, "", ""}},
    {"08450960201", Tariff::Shared, 4.5, Derby, {deliveries, "", ""}},
    {"08450960202", Tariff::Shared, 3.0, Tyneside, {deliveries, "", ""}},
    {"08450960210", Tariff::Shared, 3.5, Exeter, {careLine, "", ""}},
    {"08450960211", Tariff::Shared, 2.0, Norwich, {careLine, "", ""}},
    {"08450960299", Tariff::Shared, 0.8, NightDesk, {"", "", ""}},
    {"03459090300", Tariff::Delivery, 8.0, Croydon, {branches, "", ""}},
    {"03459090301", Tariff::Delivery, 7.0, Bolton, {branches, "", ""}},
    {"03459090302", Tariff::Delivery, 4.0, Croydon, {branches, "", ""}},
    {"03459090303", Tariff::StandardRate, 3.5, Bolton, {branches, "", ""}},
    {"03459090310", Tariff::StandardRate, 2.5, Exeter, {branches, careLine, ""}},
    {"03459090399", Tariff::StandardRate, 0.7, NightDesk, {"", "", ""}},
}};

constexpr std::array<Destination, 30> targets{{
    {"LDS001", Leeds},   {"LDS002", Leeds},    {"LDS003", Leeds},    {"LDS004", Leeds},     {"CDF001", Cardiff},
    {"CDF002", Cardiff}, {"CDF003", Cardiff},  {"GLA001", Glasgow},  {"GLA002", Glasgow},   {"GLA003", Glasgow},
    {"BFS001", Belfast}, {"BFS002", Belfast},  {"NWI001", Norwich},  {"NWI002", Norwich},   {"NWI003", Norwich},
    {"EXT001", Exeter},  {"EXT002", Exeter},   {"SWI001", Swindon},  {"SWI002", Swindon},   {"DBY001", Derby},
    {"DBY002", Derby},   {"TYN001", Tyneside}, {"TYN002", Tyneside}, {"CRO001", Croydon},   {"CRO002", Croydon},
    {"CRO003", Croydon}, {"BOL001", Bolton},   {"BOL002", Bolton},   {"NIT001", NightDesk}, {"NIT002", NightDesk},
}};

} // namespace

std::span<const InboundNumber> inboundNumbers() {
    return numbers;
}

std::span<const AnswerPoint> answerPoints() {
    return places;
}

std::span<const Destination> destinations() {
    return targets;
}

std::vector<std::string_view> communityGroupNames() {
    return {branches, campaigns, careLine, deliveries, freeNumbers, orders};
}

} // namespace sample
