#include "report/FrmMain.h"

#include "core/CallHistory.h"
#include "core/FileNames.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Version.h"
#include "core/cPathControl.h"
#include "report/HistoryPanel.h"
#include "report/NoProjectPage.h"
#include "report/ProjectPeriod.h"
#include "report/ReleaseSystemDatabase.h"
#include "report/ReportStatus.h"
#include "report/form/RequireProject.h"
#include "report/form/SetupLists.h"
#include "report/panels/ParameterPage.h"
#include "report/panels/ReportButtons.h"
#include "ui/AppIcon.h"
#include "ui/Skin.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

FrmMain::FrmMain(QWidget* parent)
    : QWidget(parent), uctHeader1(new uctHeader(this)), Label3(uctHeader1->detailLabel()),
      historyPanel_(new HistoryPanel(this)), pages_(new QStackedWidget), noProject_(new NoProjectPage),
      page_(new ParameterPage), status_(new ReportStatus(this)), uctFooter1(new uctFooter(this)) {
    nameControls();
    makeLinks();
    arrange();
    connectControls();
    Form_Load();
}

void FrmMain::nameControls() {
    setObjectName(QStringLiteral("FrmMain"));
    uctHeader1->setObjectName(QStringLiteral("uctHeader1"));
    uctHeader1->sloganLabel()->setObjectName(QStringLiteral("lblSlogan"));
    uctHeader1->pictureLabel()->setObjectName(QStringLiteral("imgGlobe"));
    uctFooter1->setObjectName(QStringLiteral("uctFooter1"));
    Label3->setObjectName(QStringLiteral("Label3"));
    CmdClose()->setObjectName(QStringLiteral("CmdClose"));
}

void FrmMain::Form_Load() {
    setWindowTitle(QString::fromStdString(std::string(programTitle) + " v" + gsVersion));
    setWindowIcon(appIcon());
    uctHeader1->setTitle(QString::fromUtf8(programTitle));
    uctHeader1->SetPicture(appIcon());
    CmdClose()->setText(tr("&Close"));
    CmdClose()->setToolTip(tr("Close the program"));
    const std::string folder = gPaths ? gPaths->ApplicationDataPath : std::string();
    const bool guide = fileExists(folder, "CallscopeMapping.pdf") || fileExists(folder, "CallscopeMapping.txt");
    cmdUserGuide->setVisible(guide);
    ucwlSaveGuide->setVisible(guide); // there is nothing to save either
    page_->resetHours();
    readHistory();
    showProjectName(projectIsOpen() ? CallHistory::shortName(gsProjectPath) : "Please select a file");
    LstHistory()->setFocus();
}

void FrmMain::makeLinks() {
    const auto make = [this](const char* name, const QString& caption, const QString& tip) {
        return uctFooter1->AddLink(name, caption, tip);
    };
    cmdImportCSV = make("cmdImportCSV", tr("Popu&lation figures"), tr("Look at population figures, or read them in"));
    cmdUserGuide = make("cmdUserGuide", tr("Us&er guide"), tr("Print the user guide"));
    ucwlSaveGuide = make("ucwlSaveGuide", tr("Save guide"), tr("Save the user guide to a file"));
    lblHelp = make("lblHelp", tr("&Help"), tr("Open the help"));
}

void FrmMain::arrange() {
    constexpr int widestPage = 1280; ///< lines that the eye can follow
    auto* middle = new QScrollArea(this);
    middle->setObjectName(QStringLiteral("Frame1"));
    middle->setWidgetResizable(true);
    middle->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    middle->setFrameShape(QFrame::NoFrame);
    middle->setFocusPolicy(Qt::NoFocus);
    middle->viewport()->setAutoFillBackground(false);
    pages_->addWidget(noProject_);
    pages_->addWidget(page_);
    pages_->setMaximumWidth(widestPage);
    middle->setWidget(pages_);
    pages_->setAutoFillBackground(false);
    historyPanel_->setMinimumWidth(160);
    historyPanel_->setMaximumWidth(280);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(16, 16, 16, 8);
    body->setSpacing(16);
    body->addWidget(historyPanel_, 1);
    body->addWidget(middle, 4);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(uctHeader1);
    column->addLayout(body, 1);
    column->addWidget(status_);
    column->addWidget(uctFooter1);
    setMinimumSize(560, 360);
    resize(1240, 760);
}

void FrmMain::connectControls() {
    connect(CmdClose(), &QPushButton::clicked, this, &QWidget::close);
    connect(historyPanel_, &HistoryPanel::rowChosen, this, &FrmMain::historyRowChosen);
    connect(noProject_, &NoProjectPage::reportRequested, this, &FrmMain::requestReport);
    connect(page_, &ParameterPage::reportRequested, this, &FrmMain::requestReport);
    connect(page_, &ParameterPage::defaultsRequested, this, &FrmMain::CmdDefault_Click);
    connect(page_, &ParameterPage::numberRefused, this, &FrmMain::EnableForm);
    connect(page_, &ParameterPage::helpRequested, this, &FrmMain::helpRequested);
    connect(lblHelp, &ucWebbyLink::clicked, this, &FrmMain::helpRequested);
    connect(cmdImportCSV, &ucWebbyLink::clicked, this, &FrmMain::populationFiguresRequested);
    connect(cmdUserGuide, &ucWebbyLink::clicked, this, &FrmMain::userGuideRequested);
    connect(ucwlSaveGuide, &ucWebbyLink::clicked, this, &FrmMain::saveGuideRequested);
    for (const QWidget* control :
         {static_cast<QWidget*>(LstHistory()), static_cast<QWidget*>(CmdClose()), static_cast<QWidget*>(lblHelp)})
        page_->setWayOut(control);
}

void FrmMain::readHistory() {
    const std::string folder = gPaths ? gPaths->ApplicationDataPath : std::string();
    historyPanel_->showRows(CallHistory::readRows(fileInFolder(folder, CallHistory::fileName)));
}

void FrmMain::showProjectName(const std::string& text) {
    Label3->setText(QString::fromStdString(text));
    Label3->setToolTip(QString::fromStdString(gsProjectPath));
    followProject();
}

void FrmMain::followProject() {
    const bool open = projectIsOpen();
    setRole(*Label3, open ? "detail" : "hint");
    pages_->setCurrentIndex(open ? 1 : 0);
}

ReportParameters FrmMain::parameters() const {
    return page_->parameters();
}

MultiMapParameters FrmMain::multiMapParameters() const {
    return page_->multiMapParameters();
}

bool FrmMain::multiMapPostCodeDistricts() const {
    return page_->multiMapPostCodeDistricts();
}

void FrmMain::setLinksEnabled(bool enabled) {
    for (ucWebbyLink* link : {cmdImportCSV, cmdUserGuide, ucwlSaveGuide})
        ReportButtons::enableButton(*link, enabled);
}

void FrmMain::setBusy(bool busy) {
    LstHistory()->setEnabled(!busy);
    CmdClose()->setEnabled(!busy);
    noProject_->setEnabled(!busy);
}

void FrmMain::DisableForm() {
    gsCurrentProc = "FrmMain_DisableForm";
    if (QWidget* focus = focusWidget(); focus && page_->isAncestorOf(focus))
        focusBefore_ = focus;
    page_->setControlsEnabled(false);
    setLinksEnabled(false);
    followProject();
    progress().yield();
}

void FrmMain::EnableForm() {
    gsCurrentProc = "FrmMain_EnableForm";
    followProject();
    page_->setControlsEnabled(true);
    setLinksEnabled(true);
    if (focusBefore_ && focusBefore_->isEnabled())
        focusBefore_->setFocus();
    focusBefore_.clear();
}

void FrmMain::Setup_Dates() {
    gsCurrentProc = "FrmMain_setup_dates";
    const auto period = projectPeriod();
    page_->resetHours();
    if (!period) {
        page_->describePeriod(tr("The period of the project's calls is not known"));
        return;
    }
    page_->setPeriod(*period, !defaultsRun_);
    page_->describePeriod(tr("The project holds calls from %1 to %2")
                              .arg(QString::fromStdString(Value(period->start).asText()),
                                   QString::fromStdString(Value(period->end).asText())));
}

void FrmMain::Setup_Inbound_List() {
    page_->offer(::Setup_Inbound_List());
}

void FrmMain::Setup_Location_List() {
    page_->offer(::Setup_Location_List());
}

void FrmMain::resetChoices() {
    page_->resetChoices();
}

void FrmMain::restoreMultiMaps(const MultiMapSettings& settings) {
    page_->restoreMultiMaps(settings);
}

void FrmMain::CmdDefault_Click() {
    if (!projectIsOpen())
        return;
    defaultsRun_ = true;
    resetChoices();
    Setup_Dates();
    page_->resetHours();
    page_->clearOvernight();
    defaultsRun_ = false;
}

void FrmMain::requestReport(int index) {
    if (index == ReportButtons::chooseProject || page_->checkTyped())
        emit reportRequested(index);
}

QListWidget* FrmMain::LstHistory() const {
    return historyPanel_->list();
}

QPushButton* FrmMain::CmdClose() const {
    return uctFooter1->exitButton();
}

QLabel* FrmMain::Label8() const {
    return status_->text();
}

QProgressBar* FrmMain::Prog1() const {
    return status_->bar();
}

/// While long work runs the window, or its list of projects, is disabled, and then it stays.
void FrmMain::closeEvent(QCloseEvent* event) {
    if (!isEnabled() || !LstHistory()->isEnabled()) {
        event->ignore();
        return;
    }
    releaseSystemDatabase();
    event->accept();
    QCoreApplication::exit(0);
}

/// Escape leads from the parameters back to the projects, and from there out.
void FrmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        QWidget::keyPressEvent(event);
    else if (QWidget* focus = focusWidget(); focus && pages_->isAncestorOf(focus))
        LstHistory()->setFocus();
    else
        close();
}
