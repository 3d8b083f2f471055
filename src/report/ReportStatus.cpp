#include "report/ReportStatus.h"

#include "ui/ElidedLabel.h"

#include <QHBoxLayout>
#include <QProgressBar>

ReportStatus::ReportStatus(QWidget* parent)
    : QWidget(parent), Label8(new ElidedLabel(this)), Prog1(new QProgressBar(this)) {
    Label8->setObjectName(QStringLiteral("Label8"));
    Label8->setText(tr("Analysing map data for selected parameters, please wait..."));
    Prog1->setObjectName(QStringLiteral("Prog1"));
    Prog1->setAccessibleName(tr("Progress of the report"));
    Prog1->setTextVisible(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 16, 8);
    row->setSpacing(16);
    row->addWidget(Label8, 1);
    row->addWidget(Prog1, 1);
    for (QWidget* part : {static_cast<QWidget*>(Label8), static_cast<QWidget*>(Prog1)}) {
        QSizePolicy policy = part->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
    }
    setFixedHeight(28);
    Label8->hide();
    Prog1->hide();
}
