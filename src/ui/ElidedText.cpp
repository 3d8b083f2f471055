#include "ui/ElidedText.h"

#include <QFontMetrics>
#include <QTextBoundaryFinder>

QString elidedText(const QFontMetrics& metrics, const QString& text, int width) {
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    const QString dots = QStringLiteral("...");
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    characters.toEnd();
    while (characters.toPreviousBoundary() > 0) {
        const QString part = text.left(characters.position()) + dots;
        if (metrics.horizontalAdvance(part) <= width)
            return part;
    }
    return dots;
}
