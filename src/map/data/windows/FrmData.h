#pragma once

#include "map/data/DataTable.h"
#include "map/workbook/Workbook.h"

#include <QDialog>

class DataGrid;
class QLabel;
class QLineEdit;
class uctFooter;
class uctHeader;

/// The figures behind a map as a grid, and their workbook. Modal; Escape closes it. `parameters` are those of the map.
class FrmData : public QDialog {
    Q_OBJECT

public:
    FrmData(const DataTable& table, const WorkbookParameters& parameters, QWidget* parent = nullptr);

    /// Writes the grid's content, in its order, as a workbook. Throws RuntimeError 75 naming the path.
    void saveWorkbook(const std::string& path) const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeSearch(int areas);
    void makeFooter();
    void arrange();
    void showParameters();
    void fitToScreen();
    void find(bool next);
    void CmdExcel_Click();

    WorkbookParameters parameters_;
    uctHeader* uctHeader1;
    uctFooter* uctFooter1;
    QLineEdit* txtFind;
    QLabel* lblRows;
    DataGrid* grdData;
    QString areasText_; ///< how many there are
    bool placed_ = false;
};
