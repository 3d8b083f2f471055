#include "ui/uctHeader.h"

#include "ui/ElidedLabel.h"
#include "ui/Skin.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

namespace {

constexpr int accentHeight = 3;

} // namespace

uctHeader::uctHeader(QWidget* parent)
    : QWidget(parent), picture_(new QLabel(this)), title_(new ElidedLabel(this)), slogan_(new QLabel(this)),
      detail_(new ElidedLabel(this)) {
    title_->setObjectName(QStringLiteral("lblTitle"));
    slogan_->setText(tr("Every Call In Its Place"));
    slogan_->setProperty("role", "caption");
    detail_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    detail_->setProperty("role", "detail");
    arrange();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    Refresh();
}

void uctHeader::arrange() {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(title_);
    texts->addWidget(slogan_);
    texts->addStretch();

    auto* row = new QHBoxLayout(this);
    row->setSpacing(12);
    row->addWidget(picture_);
    row->addLayout(texts);
    row->addSpacing(12);
    row->addWidget(detail_, 1);
}

const StoredProperties& uctHeader::storedProperties() {
    static const StoredProperties names{{"HeaderType", "HeaderType"}, {"Title", "Title"}, {"Detail", "Detail"}};
    return names;
}

void uctHeader::setHeaderType(Style style) {
    style_ = style;
    Refresh();
}

void uctHeader::Refresh() {
    const bool large = style_ == Style::Window;
    const int side = large ? 40 : 24;
    picture_->setFixedSize(side, side);
    picture_->setPixmap(icon_.isNull() ? QPixmap() : icon_.pixmap(QSize(side, side), devicePixelRatioF()));
    picture_->setVisible(!icon_.isNull());
    setRole(*title_, large ? "title" : "section");
    slogan_->setVisible(large);
    layout()->setContentsMargins(16, 8, large ? 24 : 16, 8 + accentHeight);
    layout()->invalidate();
    layout()->activate();
    update();
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
    icon_ = picture;
    Refresh();
}

void uctHeader::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        update();
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
