#pragma once

#include <memory>

class FrmMain;
class FrmMap;
class FrmMultiMap;
class WindowProgress;

/// What the report buttons of the main window do: count what its parameters select for their boundary, and show the
/// map. While a map is shown the main window takes no input. The ranges of several maps are counted and remembered.
/// References outlive it. Main thread.
class ReportRequest {
public:
    ReportRequest(FrmMain& window, WindowProgress& progress);
    ~ReportRequest();

    /// A button cmdReport_INDEX. Tells the user what is wrong; never throws.
    void run(int index);
    /// The report of gsBoundaryType, or of TV regions where none is set.
    void runPresentBoundary();

    /// The map window; made at the first use.
    FrmMap& map();

private:
    class Fence;

    bool count(long boundary);
    bool showSeveralMaps();
    void showMap(long boundary);
    void mapClosed();
    FrmMultiMap& maps();

    FrmMain& window_;
    WindowProgress& progress_;
    std::unique_ptr<FrmMap> map_;
    std::unique_ptr<FrmMultiMap> maps_;
    std::unique_ptr<Fence> fence_; ///< as long as a report runs or a map is shown
};
