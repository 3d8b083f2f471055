#include "ui/Skin.h"

#include "core/ModDeclarations.h"
#include "ui/AppIcon.h"
#include "ui/SkinStyle.h"
#include "ui/StyleSheet.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QWidget>

namespace {

QPalette paletteOf(const cColours_CS& colours) {
    const QColor text = toColor(colours.Grey(6));
    const QColor faint = toColor(colours.Grey(5)); // still readable; fields and buttons change their fill as well
    QPalette palette(toColor(colours.Grey(2)), toColor(colours.Grey(1)));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    palette.setColor(QPalette::PlaceholderText, toColor(colours.Grey(5)));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, toColor(colours.Grey(1)));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::Highlight, toColor(colours.Indigo(6)));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, toColor(colours.Indigo(5)));
    return palette;
}

} // namespace

cColours_CS skinColours() {
    return gColours ? *gColours : cColours_CS();
}

void applySkin(QApplication& application) {
    const cColours_CS colours = skinColours();
    QApplication::setStyle(new SkinStyle);
    QApplication::setPalette(paletteOf(colours));
    application.setStyleSheet(styleSheet(colours));
    QApplication::setWindowIcon(appIcon());
}

void setRole(QWidget& control, const char* role) {
    control.setProperty("role", role);
    control.style()->unpolish(&control);
    control.style()->polish(&control);
}
