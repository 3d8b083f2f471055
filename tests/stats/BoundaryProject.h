#pragma once

#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "data/engine/Workspace.h"
#include "stats/ModData_SelectedCSGData.h"
#include "stats/ModData_SelectedExchangeData.h"
#include "stats/ModData_SelectedPostCodeData.h"
#include "stats/ModData_SelectedTVArea.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <string>
#include <vector>

using Rows = std::vector<std::string>;

/// A project whose codes lie in exchanges, CSGs, postcode districts and TV regions, and a system map database with the
/// tables and shapes of all of them. Area 115 and district LS9 have no calls; 115 has two shapes.
class BoundaryProject : public SmallInstallation {
public:
    BoundaryProject() {
        WorkspaceTransaction setUp(*defaultWorkspace());
        for (const char* table :
             {"PGN_CSG", "PGN_POSTCODEDISTRICT", "PNT_POSTCODEDISTRICTNAMES", "PNT_EXCHANGEAREANAMES",
              "TblExchangeArea", "TblPostCodeDistrict", "TblSelectedDataForExchangeArea", "TblAnimatedTV2",
              "TblAnimatedPostCodeDistrict1", "TblSelectedDataForCustomerGroups", "tblTempGroups", "tblTVByPopulation",
              "tblPostCodeByPopulation"})
            createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, table);
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblGroups");
        addArea("0113", "LEEDS", "113", "LS1", "Yorkshire");
        addArea("0114", "NORTHERN", "114", "S1", "Yorkshire");
        addArea(".33", ".France", "0", ".France", ".France");
        for (const std::string code : {"MOBILE", "VOIP", "NO CLI", "OLO", "UNTRACEAB"})
            addArea(code, code, code, code, code);
        for (const char* name : {"113", "114", "115", "115"})
            gdbSystem->execute(std::string("INSERT INTO PGN_CSG (Name) VALUES ('") + name + "')");
        for (const char* name : {"LS1", "LS9"})
            gdbSystem->execute(std::string("INSERT INTO PGN_POSTCODEDISTRICT (Name) VALUES ('") + name + "')");
        attach("TblGIS_Link", "TblMappingGIS", "project.mdb");
        attach("TblTeleItem_Link", "TblTeleItem", "project.mdb");
        attach("tblMappingGroupSetup_Link", "tblMappingGroupSetup", "CustomerGroups.mdb");
        setUp.commit();
    }

    void addArea(const std::string& code, const std::string& exchange, const std::string& csg,
                 const std::string& district, const std::string& region) {
        gdbProject->execute("INSERT INTO TblMappingGIS ([1141], Exchange, CSG, PostCode, TVArea) VALUES ('" + code +
                            "', '" + exchange + "', '" + csg + "', '" + district + "', '" + region + "')");
    }

    void attach(const char* name, const char* source, const char* file) {
        TableDef link = gdbSystem->createTableDef(name);
        link.connect = "MS Access;DATABASE=" + this->file(file) + ";PWD=QzMarlKey";
        link.sourceTableName = source;
        gdbSystem->tableDefs().append(link);
    }

    void addAllCalls() {
        addCalls({
            {"A", "0113", "0", 2.00, 1},
            {"A", "0113", "2", 0.25, 1},
            {"B", "0113", "4", -0.40, 2},
            {"C", "0114", "9", -1.25, 1},
            {"C", "0114", "0", 0.10, 2},
            // Beside the map. The caller without a number is one caller that nobody answered.
            {"M1", "MOBILE", "0", 0.30, 1},
            {"", "NO CLI", "4", 0.00, 1},
            {"O1", "OLO", "0", 0.05, 1},
            {"O1", "OLO", "2", 0.07, 1},
            {"I1", ".33", "0", 3.00, 1},
            {"I1", ".33", "x", 0.00, 1},
            {"V1", "VOIP", "2", 0.00, 1},
        });
    }

    ScriptedPrompts prompts;
};

/// The rows of a statistics table in the order of their areas: name, calls, answered, ineffective, cost, revenue,
/// engaged, ring tone no reply, other, lost callers, answered callers of one period.
inline Rows figuresOf(const std::string& table, const std::string& key, int period = 1) {
    const std::string p = std::to_string(period);
    std::string columns = key;
    for (const char* measure : {"TotalCalls", "Answered", "Ineffective", "Cost", "Revenue", "Engaged", "RTNR", "Other",
                                "LostCallers", "AnsweredCallers"})
        columns += ", " + (measure + p);
    return rowsOf(*gdbSystem, "SELECT " + columns + " FROM " + table + " ORDER BY " + key);
}

/// The texts that a run shows.
class TaskTexts : public Progress {
public:
    TaskTexts() { setProgress(this); }
    ~TaskTexts() override { setProgress(nullptr); }
    void setTask(const std::string& text) override { texts.push_back(text); }

    Rows texts;
};
