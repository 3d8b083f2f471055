#pragma once

#include "report/panels/ParameterPanel.h"

class ucWebbyLink;

/// The buttons that start the report of a single map, one for each boundary. Their numbers say what is asked for.
class ReportButtons : public ParameterPanel {
    Q_OBJECT

public:
    static constexpr int chooseProject = 0;
    static constexpr int multipleMaps = 8;
    static constexpr int exchanges = 101;
    static constexpr int csgs = 102;
    static constexpr int postCodeDistricts = 103;
    static constexpr int tvRegions = 104;
    static constexpr int customerGroups = 106;

    explicit ReportButtons(QWidget* parent);

    void setControlsEnabled(bool enabled);

    /// A button cmdReport_INDEX for another place of the window.
    static ucWebbyLink* makeButton(int index, const QString& caption, QWidget* parent);
    /// Enables it with its own tool tip, or says why it cannot be pressed.
    static void enableButton(ucWebbyLink& button, bool enabled);

signals:
    void requested(int index);

private:
    void add(int index, const QString& caption, QLayout& row);

    QList<ucWebbyLink*> buttons_;
};
