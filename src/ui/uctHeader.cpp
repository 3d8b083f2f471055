#include "ui/uctHeader.h"

#include "ui/ElidedLabel.h"
#include "ui/Skin.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>

namespace {

constexpr int pictureSide = 40;
constexpr int accentHeight = 3;

} // namespace

uctHeader::uctHeader(QWidget* parent)
    : QWidget(parent), picture_(new QLabel(this)), title_(new QLabel(this)), slogan_(new QLabel(this)),
      detail_(new ElidedLabel(this)) {
    title_->setObjectName(QStringLiteral("lblTitle"));
    title_->setProperty("role", "title");
    slogan_->setText(tr("Every Call In Its Place"));
    slogan_->setProperty("role", "caption");
    picture_->setFixedSize(pictureSide, pictureSide);
    detail_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    detail_->setProperty("role", "detail");

    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(title_);
    texts->addWidget(slogan_);
    texts->addStretch();

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 24, 8 + accentHeight);
    row->setSpacing(12);
    row->addWidget(picture_);
    row->addLayout(texts);
    row->addSpacing(24);
    row->addWidget(detail_, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QString uctHeader::Title() const {
    return title_->text();
}

void uctHeader::setTitle(const QString& title) {
    title_->setText(title);
}

QString uctHeader::Detail() const {
    return detail_->text();
}

void uctHeader::setDetail(const QString& detail) {
    detail_->setText(detail);
}

void uctHeader::SetPicture(const QIcon& picture) {
    picture_->setPixmap(picture.pixmap(QSize(pictureSide, pictureSide), devicePixelRatioF()));
}

void uctHeader::paintEvent(QPaintEvent*) {
    const cColours_CS colours = skinColours();
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const QRect accent(0, height() - accentHeight, width(), accentHeight);
    QLinearGradient gradient(accent.topLeft(), accent.topRight());
    gradient.setColorAt(0.0, toColor(colours.CoreColour_Indigo()));
    gradient.setColorAt(0.6, toColor(colours.pink(5)));
    gradient.setColorAt(1.0, toColor(colours.CoreColour_Coral()));
    painter.fillRect(accent, gradient);
}
