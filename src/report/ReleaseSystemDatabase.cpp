#include "report/ReleaseSystemDatabase.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"

namespace {

void closeRecordset(std::shared_ptr<Recordset>& slot) {
    ignoreErrors([&] {
        if (slot)
            slot->Close();
    });
    slot.reset();
}

} // namespace

void releaseSystemDatabase() {
    for (auto* slot : {&grsData1, &grsData2, &grsData3})
        closeRecordset(*slot);
    ignoreErrors([] {
        if (gdbSystem)
            gdbSystem->close();
    });
    gdbSystem.reset();
}
