#include "map/windows/FrmMap.h"

#include "animation/playback/windows/AnimationStrip.h"
#include "core/CallHistory.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "groups/AccountGroups.h"
#include "map/surface/windows/MapKeyView.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "map/windows/CallTypePanel.h"
#include "map/windows/CallTypePie.h"
#include "map/windows/FrmCallDetail.h"
#include "map/windows/FrmMapWork.h"
#include "map/windows/MapStatusPanel.h"
#include "stats/SelectionState.h"
#include "ui/AppIcon.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int gap = 8, sideWidth = 296;
constexpr long tvRegions = 2, postcodeDistricts = 3, customerGroups = 5;
constexpr long averageCalls = 8; ///< map type
constexpr const char* toolBar =
    ":BUTTON_VISIBLE:1,1,1,1,0,1,0,0,0,0,0,0,0,0,:TOOLTIPS:Zoom Extent,Pan,Zoom In,Zoom "
    "Out,Measure,Information,Information,Circle Query,Draw Point,Draw Polyline,Draw Polygon,Draw Circle,Hide "
    "Toolbar,Go Back,";

bool groupsExist() {
    try {
        return accountHasGroups();
    } catch (const std::exception&) {
        return false; // the project is not linked
    }
}

/// Areas of the map can be joined to groups.
bool canGroup(long boundary) {
    return boundary == tvRegions || boundary == postcodeDistricts || boundary == customerGroups;
}

} // namespace

FrmMap::FrmMap(QWidget* parent)
    : QWidget(parent, Qt::Window), mapSurface1_(new MapSurfaceWidget(this)), mapKey1_(mapSurface1_->surface()),
      session_(mapSurface1_->surface(), mapKey1_), uctHeader1(new uctHeader(this)), uctFooter1(new uctFooter(this)),
      CmbBoundary(new QComboBox(this)), cmbMapType(new QComboBox(this)),
      chkDensities(new QCheckBox(tr("Use &Population Densities"), this)), keyView_(new MapKeyView(mapKey1_, this)),
      status_(new MapStatusPanel(this)),
      label8_(new QLabel(tr("Analysing map data for selected parameters, please wait..."), this)),
      prog1_(new QProgressBar(this)), strip_(new AnimationStrip(session_.playback, this)),
      fraPie(new CallTypePie(&mapSurface1_->canvas())), fraOtherCallAreas(new CallTypePanel(&mapSurface1_->canvas())) {
    setObjectName(QStringLiteral("FrmMap"));
    setWindowTitle(QStringLiteral("Ostel Callscope Mapping v") + QString::fromStdString(gsVersion));
    setWindowIcon(appIcon());
    uctHeader1->SetPicture(appIcon());
    mapSurface1_->setObjectName(QStringLiteral("MapSurface1"));
    mapSurface1_->surface().setToolBarSetup(toolBar);
    mapKey1_.font.family = gsFontName;
    makeLists();
    arrange();
    connectControls();
}

FrmMap::~FrmMap() {
    delete keyView_; // while the key is there
}

void FrmMap::makeLists() {
    CmbBoundary->setObjectName(QStringLiteral("CmbBoundary"));
    CmbBoundary->setAccessibleName(tr("Select Map Boundary"));
    cmbMapType->setObjectName(QStringLiteral("cmbMapType"));
    cmbMapType->setAccessibleName(tr("Select Data"));
    chkDensities->setObjectName(QStringLiteral("chkDensities"));
    keyView_->setObjectName(QStringLiteral("MapKey1"));
    label8_->setObjectName(QStringLiteral("Label8"));
    label8_->setWordWrap(true);
    label8_->hide();
    prog1_->setObjectName(QStringLiteral("Prog1"));
    prog1_->setTextVisible(false);
    prog1_->hide();
    session_.fraSaveStatus = [this](bool visible) { fraSaveStatus->setVisible(visible); };
    session_.lblSaveStatus = [this](const std::string& text) { lblSaveStatus->setText(QString::fromStdString(text)); };
    session_.programFilesOutdated = [this] { emit programFilesOutdated(); };
    session_.lblGroupStatus = [this](const std::string& text) {
        lblGroupStatus->setText(QString::fromStdString(text));
    };
}

QWidget* FrmMap::saveStatus() {
    fraSaveStatus = new QFrame(this);
    fraSaveStatus->setObjectName(QStringLiteral("fraSaveStatus"));
    auto* column = new QVBoxLayout(fraSaveStatus);
    column->setContentsMargins(0, 0, 0, 0);
    for (QLabel** label : {&lblGroupStatus, &lblSaveStatus}) {
        *label = new QLabel(fraSaveStatus);
        (*label)->setWordWrap(true);
        column->addWidget(*label);
    }
    lblGroupStatus->setObjectName(QStringLiteral("lblGroupStatus"));
    lblSaveStatus->setObjectName(QStringLiteral("lblSaveStatus"));
    fraSaveStatus->hide();
    return fraSaveStatus;
}

QWidget* FrmMap::sidePanel() {
    auto* panel = new QWidget(this);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    column->setSpacing(gap);
    const auto addList = [&](const QString& caption, QComboBox* list) {
        auto* label = new QLabel(caption, panel);
        label->setProperty("role", "section");
        label->setBuddy(list);
        column->addWidget(label);
        column->addWidget(list);
    };
    addList(tr("Select Map &Boundary"), CmbBoundary);
    addList(tr("Select &Data"), cmbMapType);
    column->addWidget(chkDensities);
    column->addWidget(saveStatus());
    column->addWidget(label8_);
    column->addWidget(prog1_);
    column->addWidget(keyView_, 1);
    column->addWidget(status_);
    panel->setFixedWidth(sideWidth);
    return panel;
}

void FrmMap::arrange() {
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(sidePanel());
    auto* map = new QVBoxLayout;
    map->setSpacing(0);
    map->addWidget(mapSurface1_, 1);
    map->addWidget(strip_);
    middle->addLayout(map, 1);
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(uctHeader1);
    window->addLayout(middle, 1);
    window->addWidget(uctFooter1);
    registerLinks();
    uctFooter1->setHelpVisible(true);
    uctFooter1->setExitButtonText(tr("E&xit"));
    uctFooter1->setExitToolTipText(tr("Back to the parameters"));
    uctFooter1->exitButton()->setObjectName(QStringLiteral("CmdExit"));
    mapSurface1_->canvas().installEventFilter(this);
    resize(1280, 760);
    setMinimumSize(800, 560);
}

void FrmMap::registerLinks() {
    const auto make = [this](const char* name, const QString& caption, const QString& tip) {
        return uctFooter1->AddLink(name, caption, tip);
    };
    lblViewMap = make("lblViewMap", tr("&View Map Data"), tr("The figures of every area in a grid"));
    lblExcel = make("lblExcel", tr("Exce&l"), tr("A workbook with a picture of this window and its parameters"));
    lblGroupTools = make("lblGroupTools", tr("Show &Group Tools"), QString());
    cmdCampaignSpend = make("cmdCampaignSpend", tr("&Campaign Spend"), tr("Enter a Campaign Spend amount"));
}

void FrmMap::connectControls() {
    connect(lblViewMap, &ucWebbyLink::clicked, this, &FrmMap::CmdData_Click);
    connect(strip_, &AnimationStrip::setUpRequested, this, &FrmMap::CmdSetUp_Click);
    connect(strip_, &AnimationStrip::playbackChanged, this, &FrmMap::playbackChanged);
    connect(lblExcel, &ucWebbyLink::clicked, this, &FrmMap::CmdExcel_Click);
    connect(lblGroupTools, &ucWebbyLink::clicked, this, &FrmMap::cmdGroup_Click);
    connect(cmdCampaignSpend, &ucWebbyLink::clicked, this, &FrmMap::cmdCampaignSpend_Click);
    connect(CmbBoundary, &QComboBox::activated, this, &FrmMap::CmbBoundary_Click);
    connect(cmbMapType, &QComboBox::activated, this, &FrmMap::cmbMapType_Click);
    connect(chkDensities, &QCheckBox::clicked, this, &FrmMap::chkDensities_Click);
    connect(uctFooter1, &uctFooter::exitClicked, this, &QWidget::close);
    connect(uctFooter1, &uctFooter::helpClicked, this, &FrmMap::helpRequested);
    connect(mapSurface1_, &MapSurfaceWidget::ToolBarClick, this, &FrmMap::MapSurface1_ToolBarClick);
    connect(mapSurface1_, &MapSurfaceWidget::Click, this, [this] { session_.clicked(); });
    connect(mapSurface1_, &MapSurfaceWidget::viewChanged, this, [this] { session_.clicked(); });
    connect(mapSurface1_, &MapSurfaceWidget::MapMouseDown, this, [this](int button) { session_.mouseDown(button); });
    connect(mapSurface1_, &MapSurfaceWidget::DrawMapFinished, this, &FrmMap::MapSurface1_DrawMapFinished);
    connect(mapSurface1_, &MapSurfaceWidget::MapEntityInfo, this, &FrmMap::MapSurface1_MapEntityInfo);
    connect(fraOtherCallAreas, &CallTypePanel::chosen, this,
            [this](const QString& type) { showAnswer(session_.callType(type.toStdString())); });
}

void FrmMap::showReport(long boundary, const ReportParameters& parameters) {
    {
        const Work work(*this);
        session_.begin(boundary, parameters);
        listBoundaries();
        show();
        session_.build();
        showPanels();
    }
    refresh();
    mapSurface1_->setFocus();
}

void FrmMap::listBoundaries() {
    const QSignalBlocker quiet(CmbBoundary);
    CmbBoundary->clear();
    for (const ListEntry& entry : boundaryEntries(groupsExist()))
        CmbBoundary->addItem(QString::fromUtf8(entry.text.data(), static_cast<qsizetype>(entry.text.size())),
                             static_cast<qlonglong>(entry.code));
}

void FrmMap::DisableForm() {
    working_ = true;
    enableControls();
}

void FrmMap::EnableForm() {
    working_ = false;
    session_.form.closeRequested = false; // it was meant for the build that has ended
    enableControls();
}

void FrmMap::enableControls() {
    const bool free = !working_;
    const Playback& playback = session_.playback;
    const bool still = free && playback.state() != Playback::State::Playing;
    const bool whole = free && !playback.active();
    for (QWidget* control :
         std::initializer_list<QWidget*>{CmbBoundary, cmbMapType, mapSurface1_, lblViewMap, lblExcel})
        control->setEnabled(still);
    uctFooter1->setEnabled(free);
    chkDensities->setEnabled(whole && session_.form.chkDensitiesEnabled);
    cmdCampaignSpend->setEnabled(whole);
    const bool grouping = canGroup(session_.boundary());
    lblGroupTools->setEnabled(whole && grouping);
    lblGroupTools->setToolTip(grouping ? tr("Make groups of areas on a map")
                                       : tr("Groups are made on maps of TV regions, post code districts or groups"));
    strip_->setWorking(working_);
}

void FrmMap::removeCustomerGroups() {
    if (const int row = CmbBoundary->findData(static_cast<qlonglong>(customerGroups)); row >= 0)
        CmbBoundary->removeItem(row);
}

void FrmMap::CmbBoundary_Click(int row) {
    if (working_)
        return;
    const long code = static_cast<long>(CmbBoundary->itemData(row).toLongLong());
    {
        const Work work(*this);
        session_.changeBoundary(code);
        showPanels();
    }
    refresh();
}

void FrmMap::cmbMapType_Click(int row) {
    if (working_)
        return;
    {
        const Work work(*this);
        session_.changeMapType(static_cast<long>(cmbMapType->itemData(row).toLongLong()));
        showPanels();
    }
    refresh();
}

void FrmMap::chkDensities_Click(bool on) {
    if (working_)
        return;
    {
        const Work work(*this);
        session_.setDensities(on);
        showPanels();
    }
    refresh();
}

void FrmMap::MapSurface1_ToolBarClick(long tool) {
    session_.toolBarClicked(tool);
    fraOtherCallAreas->setVisible(tool == static_cast<long>(MapTool::Information));
    placePanels();
}

void FrmMap::MapSurface1_DrawMapFinished() {
    placePanels();
    if (working_)
        return;
    // Behind the draw that has ended: it may ask for another one.
    QTimer::singleShot(0, this, [this] { session_.drawFinished(); });
}

void FrmMap::MapSurface1_MapEntityInfo(short layer, long entity) {
    const AreaAnswer answer = session_.areaAt(layer, entity);
    // Behind the click: a modal window must not stand in the middle of it.
    QTimer::singleShot(0, this, [this, answer] { showAnswer(answer); });
}

void FrmMap::showAnswer(const AreaAnswer& answer) {
    if (!answer.message.empty())
        showMessage(answer.message);
    if (answer.detail)
        FrmCallDetail(*answer.detail, SelectionDescription, this).exec();
}

void FrmMap::nameMap() {
    const QString boundary = CmbBoundary->currentText();
    uctHeader1->setTitle(boundary);
    uctHeader1->setDetail(QString::fromStdString(CallHistory::shortName(gsProjectPath)));
}

void FrmMap::fillMapTypes() {
    const QSignalBlocker quiet(cmbMapType);
    cmbMapType->clear();
    for (const ListEntry& entry : session_.mapTypes())
        cmbMapType->addItem(QString::fromUtf8(entry.text.data(), static_cast<qsizetype>(entry.text.size())),
                            static_cast<qlonglong>(entry.code));
    cmbMapType->setCurrentIndex(cmbMapType->findData(static_cast<qlonglong>(session_.mapType())));
}

void FrmMap::refresh() {
    fillMapTypes();
    CmbBoundary->setCurrentIndex(CmbBoundary->findData(static_cast<qlonglong>(session_.boundary())));
    strip_->setMap(session_.boundary(), session_.mapType());
    enableControls();
    chkDensities->setChecked(session_.densities());
    chkDensities->setToolTip(session_.form.chkDensitiesEnabled ? tr("Calls for each head of population")
                                                               : tr("There are no population figures for this map"));
    const Boundary* boundary = findBoundary(session_.boundary());
    status_->showState(session_.form, boundary && boundary->showsMinimum, SelectionDescription);
    fraOtherCallAreas->setVisible(mapSurface1_->surface().UIMode() == MapTool::Information);
    nameMap();
    showTotals();
    placePanels();
}

void FrmMap::showTotals() {
    const auto totals = session_.totals();
    const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    QStringList details;
    if (totals)
        details = {tr("%1 calls").arg(locale.toString(static_cast<qlonglong>(totals->calls))),
                   tr("cost £%1").arg(locale.toString(totals->cost, 'f', 2))};
    uctFooter1->SetReportDetails(details);
}

void FrmMap::showPanels() {
    bool failed = false;
    fraPie->setSplit(session_.split(failed));
    if (failed)
        showMessage("Could not produce pie chart for Line / Mobile / International / Other splits");
    fraOtherCallAreas->showBars(session_.bars(), session_.form.groupLabelsVisible, session_.mapType() == averageCalls);
    if (!groupsExist())
        removeCustomerGroups();
}

void FrmMap::placePanels() {
    const QRect room = mapSurface1_->canvas().rect().adjusted(2 * gap, 2 * gap, -2 * gap, -2 * gap);
    fraPie->resize(fraPie->sizeHint());
    fraPie->setVisible(fraPie->hasSplit() && session_.pieHasRoom() && pieStandsOverSea());
    fraPie->move(room.right() - fraPie->width(), room.top()); // over the North Sea
    fraOtherCallAreas->adjustSize();
    fraOtherCallAreas->move(room.left(), room.bottom() - fraOtherCallAreas->height());
}

/// At full extent the country stands in the middle; a card that reaches a little over its firths hides nothing.
bool FrmMap::pieStandsOverSea() const {
    constexpr double widthOfHeight = 0.63, reach = 0.4;
    const QSize room = mapSurface1_->canvas().size();
    const double sea = (room.width() - widthOfHeight * room.height()) / 2;
    return sea >= (1 - reach) * fraPie->width();
}

bool FrmMap::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        placePanels();
    return QWidget::eventFilter(watched, event);
}

void FrmMap::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F11)
        setWindowState(windowState() ^ Qt::WindowFullScreen);
    else
        QWidget::keyPressEvent(event);
}

void FrmMap::closeEvent(QCloseEvent* event) {
    if (working_ || session_.playback.busy()) {
        session_.form.closeRequested = true;
        session_.playback.abandon();
        event->ignore();
        return;
    }
    session_.end();
    event->accept();
    emit closed();
}
