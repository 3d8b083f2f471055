#include "animation/Animation.h"

#include "core/RuntimeError.h"
#include "stats/CurrentTables.h"

std::int16_t FrameCount = 0;
std::int16_t FrameIntervalSeconds = 1;

namespace {

void requireFrame(int frame) {
    if (frame < 1 || frame > maximumFrames)
        throw RuntimeError(9, "An animation has no frame " + std::to_string(frame));
}

} // namespace

long animatedBoundary() {
    if (!currentTables.TV.empty())
        return animatedTVRegions;
    return currentTables.PostCodeDistrict.empty() ? -1 : animatedPostCodeDistricts;
}

std::string animatedTable(long boundary, int frame) {
    requireFrame(frame);
    if (boundary != animatedTVRegions && boundary != animatedPostCodeDistricts)
        throw RuntimeError(5, "Boundary " + std::to_string(boundary) + " cannot be animated");
    const std::string table = boundary == animatedTVRegions ? "TblAnimatedTV" : "TblAnimatedPostCodeDistrict";
    return table + (frame <= framesOfTable ? "1" : "2");
}

int animatedPeriod(int frame) {
    requireFrame(frame);
    return frame <= framesOfTable ? frame : frame - framesOfTable;
}

void resetAnimation() {
    FrameCount = 0;
    FrameIntervalSeconds = 1;
}
