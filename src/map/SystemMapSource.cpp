#include "map/SystemMapSource.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/schema/Vocabulary.h"
#include "map/surface/LayerSource.h"

std::string systemMapSource() {
    const std::string path = gPaths ? joinPath(gPaths->ApplicationDataPath, "ukmap.mdb") : gsSystemDBPath;
    return LayerSource{path, std::string(SystemMapPassword)}.text();
}
