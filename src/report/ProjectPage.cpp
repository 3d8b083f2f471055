#include "report/ProjectPage.h"

#include "core/CallHistory.h"
#include "report/ProjectPeriod.h"
#include "ui/ElidedLabel.h"
#include "ui/Skin.h"

#include <QVBoxLayout>

ProjectPage::ProjectPage(QWidget* parent)
    : ucWebbyBorder(parent), name_(new ElidedLabel(this)), path_(new ElidedLabel(this)), period_(new QLabel(this)) {
    name_->setObjectName(QStringLiteral("lblProjectName"));
    path_->setObjectName(QStringLiteral("lblProjectPath"));
    period_->setObjectName(QStringLiteral("lblProjectPeriod"));
    setRole(*name_, "headline");
    setRole(*path_, "hint");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(8);
    for (QLabel* label : {name_, path_, period_})
        column->addWidget(label);
    column->addStretch(1);
}

void ProjectPage::showProject(const std::string& path, const std::optional<ProjectPeriod>& period) {
    name_->setText(QString::fromStdString(CallHistory::shortName(path)));
    path_->setText(QString::fromStdString(path));
    if (period)
        period_->setText(tr("Calls from %1 to %2")
                             .arg(QString::fromStdString(Value(period->start).asText()),
                                  QString::fromStdString(Value(period->end).asText())));
    else
        period_->setText(tr("The period of its calls is not known"));
}
