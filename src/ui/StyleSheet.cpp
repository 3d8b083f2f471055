#include "ui/StyleSheet.h"

#include "ui/cColours_CS.h"

namespace {

/// Names in angle brackets stand for shades of the palette.
constexpr const char* sheet = R"(
QLabel { background: transparent; }
QLabel[role="title"] { font-size: 14pt; font-weight: bold; color: <indigo6>; }
QLabel[role="headline"] { font-size: 18pt; font-weight: bold; color: <indigo6>; }
QLabel[role="caption"] { font-size: 9pt; color: <grey5>; }
QLabel[role="hint"] { color: <grey5>; }
QLabel[role="detail"] { font-size: 11pt; font-weight: bold; color: <coral6>; }
QLabel[role="step"] { background: <indigo5>; color: white; border-radius: 12px; font-weight: bold; }
QLabel[role="message"] { color: <indigo6>; }
QLabel[role="section"] { font-weight: bold; color: <grey6>; }

QPushButton { background: white; color: <indigo5>; border: 1px solid <indigo2>; border-radius: 6px;
              padding: 6px 16px; min-height: 18px; outline: none; }
QPushButton:hover { background: <indigo1>; border-color: <indigo3>; }
QPushButton:pressed { background: <indigo2>; }
QPushButton:focus { border: 2px solid <turquoise5>; padding: 5px 15px; }
QPushButton:disabled { background: <grey2>; color: <grey5>; border-color: <grey3>; }
QPushButton[kind="primary"], QMessageBox QPushButton:default { background: <indigo5>; color: white; border-color: <indigo5>; }
QPushButton[kind="primary"]:hover, QMessageBox QPushButton:default:hover { background: <indigo4>; }
QPushButton[kind="primary"]:pressed, QMessageBox QPushButton:default:pressed { background: <indigo6>; }
QPushButton[kind="primary"]:focus, QMessageBox QPushButton:default:focus { border-color: <turquoise4>; }
QPushButton[kind="primary"]:disabled, QPushButton[kind="danger"]:disabled {
    background: <grey2>; color: <grey5>; border-color: <grey3>; }
QPushButton[kind="danger"] { color: <coral6>; border-color: <coral3>; }
QPushButton[kind="danger"]:hover { background: <coral1>; border-color: <coral6>; }
QPushButton[kind="danger"]:pressed { background: <coral2>; }
QPushButton[kind="danger"]:focus { border-color: <turquoise5>; }
QMessageBox QPushButton { min-width: 72px; }
QMessageBox, QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }

QListView { background: white; border: none; outline: none; padding: 4px; }
QListView::item { border-radius: 6px; padding: 7px 8px; color: <grey6>; }
QListView::item:hover { background: <indigo1>; }
QListView::item:selected { background: <indigo2>; color: <indigo6>; }
QListView::item:focus { border: 1px solid <turquoise5>; }
QListView::item:disabled { color: <grey5>; }
QAbstractSpinBox { min-height: 24px; }
QComboBox QAbstractItemView { border: 1px solid <grey4>; }

QTableView, QTreeView { background: white; border: 1px solid <grey3>; gridline-color: <grey3>;
                        alternate-background-color: <grey1>; selection-background-color: <indigo6>;
                        selection-color: white; }
QCalendarWidget QTableView { border: none; }
QHeaderView { background: <indigo2>; }
QHeaderView::section { background: <indigo2>; color: <grey6>; border: none; border-right: 1px solid white;
                       border-bottom: 1px solid <indigo3>; padding: 5px 8px; font-weight: bold; }
QHeaderView::section:hover { background: <indigo1>; }
QTableCornerButton::section { background: <indigo2>; border: none; }

QMenu { background: white; border: 1px solid <grey4>; padding: 4px; }
QMenu::item { color: <grey6>; padding: 6px 24px; border-radius: 4px; }
QMenu::item:selected { background: <indigo2>; color: <indigo6>; }
QMenu::item:disabled { color: <grey5>; }
QMenu::separator { height: 1px; background: <grey3>; margin: 4px 8px; }

QGroupBox { border: 1px solid <grey3>; border-radius: 8px; margin-top: 10px; padding: 8px; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; color: <grey6>; }

QProgressBar { background: <grey3>; border: none; border-radius: 4px; min-height: 8px; max-height: 8px; }
QProgressBar::chunk { background: <indigo5>; border-radius: 4px; }
QProgressBar::chunk:disabled { background: <grey4>; }

QSlider { min-height: 24px; }
QSlider::groove:horizontal { background: <grey3>; height: 4px; border-radius: 2px; }
QSlider::sub-page:horizontal { background: <indigo5>; border-radius: 2px; }
QSlider::handle:horizontal { background: white; border: 2px solid <indigo5>; width: 12px; margin: -6px 0; border-radius: 8px; }
QSlider::handle:horizontal:hover { background: <indigo2>; }
QSlider::handle:horizontal:focus { border-color: <turquoise5>; }
QSlider::sub-page:horizontal:disabled { background: <grey3>; }
QSlider::handle:horizontal:disabled { background: <grey2>; border-color: <grey4>; }

QToolTip { background: white; color: <grey6>; border: 1px solid <grey3>; padding: 4px; }

QScrollBar:vertical { background: transparent; width: 12px; margin: 2px; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 2px; }
QScrollBar::handle { background: <grey3>; border-radius: 4px; min-height: 32px; min-width: 32px; }
QScrollBar::handle:hover { background: <grey4>; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

QString hex(Colour colour) {
    return QStringLiteral("#%1").arg(colour, 6, 16, QLatin1Char('0'));
}

} // namespace

QString styleSheet(const cColours_CS& colours) {
    QString text = QString::fromLatin1(sheet);
    for (int shade = 1; shade <= cColours::shades; ++shade) {
        const auto insert = [&](const char* ramp, Colour colour) {
            text.replace(QStringLiteral("<%1%2>").arg(QLatin1String(ramp)).arg(shade), hex(colour));
        };
        insert("indigo", colours.Indigo(shade));
        insert("coral", colours.Coral(shade));
        insert("turquoise", colours.Turquoise(shade));
        insert("grey", colours.Grey(shade));
    }
    return text;
}
