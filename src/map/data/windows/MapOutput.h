#pragma once

#include "map/workbook/Workbook.h"

struct DataView;
class QImage;
class QWidget;

/// What the two buttons of a map window do with what it shows. Errors are logged and told to the user.

/// CmdData: the figures in FrmData, until the user closes it.
void viewMapData(const DataView& view, const WorkbookParameters& parameters, QWidget* parent);

/// CmdExcel: a workbook of the parameters and of the picture of the window, opened with the desktop's program.
void outputMapPicture(const WorkbookParameters& parameters, const QImage& picture);
