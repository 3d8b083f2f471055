#include "ui/InterfaceFont.h"

#include "core/ModDeclarations.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

bool addFontResource(const std::string& path) {
    return QFontDatabase::addApplicationFont(QString::fromStdString(path)) >= 0;
}

void applyInterfaceFont() {
    const QString calibri = QStringLiteral("Calibri");
    if (!QFont::substitutes(calibri).contains(QStringLiteral("carlito"), Qt::CaseInsensitive))
        QFont::insertSubstitution(calibri, QStringLiteral("Carlito"));
    QFont font(QString::fromStdString(gsFontName));
    font.setPointSizeF(10);
    font.setStyleHint(QFont::SansSerif);
    QApplication::setFont(font);
}
