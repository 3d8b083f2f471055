#include "ui/modBranding.h"

#include "core/ModDeclarations.h"
#include "ui/Skin.h"

#include <QWidget>

#include <algorithm>

namespace {

/// Controls by their type. What is not a control of this toolkit stands under its own name.
constexpr const char* ownFont[] = {"uctFooter",  "uctHeader", "ucWebbyLink",   "ucWebbyScroller", "ucReportArea",
                                   "QMenu",      "QMenuBar",  "QDateTimeEdit", "QProgressBar",    "QScrollBar",
                                   "MapSurface", "MSChart",   "QRubberBand",   "QSizeGrip",       "uctFooterOptions"};

/// Panels have their own font, what stands in them has not.
constexpr const char* containers[] = {"ucWebbyBorder",  "QGroupBox",  "QScrollArea",
                                      "QStackedWidget", "QTabWidget", "QSplitter"};

constexpr const char* ownColours[] = {"QDateTimeEdit", "QAbstractItemView", "QPlainTextEdit", "QTextEdit"};

template<std::size_t size>
bool isA(const QWidget& control, const char* const (&types)[size]) {
    return std::any_of(std::begin(types), std::end(types), [&](const char* type) { return control.inherits(type); });
}

bool isContainer(const QWidget& control) {
    const char* type = control.metaObject()->className();
    return isA(control, containers) || qstrcmp(type, "QWidget") == 0 || qstrcmp(type, "QFrame") == 0;
}

/// Calls `change` for every control of the window, not for the parts of which a control is made.
template<typename Change>
void walkControls(QWidget& parent, const Change& change) {
    for (QWidget* control : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (control->isWindow())
            continue;
        if (isContainer(*control))
            walkControls(*control, change);
        else
            change(*control);
    }
}

} // namespace

void setFormFonts(QWidget& form) {
    const QString family = QString::fromStdString(gsFontName);
    walkControls(form, [&](QWidget& control) {
        if (isA(control, ownFont))
            return;
        QFont font = control.font();
        font.setFamily(family);
        control.setFont(font);
    });
}

void setFormColours(QWidget& form) {
    const GridColours colours = skinColours().SetTDBGrid();
    walkControls(form, [&](QWidget& control) {
        if (!isA(control, ownColours))
            return;
        QPalette palette = control.palette();
        palette.setColor(QPalette::Button, toColor(colours.head));
        palette.setColor(QPalette::Highlight, toColor(colours.selectedBack));
        palette.setColor(QPalette::HighlightedText, toColor(colours.selectedText));
        control.setPalette(palette);
    });
}
