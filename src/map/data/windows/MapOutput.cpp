#include "map/data/windows/MapOutput.h"

#include "core/CurrentProcedure.h"
#include "core/Progress.h"
#include "map/data/MapData.h"
#include "map/data/windows/FrmData.h"
#include "ui/OpenDocument.h"

#include <QImage>

void viewMapData(const DataView& view, const WorkbookParameters& parameters, QWidget* parent) {
    const CurrentProcedure procedure("FrmMap_CmdData_Click");
    logAndTell([&] {
        const DataTable table = [&] {
            const Hourglass hourglass;
            return readDataTable(view);
        }();
        FrmData(table, parameters, parent).exec();
    });
}

void outputMapPicture(const WorkbookParameters& parameters, const QImage& picture) {
    const CurrentProcedure procedure("FrmMap_CmdExcel_Click");
    const Hourglass hourglass;
    logAndTell([&] {
        const std::string path = newDocumentPath("Map", "xlsx");
        writeMapWorkbook(path, parameters, picture);
        openDocument(path);
    });
}
