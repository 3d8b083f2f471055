#pragma once

#include "groups/editor/GroupEditor.h"
#include "ui/ucWebbyBorder.h"

#include <array>

class ucWebbyLink;

/// fraOtherCallAreas: the four areas without a place on the map, each with a bar in the colour of its group, which its
/// tool tip names. A click on bar or caption chooses the area.
class CallAreaPanel : public ucWebbyBorder {
    Q_OBJECT

public:
    explicit CallAreaPanel(QWidget* parent = nullptr);

    void showAreas(const std::array<CallArea, 4>& areas);

signals:
    void chosen(const QString& area);

private:
    ucWebbyLink* addLink(const QString& name, const QString& area, bool bar);

    std::array<ucWebbyLink*, 4> bars_{};
    std::array<ucWebbyLink*, 4> texts_{};
};
