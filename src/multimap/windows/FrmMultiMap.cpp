#include "multimap/windows/FrmMultiMap.h"

#include "core/CallHistory.h"
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "map/Boundaries.h"
#include "map/surface/windows/MapKeyView.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "map/windows/CallTypePanel.h"
#include "map/windows/FrmCallDetail.h"
#include "multimap/MultiMapWorkbook.h"
#include "multimap/windows/MapPane.h"
#include "ui/AppIcon.h"
#include "ui/OpenDocument.h"
#include "ui/ucWebbyBorder.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace {

constexpr int gap = 8, sideWidth = 216;
constexpr int mapsInRowOfSix = 3, mapsInRow = 2;
constexpr double smallLabels = 0.75; ///< on maps in two rows, or they would hide the colours

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

FrmMultiMap::FrmMultiMap(QWidget* parent)
    : QWidget(parent, Qt::Window), ucwbKey(new ucWebbyBorder(this)), cmbMapType(new QComboBox(ucwbKey)),
      ReportArea(new QScrollArea(this)), sheet_(new QWidget(ReportArea)), panes_(makePanes()),
      mapKey1_(panes_[0]->MapSurface1()->surface()), session_(surfaces(), mapKey1_), uctHeader1(new uctHeader(this)),
      uctFooter1(new uctFooter(this)), keyView_(new MapKeyView(mapKey1_, ucwbKey)), lblParameters(new QLabel(ucwbKey)) {
    setObjectName(QStringLiteral("FrmMultiMap"));
    setWindowTitle(QStringLiteral("Ostel Callscope Mapping v") + QString::fromStdString(gsVersion));
    setWindowIcon(appIcon());
    uctHeader1->SetPicture(appIcon());
    mapKey1_.font.family = gsFontName;
    for (const ListEntry& entry : multiMapTypeEntries())
        cmbMapType->addItem(toQString(entry.text), static_cast<qlonglong>(entry.code));
    makeReportArea();
    arrange();
    setTabOrder(cmbMapType, keyView_);
    connect(cmbMapType, &QComboBox::activated, this, &FrmMultiMap::cmbMapType_Click);
    connect(alignMaps_, &ucWebbyLink::clicked, this, &FrmMultiMap::alignMaps_Click);
    connect(CmdExcel, &ucWebbyLink::clicked, this, &FrmMultiMap::CmdExcel_Click);
    connect(uctFooter1, &uctFooter::exitClicked, this, &QWidget::close);
    connect(uctFooter1, &uctFooter::helpClicked, this, &FrmMultiMap::helpRequested);
    for (int n = 1; n <= MultiMapSession::mostMaps; ++n)
        connectMap(n);
}

FrmMultiMap::~FrmMultiMap() {
    delete keyView_; // while the key is there
}

std::array<MapPane*, MultiMapSession::mostMaps> FrmMultiMap::makePanes() {
    const auto shapes = std::make_shared<GeometryCache>(); // one boundary: read once for all maps
    std::array<MapPane*, MultiMapSession::mostMaps> panes{};
    for (int n = 1; n <= MultiMapSession::mostMaps; ++n)
        panes[static_cast<std::size_t>(n - 1)] = new MapPane(n, shapes, sheet_);
    return panes;
}

MultiMapSession::Surfaces FrmMultiMap::surfaces() const {
    MultiMapSession::Surfaces surfaces{};
    for (int n = 1; n <= MultiMapSession::mostMaps; ++n)
        surfaces[static_cast<std::size_t>(n - 1)] = &MapSurface1(n)->surface();
    return surfaces;
}

MapSurfaceWidget* FrmMultiMap::MapSurface1(int mapIndex) const {
    return pane(mapIndex)->MapSurface1();
}

void FrmMultiMap::makeReportArea() {
    ReportArea->setObjectName(QStringLiteral("ReportArea"));
    ReportArea->setWidget(sheet_);
    ReportArea->setWidgetResizable(true);
    ReportArea->setFrameShape(QFrame::NoFrame);
    ReportArea->horizontalScrollBar()->setObjectName(QStringLiteral("scrHorizontal"));
    ReportArea->setFocusPolicy(Qt::NoFocus); // the maps take the focus, and come into view with it
    ReportArea->verticalScrollBar()->setObjectName(QStringLiteral("scrVertical"));
}

QWidget* FrmMultiMap::keySide() {
    ucwbKey->setObjectName(QStringLiteral("ucwbKey"));
    cmbMapType->setObjectName(QStringLiteral("cmbMapType"));
    cmbMapType->setAccessibleName(tr("Select Data"));
    keyView_->setObjectName(QStringLiteral("MapKey1"));
    lblParameters->setObjectName(QStringLiteral("lblParameters"));
    lblParameters->setWordWrap(true);
    lblParameters->setProperty("role", "caption");
    auto* label = new QLabel(tr("Select &Data"), ucwbKey);
    label->setProperty("role", "section");
    label->setBuddy(cmbMapType);
    auto* column = new QVBoxLayout(ucwbKey);
    column->setSpacing(gap);
    column->addWidget(label);
    column->addWidget(cmbMapType);
    column->addSpacing(gap);
    column->addWidget(keyView_, 1);
    column->addWidget(lblParameters);
    column->addStretch();
    ucwbKey->setFixedWidth(sideWidth);
    return ucwbKey;
}

void FrmMultiMap::arrange() {
    auto* middle = new QHBoxLayout;
    middle->setContentsMargins(2 * gap, 2 * gap, gap, gap);
    middle->setSpacing(2 * gap);
    middle->addWidget(keySide());
    middle->addWidget(ReportArea, 1);
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(uctHeader1);
    window->addLayout(middle, 1);
    window->addWidget(uctFooter1);
    registerLinks();
    resize(1280, 760);
    setMinimumSize(800, 560);
}

void FrmMultiMap::registerLinks() {
    const auto make = [this](const char* name, const QString& caption, const QString& tip) {
        return uctFooter1->AddLink(name, caption, tip);
    };
    alignMaps_ = make("cmdAlignMaps", tr("&Align Maps"), tr("Show in all maps what the map shows that was used last"));
    CmdExcel = make("CmdExcel", tr("Exce&l"), tr("A workbook with a picture of these maps and their parameters"));
    uctFooter1->setHelpVisible(true);
    uctFooter1->setExitButtonText(tr("E&xit"));
    uctFooter1->setExitToolTipText(tr("Back to the parameters"));
    uctFooter1->exitButton()->setObjectName(QStringLiteral("CmdExit"));
}

void FrmMultiMap::connectMap(int mapIndex) {
    const MapSurfaceWidget* map = MapSurface1(mapIndex);
    connect(map, &MapSurfaceWidget::Click, this, [this, mapIndex] { session_.clicked(mapIndex); });
    connect(map, &MapSurfaceWidget::viewChanged, this, [this, mapIndex] { session_.viewChanged(mapIndex); });
    connect(map, &MapSurfaceWidget::ToolBarClick, this,
            [this, mapIndex](long tool) { MapSurface1_ToolBarClick(mapIndex, tool); });
    connect(map, &MapSurfaceWidget::DrawMapFinished, this, [this, mapIndex] { MapSurface1_DrawMapFinished(mapIndex); });
    // Behind the click: a modal window must not stand in the middle of it.
    connect(map, &MapSurfaceWidget::MapEntityInfo, this, [this, mapIndex](short layer, long entity) {
        const AreaAnswer answer = session_.areaAt(mapIndex, layer, entity);
        QTimer::singleShot(0, this, [this, mapIndex, answer] { showAnswer(mapIndex, answer); });
    });
    connect(pane(mapIndex)->fraOtherCallAreas(), &CallTypePanel::chosen, this, [this, mapIndex](const QString& type) {
        showAnswer(mapIndex, session_.callType(mapIndex, type.toStdString()));
    });
}

void FrmMultiMap::showReport(long boundary, const MultiMapParameters& ranges) {
    session_.begin(boundary, ranges);
    cmbMapType->setCurrentIndex(cmbMapType->findData(static_cast<qlonglong>(session_.mapType())));
    arrangeMaps();
    uctHeader1->setDetail(QString::fromStdString(CallHistory::shortName(gsProjectPath)));
    lblParameters->setText(QString::fromStdString(session_.selection()));
    lblParameters->setVisible(!session_.selection().empty());
    show();
    work([this] { session_.createMaps(); });
    MapSurface1(1)->setFocus();
}

/// Two and four maps stand in two columns, six in three.
void FrmMultiMap::arrangeMaps() {
    delete sheet_->layout();
    auto* grid = new QGridLayout(sheet_);
    grid->setContentsMargins(0, 0, gap, 0);
    grid->setSpacing(2 * gap);
    const int columns = session_.count() > 4 ? mapsInRowOfSix : mapsInRow;
    for (int n = 1; n <= MultiMapSession::mostMaps; ++n) {
        const bool isShown = n <= session_.count();
        pane(n)->setVisible(isShown);
        if (!isShown)
            continue;
        grid->addWidget(pane(n), (n - 1) / columns, (n - 1) % columns);
        grid->setColumnStretch((n - 1) % columns, 1);
        pane(n)->showPeriod(QString::fromStdString(session_.period(n)));
        MapSurface1(n)->surface().style.labelScale = session_.count() > mapsInRow ? smallLabels : 1.0;
        MapSurface1(n)->surface().setUIMode(MapTool::Information);
        pane(n)->fraOtherCallAreas()->show();
    }
    ReportArea->verticalScrollBar()->setValue(0);
}

void FrmMultiMap::work(const std::function<void()>& task) {
    if (working_)
        return;
    const QPointer<QWidget> focus = focusWidget();
    {
        const Hourglass hourglass;
        enableControls(false);
        task();
        showBars();
        uctHeader1->setTitle(title());
    }
    enableControls(true);
    if (focus)
        focus->setFocus();
    if (session_.closeRequested)
        close();
}

void FrmMultiMap::enableControls(bool enabled) {
    working_ = !enabled;
    for (QWidget* control : std::initializer_list<QWidget*>{cmbMapType, uctFooter1})
        control->setEnabled(enabled);
    for (int n = 1; n <= session_.count(); ++n)
        pane(n)->setEnabled(enabled);
}

void FrmMultiMap::cmbMapType_Click(int row) {
    const long mapType = static_cast<long>(cmbMapType->itemData(row).toLongLong());
    work([this, mapType] { session_.changeMapType(mapType); });
}

void FrmMultiMap::alignMaps_Click() {
    work([this] { session_.alignMaps(); });
}

void FrmMultiMap::MapSurface1_ToolBarClick(int mapIndex, long tool) {
    session_.toolBarClicked(mapIndex, tool);
    const MapTool inHand = MapSurface1(mapIndex)->surface().UIMode();
    pane(mapIndex)->fraOtherCallAreas()->setVisible(inHand == MapTool::Information);
}

void FrmMultiMap::MapSurface1_DrawMapFinished(int mapIndex) {
    // Behind the draw that has ended: it may ask for another one.
    if (!working_ && session_.reloads(mapIndex))
        QTimer::singleShot(0, this, [this, mapIndex] { work([&] { session_.drawFinished(mapIndex); }); });
}

void FrmMultiMap::showAnswer(int mapIndex, const AreaAnswer& answer) {
    if (!answer.message.empty())
        showMessage(answer.message);
    if (!answer.detail)
        return;
    const std::string selection = session_.selection();
    const std::string period = session_.period(mapIndex);
    FrmCallDetail detail(*answer.detail, selection.empty() ? period : period + "\r\n" + selection, this);
    detail.setWindowTitle(detail.windowTitle() + QStringLiteral(" · ") + QString::fromStdString(period));
    detail.exec();
}

void FrmMultiMap::showBars() {
    for (int n = 1; n <= session_.count(); ++n)
        pane(n)->showBars(session_.bars(n));
}

QString FrmMultiMap::title() const {
    const Boundary* boundary = findBoundary(session_.boundary());
    return (boundary ? toQString(boundary->text) : QString()) + QStringLiteral(" · ") + cmbMapType->currentText();
}

bool FrmMultiMap::allInView() const {
    for (int n = 1; n <= session_.count(); ++n) {
        if (!pane(n)->isWhollyIn(*ReportArea->viewport()))
            return false;
    }
    return true;
}

void FrmMultiMap::CmdExcel_Click() {
    gsCurrentProc = "FrmMultiMap_CmdExcel_Click";
    if (!session_.mayOutputToExcel(!working_ && session_.mapsFinished(), allInView()))
        return;
    work([this] {
        logAndTell([this] {
            const std::string path = newDocumentPath(title().toStdString(), "xlsx");
            saveWorkbook(path);
            openDocument(path);
        });
    });
}

void FrmMultiMap::saveWorkbook(const std::string& path) {
    const QWidget& view = *ReportArea->viewport();
    MultiMapPicture picture;
    picture.title = title();
    picture.project = QString::fromStdString(CallHistory::shortName(gsProjectPath));
    picture.view = view.size();
    picture.fontFamily = QString::fromStdString(gsFontName);
    picture.devicePixelRatio = devicePixelRatioF();
    for (int n = 1; n <= session_.count(); ++n)
        picture.maps.push_back(pane(n)->picture(view));
    writeMapWorkbook(path, parametersOfMaps(session_), drawMultiMapPicture(picture, mapKey1_));
}

void FrmMultiMap::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F11)
        setWindowState(windowState() ^ Qt::WindowFullScreen);
    else
        QWidget::keyPressEvent(event);
}

void FrmMultiMap::closeEvent(QCloseEvent* event) {
    if (working_) {
        session_.closeRequested = true; // the work closes the window when it has come to its end
        event->ignore();
        return;
    }
    session_.end();
    event->accept();
    emit closed();
}
