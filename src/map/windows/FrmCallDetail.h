#pragma once

#include "map/detail/AreaDetail.h"

#include <QDialog>

class ucWebbyBorder;
class ucWebbyLink;
class uctFooter;
class uctHeader;
class QLabel;
class QVBoxLayout;

/// What is known of one area of the map: its figures, its exchanges, its population and what the campaign spend comes
/// to there. Modal; Escape closes it. `parameters` are those of the selection, for the workbook.
class FrmCallDetail : public QDialog {
    Q_OBJECT

public:
    FrmCallDetail(const AreaDetail& detail, const std::string& parameters, QWidget* parent = nullptr);

    /// Writes the window's content as a workbook. Throws RuntimeError 75 naming the path.
    void saveWorkbook(const std::string& path) const;

private:
    void addFigures(QVBoxLayout& column);
    void addCampaign(QVBoxLayout& column);
    QWidget* exchangePanel();
    void addLine(QVBoxLayout& column, const char* name, const std::string& text);
    void CmdExcel_Click();

    AreaDetail detail_;
    std::string parameters_;
    uctHeader* uctHeader1;
    uctFooter* uctFooter1;
};
