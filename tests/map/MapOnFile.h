#pragma once

#include "map/ThematicMap.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "tests/map/SmallMap.h"
#include "tests/support/ScriptedPrompts.h"
#include "ui/cColours_CS.h"

#include <initializer_list>
#include <string>

/// A small installation with everything that builds a thematic map of it. The view is 300 x 100 pixels.
struct MapOnFile {
    MapOnFile() {
        surface.setPixelSize({300, 100});
        maxima.MaxTotalCalls = 900;
    }

    QColor bandColour(int band) const { return QColor::fromRgb(cColours_CS().MapColour(band)); }
    void addTables(std::initializer_list<const char*> names) {
        for (const char* name : names)
            createVocabularyTable(map.database(), DatabaseKind::SystemMap, name);
    }
    /// Tables of customer groups without rows. `dataType`: what groups are made of; empty: nobody has said.
    void addGroupTables(const std::string& dataType) {
        addTables({"PNT_GROUPS"});
        map.database().execute(
            "CREATE TABLE TblGroup_Link (TallyAccount Text(50), Reference Text(50), GroupName Text(50))");
        map.database().execute("CREATE TABLE tblMappingGroupSetup_Link (TALLYACCOUNT Text(50), DataType Text(40))");
        if (!dataType.empty())
            map.database().execute("INSERT INTO tblMappingGroupSetup_Link VALUES ('ACC', '" + dataType + "')");
        tables.CustomerGroups = "TblCustomerGroups";
    }

    SmallMap map;
    ScriptedPrompts messages;
    MapSurface surface;
    MapKey key{surface};
    MapFormState form;
    CurrentTables tables;
    MapMaxima maxima;
    ThematicMap thematic{surface, key, form, tables, maxima};
};
