#include "core/Progress.h"

namespace {

Progress silentProgress;
Progress* currentProgress = &silentProgress;

} // namespace

Progress& progress() {
    return *currentProgress;
}

void setProgress(Progress* progress) {
    currentProgress = progress ? progress : &silentProgress;
}
