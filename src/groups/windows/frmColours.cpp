#include "groups/windows/frmColours.h"

#include "groups/editor/GroupColours.h"
#include "groups/windows/Swatch.h"
#include "ui/modBranding.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int columns = 8;
constexpr QSize cell{32, 24};

} // namespace

frmColours::frmColours(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmColours"));
    setWindowTitle(tr("Choose Group Colour"));
    setModal(true);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 16, 24, 16);
    grid->setSpacing(8);
    grid->addWidget(new QLabel(tr("Please click on the colour you want to use for this Customer Group"), this), 0, 0, 1,
                    columns);
    const int count = static_cast<int>(groupColours().size());
    for (int place = 0; place < count; ++place) {
        const QColor colour = QColor::fromRgb(groupColour(static_cast<std::size_t>(place)));
        auto* label = new QToolButton(this);
        label->setObjectName(QStringLiteral("lblGroupColour_%1").arg(place));
        label->setAccessibleName(colour.name());
        label->setToolTip(colour.name());
        label->setIconSize(cell);
        label->setIcon(swatch(colour, cell));
        connect(label, &QToolButton::clicked, this, [this, place] {
            chosen_ = place;
            accept();
        });
        grid->addWidget(label, 1 + place / columns, place % columns);
    }
    auto* cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    grid->addWidget(cmdCancel, 1 + (count + columns - 1) / columns, 0, 1, columns, Qt::AlignRight);
    setFormFonts(*this);
}

void frmColours::ChooseColour(int& Result) {
    chosen_ = 0;
    exec();
    Result = chosen_;
}
