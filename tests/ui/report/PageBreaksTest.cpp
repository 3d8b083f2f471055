#include "ui/report/PageBreaks.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Tops = std::vector<int>;

Tops topsOf(const std::vector<PageSlice>& pages) {
    Tops tops;
    for (const PageSlice& page : pages)
        tops.push_back(page.top);
    return tops;
}

} // namespace

TEST(PageBreaks, AControlThatFitsAPageIsNotCut) {
    EXPECT_EQ(topsOf(pageBreaks({{0, 60}, {70, 130}}, 130, 100, 100)), (Tops{0, 70}));
    // Ending above the lower of two that overlap would cut the upper one.
    EXPECT_EQ(topsOf(pageBreaks({{90, 110}, {80, 95}}, 120, 100, 100)), (Tops{0, 80}));
    // Too tall for any page: cut where the page ends.
    EXPECT_EQ(topsOf(pageBreaks({{10, 250}}, 250, 100, 100)), (Tops{0, 100, 200}));
}

TEST(PageBreaks, AControlThatTheFirstPageHasNoRoomForBeginsTheSecond) {
    const auto pages = pageBreaks({{0, 90}}, 90, 60, 100);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].height(), 0);
    EXPECT_EQ(pages[1].height(), 90);
}

TEST(PageBreaks, NothingGivesNoPage) {
    EXPECT_TRUE(pageBreaks({}, 0, 10, 10).empty());
}

TEST(PageBreaks, PagesFollowOnEachOtherAndCutOnlyWhatCannotBeKeptWhole) {
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int round = 0; round < 500; ++round) {
        const int room = 1 + upTo(80), first = upTo(room), height = 1 + upTo(600);
        std::vector<ReportBlock> blocks;
        for (int top = upTo(30); top < height; top += 1 + upTo(60))
            blocks.push_back({top, std::min(height, top + 1 + upTo(100))});
        const auto pages = pageBreaks(blocks, height, first, room);
        ASSERT_EQ(pages.front().top, 0);
        ASSERT_EQ(pages.back().bottom, height);
        for (size_t page = 1; page < pages.size(); ++page) {
            ASSERT_EQ(pages[page].top, pages[page - 1].bottom);
            ASSERT_LE(pages[page].height(), room);
            const int cut = pages[page].top, from = pages[page - 1].top;
            for (const ReportBlock& block : blocks)
                ASSERT_FALSE(block.top > from && block.top < cut && block.bottom > cut && block.height() <= room)
                    << "round " << round;
        }
    }
}
