#include "report/form/RequireProject.h"

#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/engine/Database.h"

bool projectIsOpen() {
    return !gsProjectPath.empty() && gdbProject && gdbProject->isOpen();
}

bool requireProject() {
    if (projectIsOpen())
        return true;
    showMessage("Pleases select a project");
    return false;
}
