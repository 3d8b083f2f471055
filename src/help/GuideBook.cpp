#include "help/GuideBook.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>

static void openResources() {
    Q_INIT_RESOURCE(guide);
}

namespace {

QString resourceText(const QString& name) {
    QFile file(guidePicturePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString plain(const QString& html) {
    return QTextDocumentFragment::fromHtml(html).toPlainText();
}

QString headingOf(const QString& html) {
    static const QRegularExpression heading(QStringLiteral("<h1>(.*?)</h1>"));
    return plain(heading.match(html).captured(1)).trimmed();
}

std::vector<GuidePage> readPages() {
    openResources();
    std::vector<GuidePage> pages;
    const QStringList names = resourceText(QStringLiteral("contents.txt")).split('\n', Qt::SkipEmptyParts);
    for (const QString& name : names) {
        const QString html = resourceText(name.trimmed() + QStringLiteral(".html"));
        pages.push_back({name.trimmed(), headingOf(html), html});
    }
    return pages;
}

} // namespace

const std::vector<GuidePage>& guidePages() {
    static const std::vector<GuidePage> pages = readPages();
    return pages;
}

const GuidePage& guidePage(const QString& id) {
    const auto page = std::ranges::find(guidePages(), id, &GuidePage::id);
    return page == guidePages().end() ? guidePages().front() : *page;
}

QString guidePageOfWindow(const QString& window) {
    static const QMap<QString, QString> pages{{"FrmMain", "parameters"},   {"FrmMap", "map"},
                                              {"FrmCallDetail", "areas"},  {"FrmData", "figures"},
                                              {"FrmAnimate", "animation"}, {"FrmMultiMap", "several-maps"},
                                              {"frmGroups", "groups"},     {"frmGroupSelection", "groups"},
                                              {"frmTools", "population"}};
    return pages.value(window, guidePages().front().id);
}

std::vector<const GuidePage*> searchGuide(const QString& words) {
    const QStringList wanted = words.simplified().split(' ', Qt::SkipEmptyParts);
    const auto holds = [&](const QString& text) {
        return std::ranges::all_of(wanted,
                                   [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
    };
    std::vector<const GuidePage*> found;
    for (const GuidePage& page : guidePages()) {
        if (holds(plain(page.html)))
            found.push_back(&page);
    }
    std::ranges::stable_partition(found, [&](const GuidePage* page) {
        return std::ranges::any_of(wanted,
                                   [&](const QString& w) { return page->title.contains(w, Qt::CaseInsensitive); });
    });
    return found;
}

QString guidePicturePath(const QString& name) {
    return QStringLiteral(":/guide/") + name;
}
