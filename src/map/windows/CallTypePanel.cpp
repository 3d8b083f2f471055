#include "map/windows/CallTypePanel.h"

#include "map/calltypes/CallTypePicture.h"
#include "ui/Skin.h"
#include "ui/ucWebbyLink.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace {

constexpr int margin = 10, gap = 4;
constexpr double barRadius = 6.5; ///< round the corners of a link
constexpr QSize barSize{36, 16}, smallBarSize{20, 14};
constexpr const char* callTypes[] = {"Mobile", "International", "VOIP", "Other"};

} // namespace

CallTypePanel::CallTypePanel(QWidget* parent, Qt::Orientation orientation)
    : QWidget(parent), orientation_(orientation), lblGroup(new QLabel(tr("Group Name:"), this)) {
    setObjectName(QStringLiteral("fraOtherCallAreas"));
    setAccessibleName(tr("Calls with no place on the map"));
    lblGroup->setObjectName(QStringLiteral("lblGroup"));
    lblGroup->setProperty("role", "caption");
    for (int at = 0; at < 4; ++at) {
        const QString type = QString::fromLatin1(callTypes[at]);
        Row& row = rows_[static_cast<std::size_t>(at)];
        row.bar = makeLink(QStringLiteral("ucwl%1Bar").arg(type), QString(), type);
        row.bar->setAutosize(false);
        row.bar->setAccessibleName(type);
        row.bar->setFocusPolicy(Qt::NoFocus); // its text can be reached
        row.text = makeLink(QStringLiteral("ucwl%1Text").arg(type), type, type);
        row.text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        row.group = new QLabel(this);
        row.group->setObjectName(QStringLiteral("lbl%1Group").arg(type));
    }
    arrange();
}

void CallTypePanel::arrange() {
    const bool card = orientation_ == Qt::Vertical;
    auto* grid = new QGridLayout(this);
    const int border = card ? margin : 1; // of a bar
    grid->setContentsMargins(border, border, border, border);
    grid->setSpacing(card ? gap : gap / 2);
    grid->addWidget(lblGroup, 0, 2);
    for (int at = 0; at < 4; ++at) {
        const Row& row = rows_[static_cast<std::size_t>(at)];
        const int line = card ? at + 1 : 0;
        const int column = card ? 0 : 3 * at;
        row.bar->setFixedSize(card ? barSize : smallBarSize);
        row.text->setAutosize(card); // a line gives way to a narrow map
        grid->addWidget(row.bar, line, column);
        grid->addWidget(row.text, line, column + 1);
        grid->addWidget(row.group, line, column + 2);
    }
    if (!card)
        grid->setColumnStretch(3 * 4, 1);
}

ucWebbyLink* CallTypePanel::makeLink(const QString& name, const QString& caption, const QString& callType) {
    auto* link = new ucWebbyLink(caption, ucWebbyLink::Kind::Link, this);
    link->setObjectName(name);
    link->setToolTip(tr("What is known of these calls"));
    connect(link, &ucWebbyLink::clicked, this, [this, callType] { emit chosen(callType); });
    return link;
}

void CallTypePanel::showBars(const CallTypeBars& bars, bool withGroups, bool averages) {
    const cColours_CS colours = skinColours();
    for (std::size_t at = 0; at < bars.size(); ++at) {
        const auto& bar = bars[at];
        rows_[at].bar->setBackColour(bar.band ? toColor(colours.MapColour(static_cast<int>(*bar.band)))
                                              : QColor(Qt::white));
        rows_[at].group->setText(QString::fromStdString(bar.groupLabel));
        const bool shown = !averages || (bar.name != "International" && bar.name != "Other");
        rows_[at].bar->setVisible(shown);
        rows_[at].text->setVisible(shown);
        rows_[at].group->setVisible(shown && withGroups);
    }
    lblGroup->setVisible(withGroups);
    adjustSize();
}

void CallTypePanel::paintEvent(QPaintEvent*) {
    const cColours_CS colours = skinColours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (orientation_ == Qt::Vertical)
        paintCallTypeCard(painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    for (const Row& row : rows_) {
        if (row.bar->isHidden())
            continue;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(toColor(colours.Grey(4)));
        painter.drawRoundedRect(QRectF(row.bar->geometry()).adjusted(-0.5, -0.5, 0.5, 0.5), barRadius, barRadius);
    }
}
