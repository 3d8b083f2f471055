#include "stats/ModData_UpdateCallDataByPopulationDensity.h"

#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/CurrentProcedure.h"
#include "stats/Measures.h"

namespace {

/// Runs statements one after the other whatever becomes of them, and remembers whether all went well.
class Statements {
public:
    void run(const std::string& statement) {
        succeeded_ = onSystemDatabase([&] { systemDatabase().execute(statement); }) && succeeded_;
    }
    bool succeeded() const { return succeeded_; }

private:
    bool succeeded_ = true;
};

std::string insertInto(const std::string& rates, const std::string& area) {
    return "INSERT INTO " + rates + " ( " + area + ", " + measureColumnList(1) + " ) SELECT ";
}

/// `figures` is the table of the calls, `join` leads to that of the population.
void divide(Statements& statements, const std::string& rates, const std::string& area, const std::string& figures,
            const std::string& join) {
    std::string select = insertInto(rates, area) + figures + "." + area;
    for (const Measure measure : periodMeasures) {
        const std::string rate = measureColumn(measure, 1) + "/Population";
        select += ", iif(ISNULL(" + rate + "), 0, " + rate + ")";
    }
    statements.run(select + " FROM " + join);
}

void shorten(Statements& statements, const std::string& rates) {
    for (const Measure measure : periodMeasures) {
        const std::string column = measureColumn(measure, 1);
        // Tiny rates of lost callers have always been those of answered calls.
        const std::string from = measure == Measure::LostCallers ? measureColumn(Measure::Answered, 1) : column;
        statements.run("UPDATE " + rates + " SET " + column + " = ROUND(" + from + ", 8) WHERE " + rates + "." +
                       column + " < 0.0001");
    }
}

} // namespace

int ModData_UpdateCallDataByPopulationDensity() {
    const CurrentProcedure procedure("ModData_UpdateCallDataByPopulationDensity");
    Statements statements;
    statements.run("DELETE FROM tblTVByPopulation");
    statements.run("DELETE FROM tblPostCodeByPopulation");
    divide(statements, "tblTVByPopulation", "TVRegion", "tblTV",
           "tblTV LEFT JOIN tblTVPopulationDensity ON tblTV.TVRegion = tblTVPopulationDensity.Reference");
    divide(statements, "tblPostCodeByPopulation", "PostCodeDistrict", "tblPostCodeDistrict",
           "tblPostCodeDistrict INNER JOIN tblPostCodePopulationDensity ON tblPostCodeDistrict.PostCodeDistrict = "
           "tblPostCodePopulationDensity.Reference");
    shorten(statements, "tblTVByPopulation");
    shorten(statements, "tblPostCodeByPopulation");
    statements.run(insertInto("tblPostCodeByPopulation", "PostCodeDistrict") +
                   "tblPostCodeDistrict.PostCodeDistrict, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 From tblPostCodeDistrict WHERE "
                   "(((tblPostCodeDistrict.PostCodeDistrict) Not In (SELECT postcodedistrict from "
                   "tblPostCodeByPopulation)))");
    return statements.succeeded() ? 0 : -1;
}
