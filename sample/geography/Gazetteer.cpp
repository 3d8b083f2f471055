#include "sample/geography/Gazetteer.h"

#include "sample/geography/EmbeddedCsv.h"
#include "sample/geography/NationalGrid.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace sample {

namespace {

std::vector<std::string> splitWords(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// The first field of a record without apostrophes, and a check that it is new to the list.
std::string newName(const CsvRecord& record, std::set<std::string>& known) {
    std::string name = record.fields[0];
    std::erase(name, '\'');
    if (name.empty() || !known.insert(name).second)
        record.fail("the name \"" + name + "\" is empty or listed a second time");
    return name;
}

/// Where the town of a record stands: fills place, ring and nation.
template<typename Place>
void locate(Place& town, const CsvRecord& record, std::size_t latitudeField, const Coast& coast,
            const Nations& nations) {
    try {
        town.place = coast.nearestHome(toMap({record.number(latitudeField), record.number(latitudeField + 1)}));
    } catch (const std::runtime_error& error) {
        record.fail(error.what());
    }
    town.ring = coast.ringAt(town.place);
    town.nation = nations.at(town.ring, town.place);
}

Town readTown(const CsvRecord& record, const Coast& coast, const Nations& nations) {
    Town town;
    locate(town, record, 1, coast, nations);
    town.districts = splitWords(record.fields[3]);
    town.dialling = record.fields[4];
    if (town.dialling.size() < 3 || town.dialling.front() != '0' ||
        town.dialling.find_first_not_of("0123456789") != std::string::npos)
        record.fail("\"" + town.dialling + "\" is not a dialling code");
    town.dialling.erase(0, 1);
    town.region = record.fields[5];
    town.people = record.number(6) * 1000;
    if (town.region.empty() || town.people <= 0)
        record.fail("a town needs a region and a size");
    return town;
}

} // namespace

Gazetteer readGazetteer(const Coast& coast, const Nations& nations) {
    Gazetteer gazetteer;
    std::set<std::string> districts;
    std::set<std::string> regions;
    std::set<std::string> townNames;
    std::set<std::string> csgNames;
    for (const CsvRecord& record : readCsv(townsCsv(), "Town,Lat,Lon,Districts,Dialling,Region,Size")) {
        Town& town = gazetteer.towns.emplace_back(readTown(record, coast, nations));
        town.name = newName(record, townNames);
        regions.insert(town.region);
        for (const std::string& district : town.districts)
            if (!districts.insert(district).second)
                record.fail("district " + district + " is listed a second time");
    }
    gazetteer.regions.assign(regions.begin(), regions.end());
    for (const CsvRecord& record : readCsv(csgsCsv(), "Name,Lat,Lon")) {
        CsgTown& csg = gazetteer.csgs.emplace_back();
        csg.name = newName(record, csgNames);
        locate(csg, record, 1, coast, nations);
    }
    return gazetteer;
}

} // namespace sample
