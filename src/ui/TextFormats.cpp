#include "ui/TextFormats.h"

#include "ui/frmGetText.h"

namespace {

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isLetter(QChar c) {
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

/// Points are counted elsewhere.
bool takes(int format, QChar c) {
    switch (format) {
    case frmGetText::LettersAndDigits:
        return isLetter(c) || isDigit(c);
    case frmGetText::Letters:
        return isLetter(c);
    case frmGetText::Digits:
        return isDigit(c);
    case frmGetText::Currency:
        return isDigit(c) || c == QLatin1Char('.');
    default:
        return true;
    }
}

} // namespace

bool formatAccepts(int format, const QString& typed, const QString& rest) {
    for (const QChar c : typed)
        if (!takes(format, c))
            return false;
    return format != frmGetText::Currency || (rest + typed).count(QLatin1Char('.')) <= 1 ||
           !typed.contains(QLatin1Char('.'));
}

QString formatCleaned(int format, const QString& text) {
    if (format != frmGetText::Digits && format != frmGetText::Currency)
        return text;
    QString clean;
    for (const QChar c : text)
        if (takes(format, c) && !(c == QLatin1Char('.') && clean.contains(c)))
            clean += c;
    return clean;
}
