#include "groups/windows/CallAreaPanel.h"

#include "groups/windows/Swatch.h"
#include "ui/ucWebbyLink.h"

#include <QBuffer>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr const char* areas[] = {"Mobile", "International", "VOIP", "Other"};
constexpr QSize barSize{36, 16}, hintBar{22, 10};
constexpr int gap = 4, panelWidth = 264;

/// A bar as it stands in a text.
QString barPicture() {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    swatch(Qt::white, hintBar).save(&buffer, "PNG");
    return QStringLiteral("<img width=\"%1\" height=\"%2\" src=\"data:image/png;base64,%3\"/>")
        .arg(hintBar.width())
        .arg(hintBar.height())
        .arg(QString::fromLatin1(bytes.toBase64()));
}

} // namespace

CallAreaPanel::CallAreaPanel(QWidget* parent) : ucWebbyBorder(parent) {
    setObjectName(QStringLiteral("fraOtherCallAreas"));
    setAccessibleName(tr("Calls with no place on the map"));
    setCursor(Qt::ArrowCursor);
    auto* grid = new QGridLayout(this);
    grid->setSpacing(gap);
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < 4; ++row) {
        const auto at = static_cast<std::size_t>(row);
        const QString area = QString::fromLatin1(areas[row]);
        bars_[at] = addLink(QStringLiteral("ucwl%1Bar").arg(area), area, true);
        texts_[at] = addLink(QStringLiteral("ucwl%1Text").arg(area), area, false);
        grid->addWidget(bars_[at], row, 0);
        grid->addWidget(texts_[at], row, 1, Qt::AlignLeft);
    }
    auto* hint = new QLabel(
        tr("To include these areas in groups, click %1 and then add areas as required.").arg(barPicture()), this);
    hint->setObjectName(QStringLiteral("lblOtherCallAreas"));
    hint->setProperty("role", "hint");
    hint->setTextFormat(Qt::RichText);
    hint->setWordWrap(true);
    grid->addWidget(hint, 4, 0, 1, 2);
    setFixedWidth(panelWidth);
}

ucWebbyLink* CallAreaPanel::addLink(const QString& name, const QString& area, bool bar) {
    auto* link =
        new ucWebbyLink(bar ? QString() : area, bar ? ucWebbyLink::Kind::Outlined : ucWebbyLink::Kind::Link, this);
    link->setObjectName(name);
    link->setAccessibleName(area);
    if (bar) {
        link->setAutosize(false);
        link->setFixedSize(barSize);
        link->setFocusPolicy(Qt::NoFocus); // the caption can be reached
    }
    connect(link, &ucWebbyLink::clicked, this, [this, area] { emit chosen(area); });
    return link;
}

void CallAreaPanel::showAreas(const std::array<CallArea, 4>& areas) {
    for (std::size_t at = 0; at < areas.size(); ++at) {
        const CallArea& area = areas[at];
        const QString tip =
            area.group.empty() ? tr("In no group") : tr("In group %1").arg(QString::fromStdString(area.group));
        bars_[at]->setBackColour(QColor::fromRgb(area.colour));
        for (ucWebbyLink* link : {bars_[at], texts_[at]}) {
            link->setToolTip(tip);
            link->setAccessibleDescription(tip);
        }
    }
    adjustSize();
}
