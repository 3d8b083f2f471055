#include "groups/windows/frmGroupSelection.h"

#include "groups/editor/GroupEditor.h"
#include "ui/AppIcon.h"
#include "ui/modBranding.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace {

constexpr int gap = 8;

} // namespace

frmGroupSelection::frmGroupSelection(GroupAction action, const std::vector<std::string>& areas, QWidget* parent)
    : QDialog(parent), lvSelected(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("frmGroupSelection"));
    setWindowTitle(tr("Group Selection"));
    setModal(true);
    auto* header = new uctHeader(this);
    header->setHeaderType(uctHeader::Style::Prompt);
    header->setTitle(windowTitle());
    header->SetPicture(appIcon());
    auto* text = new QLabel(QString::fromStdString(groupSelectionText(action)), this);
    text->setObjectName(QStringLiteral("lblInfo"));
    text->setWordWrap(true);

    lvSelected->setObjectName(QStringLiteral("lvSelected"));
    lvSelected->setHeaderLabels({tr("Location")});
    lvSelected->setAccessibleName(tr("Location"));
    lvSelected->setRootIsDecorated(false);
    lvSelected->setUniformRowHeights(true);
    for (const std::string& area : areas)
        new QTreeWidgetItem(lvSelected, {QString::fromStdString(area)});
    checkAll(Qt::Checked);

    auto* marks = new QHBoxLayout;
    const auto addMark = [&](const char* name, const QString& caption, Qt::CheckState state) {
        auto* link = new ucWebbyLink(caption, ucWebbyLink::Kind::Link, this);
        link->setObjectName(QString::fromLatin1(name));
        connect(link, &ucWebbyLink::clicked, this, [this, state] { checkAll(state); });
        marks->addWidget(link);
    };
    addMark("cmdCheckAll", tr("Check &all"), Qt::Checked);
    addMark("cmdCheckNone", tr("Check n&one"), Qt::Unchecked);
    marks->addStretch();

    auto* body = new QVBoxLayout;
    body->setContentsMargins(2 * gap, 2 * gap, 2 * gap, gap);
    body->setSpacing(gap);
    body->addWidget(text);
    body->addWidget(lvSelected, 1);
    body->addLayout(marks);
    auto* footer = new uctFooter(this);
    auto* cmdOK = new ucWebbyLink(tr("O&K"), ucWebbyLink::Kind::Primary, this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    footer->RegisterButton(cmdOK);
    footer->exitButton()->setObjectName(QStringLiteral("cmdCancel"));
    footer->setExitButtonText(tr("&Cancel"));
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(header);
    window->addLayout(body, 1);
    window->addWidget(footer);
    setFormFonts(*this);
    resize(480, 480);
    lvSelected->setFocus();
    connect(cmdOK, &ucWebbyLink::clicked, this, &QDialog::accept);
    connect(footer, &uctFooter::exitClicked, this, &QDialog::reject);
}

void frmGroupSelection::checkAll(Qt::CheckState state) {
    for (int row = 0; row < lvSelected->topLevelItemCount(); ++row)
        lvSelected->topLevelItem(row)->setCheckState(0, state);
}

std::vector<std::string> frmGroupSelection::checkedAreas() const {
    std::vector<std::string> areas;
    for (int row = 0; row < lvSelected->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = lvSelected->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            areas.push_back(item->text(0).toStdString());
    }
    return areas;
}
