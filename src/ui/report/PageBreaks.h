#pragma once

#include <vector>

/// Rows of a report, from `top` to before `bottom`, that belong together: a control.
struct ReportBlock {
    int top, bottom;
    int height() const { return bottom - top; }
};

/// A page's share of a report, in rows from `top` to before `bottom`.
using PageSlice = ReportBlock;

/// Cuts a report of `height` rows into pages. The first page has room for `firstRoom` rows, each other for `room`,
/// which is not less. A block that fits a page is not cut: a page ends above it where it would not end below it; so the
/// first page may be left without rows. A block that fits none is cut where its page ends. A report without rows has no
/// page.
std::vector<PageSlice> pageBreaks(const std::vector<ReportBlock>& blocks, int height, int firstRoom, int room);
