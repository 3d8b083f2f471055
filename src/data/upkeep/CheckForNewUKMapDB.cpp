#include "data/upkeep/CheckForNewUKMapDB.h"

#include "core/LogAndGoOn.h"
#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "data/upkeep/SystemMapUpdate.h"

int ModUtilities_CheckForNewUKMapDB() {
    constexpr const char* procedure = "ModUtilities_CheckForNewUKMapDB";
    gsCurrentProc = procedure;
    int line = 0;
    try {
        if (!gPaths)
            throw RuntimeError(91, "The folders of the installation are not known");
        return updateSystemMap(gPaths->SystemDataPath, gPaths->ApplicationDataPath, line) ? 0 : -1;
    } catch (...) {
        const ErrorFacts error = currentError();
        LogError(procedure, error.number, std::to_string(line) + ":" + error.description);
        return -1;
    }
}
