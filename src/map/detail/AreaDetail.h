#pragma once

#include <optional>
#include <string>
#include <vector>

/// What a campaign spend comes to, in pounds.
struct CampaignCosts {
    double perAnsweredCall = 0;
    double perAnsweredCaller = 0; ///< -1 where there are no callers
};

/// Those of gcCampaignSpend; set by whoever sets that.
extern CampaignCosts campaignCosts;

/// Which figures of which map are asked for.
struct AreaQuestion {
    std::string boundaryType;    ///< gsBoundaryType
    std::string table;           ///< statistics table of the map
    int dataSet = 1;             ///< 1 to 7
    bool densities = false;      ///< the table holds rates for each head of population
    long groupBaseGeography = 3; ///< what customer groups are made of: 1 CSGs, 2 TV regions, 3 postcode districts
    std::optional<CampaignCosts> campaign; ///< nothing while no campaign spend is entered
};

/// Everything known of an area, in the words of the window. What is absent is not shown.
struct AreaDetail {
    std::string title;
    std::optional<std::string> listHeading; ///< absent: the list is hidden, too
    std::vector<std::string> exchanges;

    std::string answered;
    std::string engaged;
    std::string rtnr;
    std::string other;
    std::string ineffective;
    std::string cost; ///< with the revenue behind it
    std::optional<std::string> lostCallers;
    std::optional<std::string> answeredCallers;
    std::optional<std::string> population;

    struct Campaign {
        std::string costPerResponse;
        std::string costPerCaller;
        std::string areaCostPerAnsweredCaller;
        std::string areaCostPerAnsweredCall;
    };
    std::optional<Campaign> campaign;
};

/// What there is to show: the detail, else a message for the user, else neither.
struct AreaAnswer {
    std::optional<AreaDetail> detail;
    std::string message;
};

/// Of a polygon of the map, by its entity identifier. The Republic Of Ireland has no detail. Reads gdbSystem and
/// gdbProject; throws DatabaseError. Main thread.
AreaAnswer detailOfPolygon(const AreaQuestion& question, long entity);

/// Of the calls without a place on the map: "Mobile", "International", "VOIP" or "Other". On a map of customer groups,
/// of the group that they belong to. Reads what detailOfPolygon reads.
AreaAnswer detailOfCallType(const AreaQuestion& question, const std::string& callType);
