#pragma once

#include <QString>

/// Whether `typed` may be put into a box of this format (frmGetText::Formats) beside `rest`, the text that stays there.
bool formatAccepts(int format, const QString& typed, const QString& rest);

/// `text` without what a numeric format does not take: all but digits, and in amounts of money all "." but the first.
/// Other formats keep the text as it is.
QString formatCleaned(int format, const QString& text);
