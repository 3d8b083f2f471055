#pragma once

#include <QString>

#include <vector>

/// One page of the guide: the name in its links (<a href="guide:map">), its heading, its text as HTML.
struct GuidePage {
    QString id, title, html;
};

/// The guide in its order of reading; never empty. Needs no window.
const std::vector<GuidePage>& guidePages();

/// The page of that name; the first where there is none.
const GuidePage& guidePage(const QString& id);

/// The name of the page that tells of a window, by the window's name ("FrmMap").
QString guidePageOfWindow(const QString& window);

/// The pages that hold every word, those with one in the heading first. No words: all pages.
std::vector<const GuidePage*> searchGuide(const QString& words);

/// A picture of the guide as a path to read it from.
QString guidePicturePath(const QString& name);
