#include "ui/report/PageBreaks.h"

#include <algorithm>

namespace {

/// The row above which a page that would end at `cut` ends so that it cuts no block that fits a page of `room` rows.
/// Blocks that begin above `from` have been begun on a page before, or cannot be moved.
int aboveBlocks(const std::vector<ReportBlock>& blocks, int from, int cut, int room) {
    const auto inTheWay = [&](const ReportBlock& block) {
        return block.top >= from && block.top < cut && block.bottom > cut && block.height() <= room;
    };
    // A page that ends higher may meet a block beside the first one.
    for (auto block = std::ranges::find_if(blocks, inTheWay); block != blocks.end();
         block = std::ranges::find_if(blocks, inTheWay))
        cut = block->top;
    return cut;
}

} // namespace

std::vector<PageSlice> pageBreaks(const std::vector<ReportBlock>& blocks, int height, int firstRoom, int room) {
    room = std::max(1, room);
    std::vector<PageSlice> pages;
    for (int top = 0; top < height;) {
        const bool first = pages.empty();
        const bool mayStayEmpty = first && firstRoom < room;
        int cut = top + (first ? std::clamp(firstRoom, mayStayEmpty ? 0 : 1, room) : room);
        if (cut < height)
            cut = aboveBlocks(blocks, mayStayEmpty ? top : top + 1, cut, room);
        pages.push_back({top, std::min(cut, height)});
        top = cut;
    }
    return pages;
}
