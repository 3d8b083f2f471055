#include "map/surface/windows/MapToolBar.h"

#include "map/surface/windows/ToolIcons.h"
#include "ui/Skin.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int IconSide = 20;
constexpr int ButtonSide = 34;
constexpr int Margin = 4;

/// What a button does, for those who hear it, where its tool tip says nothing.
const char* nameOf(MapTool tool) {
    constexpr std::array names{"Zoom Extent",  "Pan",           "Zoom In",      "Zoom Out",   "Measure",
                               "Information",  "Polygon Query", "Circle Query", "Draw Point", "Draw Polyline",
                               "Draw Polygon", "Draw Circle",   "Hide Toolbar", "Go Back"};
    return names[static_cast<std::size_t>(std::find(ToolButtons.begin(), ToolButtons.end(), tool) -
                                          ToolButtons.begin())];
}

QString toolBarStyle() {
    const cColours_CS colours = skinColours();
    const auto hex = [](Colour colour) { return toColor(colour).name(); };
    return QStringLiteral("MapToolBar { background: %1; border: none; border-bottom: 1px solid %2; }"
                          "QToolButton { background: transparent; border: 1px solid transparent; border-radius: 6px; }"
                          "QToolButton:hover { background: %3; }"
                          "QToolButton:pressed, QToolButton:checked { background: %4; border-color: %5; }"
                          "QToolButton:focus { border: 2px solid %6; }")
        .arg(hex(colours.Grey(1)), hex(colours.Grey(3)), hex(colours.Indigo(1)), hex(colours.Indigo(2)),
             hex(colours.Indigo(4)), hex(colours.Turquoise(5)));
}

} // namespace

MapToolBar::MapToolBar(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("ToolBar"));
    setAccessibleName(tr("Map tools"));
    setStyleSheet(toolBarStyle());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(2);
    for (std::size_t i = 0; i < ToolButtonCount; ++i) {
        const MapTool tool = ToolButtons[i];
        auto* button = new QToolButton(this);
        button->setObjectName(QString::fromLatin1(nameOf(tool)).remove(QLatin1Char(' ')));
        button->setIcon(toolIcon(tool));
        button->setIconSize({IconSide, IconSide});
        button->setFixedSize(ButtonSide, ButtonSide);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setCheckable(!actsAtOnce(tool));
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, tool] { emit chosen(tool); });
        layout->addWidget(button);
        buttons_[i] = button;
    }
    layout->addStretch();
}

void MapToolBar::showTools(const ToolBarSetup& setup, MapTool inHand) {
    for (std::size_t i = 0; i < ToolButtonCount; ++i) {
        const QString tip = QString::fromStdString(setup.toolTips[i]);
        buttons_[i]->setVisible(setup.visible[i]);
        buttons_[i]->setToolTip(tip);
        buttons_[i]->setAccessibleName(tip.isEmpty() ? QString::fromLatin1(nameOf(ToolButtons[i])) : tip);
        buttons_[i]->setChecked(ToolButtons[i] == inHand);
    }
}

QToolButton* MapToolBar::button(MapTool tool) const {
    const auto* const found = std::find(ToolButtons.begin(), ToolButtons.end(), tool);
    return found == ToolButtons.end() ? nullptr : buttons_[static_cast<std::size_t>(found - ToolButtons.begin())];
}

bool MapToolBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            moveFocus(key == Qt::Key_Left ? -1 : 1);
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            static_cast<QToolButton*>(watched)->click();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void MapToolBar::moveFocus(int step) {
    auto at = static_cast<int>(std::find(buttons_.begin(), buttons_.end(), focusWidget()) - buttons_.begin());
    for (at += step; at >= 0 && at < static_cast<int>(ToolButtonCount); at += step) {
        QToolButton* next = buttons_[static_cast<std::size_t>(at)];
        if (next->isVisible() && next->isEnabled())
            return next->setFocus(step < 0 ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    }
}
