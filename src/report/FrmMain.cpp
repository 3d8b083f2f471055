#include "report/FrmMain.h"

#include "core/CallHistory.h"
#include "core/FileNames.h"
#include "core/ModDeclarations.h"
#include "core/Version.h"
#include "core/cPathControl.h"
#include "report/HistoryPanel.h"
#include "report/NoProjectPage.h"
#include "report/ProjectPage.h"
#include "report/ProjectPeriod.h"
#include "report/ReleaseSystemDatabase.h"
#include "report/ReportStatus.h"
#include "ui/AppIcon.h"
#include "ui/Skin.h"
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
      historyPanel_(new HistoryPanel(this)), pages_(new QStackedWidget), projectPage_(new ProjectPage),
      status_(new ReportStatus(this)), uctFooter1(new uctFooter(this)) {
    setObjectName(QStringLiteral("FrmMain"));
    uctHeader1->setObjectName(QStringLiteral("uctHeader1"));
    uctHeader1->sloganLabel()->setObjectName(QStringLiteral("lblSlogan"));
    uctHeader1->pictureLabel()->setObjectName(QStringLiteral("imgGlobe"));
    uctFooter1->setObjectName(QStringLiteral("uctFooter1"));
    Label3->setObjectName(QStringLiteral("Label3"));
    CmdClose()->setObjectName(QStringLiteral("CmdClose"));
    arrange();
    connectControls();
    Form_Load();
}

void FrmMain::Form_Load() {
    setWindowTitle(QString::fromStdString(std::string(programTitle) + " v" + gsVersion));
    setWindowIcon(appIcon());
    uctHeader1->setTitle(QString::fromUtf8(programTitle));
    uctHeader1->SetPicture(appIcon());
    CmdClose()->setText(tr("&Close"));
    CmdClose()->setToolTip(tr("Close the program"));
    readHistory();
    showProject();
    LstHistory()->setFocus();
}

void FrmMain::arrange() {
    auto* middle = new QScrollArea(this);
    middle->setObjectName(QStringLiteral("Frame1"));
    middle->setWidgetResizable(true);
    middle->setFrameShape(QFrame::NoFrame);
    middle->setFocusPolicy(Qt::NoFocus);
    middle->viewport()->setAutoFillBackground(false);
    pages_->addWidget(new NoProjectPage);
    pages_->addWidget(projectPage_);
    middle->setWidget(pages_);
    pages_->setAutoFillBackground(false);
    historyPanel_->setMinimumWidth(160);
    historyPanel_->setMaximumWidth(280);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(16, 16, 16, 8);
    body->setSpacing(16);
    body->addWidget(historyPanel_, 1);
    body->addWidget(middle, 3);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(uctHeader1);
    column->addLayout(body, 1);
    column->addWidget(status_);
    column->addWidget(uctFooter1);
    setMinimumSize(560, 360);
    resize(1160, 720);
}

void FrmMain::connectControls() {
    connect(CmdClose(), &QPushButton::clicked, this, &QWidget::close);
    connect(historyPanel_, &HistoryPanel::rowChosen, this, &FrmMain::historyRowChosen);
}

void FrmMain::readHistory() {
    const std::string folder = gPaths ? gPaths->ApplicationDataPath : std::string();
    historyPanel_->showRows(CallHistory::readRows(fileInFolder(folder, CallHistory::fileName)));
}

void FrmMain::showProject() {
    const bool open = gdbProject != nullptr;
    Label3->setText(open ? QString::fromStdString(CallHistory::shortName(gsProjectPath)) : tr("Please select a file"));
    setRole(*Label3, open ? "detail" : "hint");
    if (open)
        projectPage_->showProject(gsProjectPath, projectPeriod());
    pages_->setCurrentIndex(open ? 1 : 0);
}

QListWidget* FrmMain::LstHistory() const {
    return historyPanel_->list();
}

QPushButton* FrmMain::CmdClose() const {
    return uctFooter1->exitButton();
}

/// While long work runs the window is disabled, and then it stays.
void FrmMain::closeEvent(QCloseEvent* event) {
    if (!isEnabled()) {
        event->ignore();
        return;
    }
    releaseSystemDatabase();
    event->accept();
    QCoreApplication::exit(0);
}

void FrmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}
