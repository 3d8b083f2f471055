#include "data/project/SystemDatabaseStep.h"

#include "core/LogAndGoOn.h"
#include "data/project/Databases.h"
#include "data/types/DatabaseError.h"

namespace {
constexpr long objectInvalid = 3420;
}

bool onSystemDatabase(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const DatabaseError& error) {
        if (error.number() != objectInvalid) {
            logCurrentError();
            return false;
        }
    } catch (...) {
        logCurrentError();
        return false;
    }
    return logAndGoOn([&] {
        reopenSystemDatabase();
        step();
    });
}
