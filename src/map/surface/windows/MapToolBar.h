#pragma once

#include "map/surface/ToolBarSetup.h"

#include <QFrame>

#include <array>

class QToolButton;

/// The tool bar of a map: the buttons that its setup shows, the tool in hand held down. Reached with Tab; the arrow
/// keys go from button to button.
class MapToolBar : public QFrame {
    Q_OBJECT

public:
    explicit MapToolBar(QWidget* parent = nullptr);

    void showTools(const ToolBarSetup& setup, MapTool inHand);
    QToolButton* button(MapTool tool) const;

signals:
    void chosen(MapTool tool);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void moveFocus(int step);

    std::array<QToolButton*, ToolButtonCount> buttons_{};
};
