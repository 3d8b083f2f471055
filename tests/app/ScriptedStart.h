#pragma once

#include "app/ModUtilities_Main.h"
#include "app/StartActions.h"
#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "data/engine/Database.h"

#include <algorithm>
#include <string>
#include <vector>

/// The outer world of a start, as a script: what each procedure answers, and a record of which were called.
class ScriptedStart : public StartActions {
public:
    bool otherInstance = false;
    bool fontLoads = false;
    std::string line;
    int mapUpdateFails = 0;
    bool projectOpens = true;
    int gisUpdateFails = 0;
    std::string failsIn; ///< name of the call that throws
    std::vector<std::string> calls;

    bool called(const std::string& name) const { return std::find(calls.begin(), calls.end(), name) != calls.end(); }

    bool anotherInstanceRunning() override {
        call("instance");
        return otherInstance;
    }
    bool addFontFile(const std::string& path) override {
        call("font");
        fontPath = path;
        return fontLoads;
    }
    std::string commandLine() override {
        call("command line");
        return line;
    }
    void showMainWindow() override { call("main window"); }
    int ModUtilities_CheckForNewUKMapDB() override {
        call("map update");
        systemWasClosed = !gdbSystem;
        gsCurrentProc = "ModUtilities_CheckForNewUKMapDB";
        return mapUpdateFails;
    }
    bool OpenProjectDatabase(const std::string& path) override {
        call("open project");
        openedPath = path;
        if (projectOpens)
            gdbProject = defaultWorkspace()->openDatabase(path);
        return projectOpens;
    }
    int ModUtilities_UpdateMappingGISTable(Database&) override {
        call("mapping table");
        return gisUpdateFails;
    }
    void ModUtilities_OpenMap() override { call("open map"); }

    std::string fontPath;
    std::string openedPath;
    bool systemWasClosed = false;

private:
    void call(const std::string& name) {
        calls.push_back(name);
        if (name == failsIn)
            throw RuntimeError(5, "no " + name);
    }
};
