#include "groups/windows/frmGroups.h"

#include "groups/windows/CallAreaPanel.h"
#include "groups/windows/Swatch.h"
#include "groups/windows/frmColours.h"
#include "groups/windows/frmGroupsWork.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "ui/AppIcon.h"
#include "ui/modBranding.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

constexpr int gap = 8, sideWidth = 272, hintHeight = 72;
constexpr QSize swatchSize{20, 14};

Caption captionOf(QLabel* label) {
    return [label](const std::string& text) { label->setText(QString::fromStdString(text)); };
}

QString kindOfAreas(long DataType) {
    switch (DataType) {
    case 1:
        return frmGroups::tr("Groups of CSG's");
    case 3:
        return frmGroups::tr("Groups of Post Code Districts");
    default:
        return frmGroups::tr("Groups of TV Regions");
    }
}

} // namespace

frmGroups::frmGroups(long DataType, QWidget* parent)
    : QDialog(parent), editor_(DataType), mapSurface1_(new MapSurfaceWidget(this)),
      map_(mapSurface1_->surface(), editor_), uctHeader1(new uctHeader(this)), uctFooter1(new uctFooter(this)),
      lblGroups(new QLabel(tr("&Groups"), this)), tvGroups(new QTreeWidget(this)), lblHint(new QLabel(this)),
      fraOtherCallAreas(new CallAreaPanel(&mapSurface1_->canvas())) {
    setObjectName(QStringLiteral("frmGroups"));
    setWindowTitle(tr("Group Tools"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setModal(true);
    brandWindow(*this);
    uctHeader1->setTitle(tr("Group Tools"));
    uctHeader1->SetPicture(appIcon());
    mapSurface1_->setObjectName(QStringLiteral("MapSurface1"));
    mapSurface1_->surface().setToolBarSetup(GroupMap::toolBarSetup());
    makeLinks();
    makeMenu();
    arrange();
    setFormFonts(*this);
    connectControls();
    connectMap();
    populateList();
    refresh();
    tvGroups->setFocus();
}

void frmGroups::makeLinks() {
    using enum ucWebbyLink::Kind;
    const auto make = [this](const char* name, const QString& caption, ucWebbyLink::Kind kind, const QString& tip) {
        auto* link = new ucWebbyLink(caption, kind, this);
        link->setObjectName(QString::fromLatin1(name));
        link->setToolTip(tip);
        link->setAccessibleDescription(tip);
        return link;
    };
    cmdAddGroup = make("cmdAddGroup", tr("&Add Group"), Outlined, tr("Create a new Customer Group"));
    cmdDeleteGroup = make("cmdDeleteGroup", tr("&Delete Group"), Outlined, tr("Delete the selected Customer Group"));
    cmdDeleteAll = make("cmdDeleteAll", tr("Delete A&ll Groups"), Danger, tr("Remove all Customer Groups"));
    lblSave = make("lblSave", tr("&Save Changes"), Primary, tr("Save any changes made"));
    lblCancel = make("lblCancel", tr("&Cancel"), Outlined, tr("Cancel any changes made, and refresh the display"));
    uctFooter1->RegisterButton(lblSave);
    uctFooter1->RegisterButton(lblCancel);
    uctFooter1->setExitButtonText(tr("E&xit"));
    uctFooter1->setExitToolTipText(tr("Go back to the Map Menu"));
    uctFooter1->exitButton()->setObjectName(QStringLiteral("CmdExit"));
    uctFooter1->exitButton()->setAutoDefault(false); // Return belongs to the control in hand
}

void frmGroups::makeMenu() {
    mnuGroup = new QMenu(tr("Group Actions"), this);
    mnuGroup->setObjectName(QStringLiteral("mnuGroup"));
    const auto add = [this](const char* name, const QString& caption) {
        QAction* action = mnuGroup->addAction(caption);
        action->setObjectName(QString::fromLatin1(name));
        return action;
    };
    add("mnuGroupAddArea", tr("&Add selection to group"));
    add("mnuGroupDeleteArea", tr("&Remove selection from Group"));
    QAction* colour = add("mnuChangeGroupColour", tr("C&hange Group colour"));
    connect(colour, &QAction::triggered, this, [this] {
        int chosen = 0; // groups keep the colours of the list
        frmColours(this).ChooseColour(chosen);
    });
    mnuGroup->addSeparator();
    add("mnuCancel", tr("&Cancel"));
}

QWidget* frmGroups::saveStatus() {
    fraSaveStatus = new QFrame(this);
    fraSaveStatus->setObjectName(QStringLiteral("fraSaveStatus"));
    lblGroupStatus = new QLabel(fraSaveStatus);
    lblGroupStatus->setObjectName(QStringLiteral("lblGroupStatus"));
    lblGroupStatus->setWordWrap(true);
    lblSaveStatus = new QLabel(fraSaveStatus);
    lblSaveStatus->setObjectName(QStringLiteral("lblSaveStatus"));
    lblSaveStatus->setWordWrap(true);
    auto* lines = new QVBoxLayout(fraSaveStatus);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(lblGroupStatus);
    lines->addWidget(lblSaveStatus);
    fraSaveStatus->hide();
    return fraSaveStatus;
}

QWidget* frmGroups::groupPanel() {
    auto* panel = new QWidget(this);
    panel->setFixedWidth(sideWidth);
    lblGroups->setObjectName(QStringLiteral("lblGroups"));
    lblGroups->setProperty("role", "section");
    lblGroups->setBuddy(tvGroups);
    tvGroups->setObjectName(QStringLiteral("tvGroups"));
    tvGroups->setAccessibleName(tr("Groups"));
    tvGroups->setHeaderHidden(true);
    tvGroups->setRootIsDecorated(false);
    tvGroups->setUniformRowHeights(true);
    tvGroups->setIconSize(swatchSize);
    lblHint->setObjectName(QStringLiteral("lblHint"));
    lblHint->setProperty("role", "hint");
    lblHint->setWordWrap(true);
    lblHint->setMinimumHeight(hintHeight);
    lblHint->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    column->setSpacing(gap);
    for (QWidget* control : std::initializer_list<QWidget*>{lblGroups, tvGroups, lblHint, saveStatus(), cmdAddGroup,
                                                            cmdDeleteGroup, cmdDeleteAll})
        column->addWidget(control, control == tvGroups ? 1 : 0);
    return panel;
}

void frmGroups::arrange() {
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(groupPanel());
    middle->addWidget(mapSurface1_, 1);
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(uctHeader1);
    window->addLayout(middle, 1);
    window->addWidget(uctFooter1);
    mapSurface1_->canvas().installEventFilter(this);
    setMinimumSize(800, 560);
    resize(1200, 720);
    QWidget* const order[] = {tvGroups, cmdAddGroup, cmdDeleteGroup, cmdDeleteAll, mapSurface1_, uctFooter1};
    for (std::size_t at = 1; at < std::size(order); ++at)
        setTabOrder(order[at - 1], order[at]);
}

void frmGroups::connectControls() {
    connect(tvGroups, &QTreeWidget::itemSelectionChanged, this, &frmGroups::tvGroups_SelectionChanged);
    connect(cmdAddGroup, &ucWebbyLink::clicked, this, &frmGroups::cmdAddGroup_Click);
    const auto connectStep = [this](ucWebbyLink* link, EditorStep (GroupEditor::*act)()) {
        connect(link, &ucWebbyLink::clicked, this, [this, act] {
            const Work work(*this);
            follow((editor_.*act)());
        });
    };
    connectStep(cmdDeleteGroup, &GroupEditor::deleteGroup);
    connectStep(cmdDeleteAll, &GroupEditor::deleteAll);
    connectStep(lblCancel, &GroupEditor::cancel);
    connect(lblSave, &ucWebbyLink::clicked, this, &frmGroups::cmdSave_Click);
    connect(uctFooter1, &uctFooter::exitClicked, this, &QDialog::reject);
}

void frmGroups::DisableForm(bool disable) {
    works_ += disable ? 1 : -1;
    enableControls();
}

void frmGroups::enableControls() {
    const bool free = works_ == 0;
    for (QWidget* control :
         std::initializer_list<QWidget*>{tvGroups, cmdAddGroup, fraOtherCallAreas, mapSurface1_, uctFooter1})
        control->setEnabled(free);
    cmdDeleteGroup->setEnabled(free && editor_.canDelete());
    cmdDeleteAll->setEnabled(free && editor_.canDelete());
    lblSave->setEnabled(free && editor_.canSave());
    lblCancel->setEnabled(free && editor_.canSave());
}

void frmGroups::populateList() {
    const QSignalBlocker quiet(tvGroups);
    tvGroups->clear();
    for (const EditedGroup& group : editor_.groups()) {
        const QColor colour = QColor::fromRgb(group.colour);
        auto* node = new QTreeWidgetItem(tvGroups, {QString::fromStdString(group.name)});
        node->setIcon(0, QIcon(swatch(colour, swatchSize)));
        node->setForeground(0, readableShade(colour));
    }
    if (editor_.selected() >= 0)
        tvGroups->setCurrentItem(tvGroups->topLevelItem(editor_.selected()));
}

void frmGroups::refresh() {
    enableControls();
    fraOtherCallAreas->showAreas(editor_.callAreas());
    uctHeader1->setDetail(kindOfAreas(editor_.DataType));
    if (editor_.groups().empty())
        lblHint->setText(tr("There are no groups yet. Begin with Add Group, then click areas on the map or draw around "
                            "them."));
    else if (editor_.selected() < 0)
        lblHint->setText(tr("Select a group to add areas to it or to remove areas from it."));
    else
        lblHint->setText(
            tr("Take one of the two select tools above the map, then click an area or draw around several."));
    placePanels();
}

void frmGroups::follow(EditorStep step) {
    if (step == EditorStep::Close) {
        leave();
        return;
    }
    if (step == EditorStep::Rebuild) {
        populateList();
        createMap();
    }
    refresh();
}

void frmGroups::tvGroups_SelectionChanged() {
    const auto chosen = tvGroups->selectedItems();
    editor_.select(chosen.isEmpty() ? -1 : tvGroups->indexOfTopLevelItem(chosen.first()));
    refresh();
}

void frmGroups::cmdAddGroup_Click() {
    Work work(*this);
    if (!editor_.addGroup())
        return;
    populateList();
    refresh();
    work.leaveKeyboardOn(tvGroups);
}

void frmGroups::cmdSave_Click() {
    const Work work(*this);
    editor_.save({.frame = [this](bool visible) { fraSaveStatus->setVisible(visible); },
                  .saveStatus = captionOf(lblSaveStatus),
                  .groupStatus = captionOf(lblGroupStatus)});
    refresh();
}

void frmGroups::leave() {
    map_.end();
    QDialog::reject();
}

void frmGroups::reject() {
    if (works_ > 0)
        return;
    {
        const Work work(*this);
        if (!editor_.mayLeave())
            return;
    }
    leave();
}
