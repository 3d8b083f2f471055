#include "map/data/windows/FrmData.h"

#include "core/CurrentProcedure.h"
#include "core/Progress.h"
#include "map/data/windows/DataGrid.h"
#include "ui/AppIcon.h"
#include "ui/OpenDocument.h"
#include "ui/Skin.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int gap = 8;
constexpr int besideColumns = 103; ///< what the window is wider than its columns, pixels
constexpr int leastWidth = 640, leastHeight = 360;

} // namespace

FrmData::FrmData(const DataTable& table, const WorkbookParameters& parameters, QWidget* parent)
    : QDialog(parent), parameters_(parameters), uctHeader1(new uctHeader(this)), uctFooter1(new uctFooter(this)),
      txtFind(new QLineEdit(this)), lblRows(new QLabel(this)), grdData(new DataGrid(table, this)) {
    setObjectName(QStringLiteral("FrmData"));
    setWindowTitle(tr("Map Data"));
    uctHeader1->setTitle(tr("Map Data"));
    uctHeader1->setDetail(QString::fromStdString(table.title));
    uctHeader1->SetPicture(appIcon());

    grdData->setObjectName(QStringLiteral("grdData"));
    grdData->setAccessibleName(tr("Figures of the areas"));
    makeSearch(static_cast<int>(table.rows.size()));
    makeFooter();
    arrange();
    fitToScreen();
}

void FrmData::makeSearch(int areas) {
    txtFind->setObjectName(QStringLiteral("txtFind"));
    txtFind->setPlaceholderText(tr("Find an area"));
    txtFind->setAccessibleName(tr("Find an area"));
    txtFind->setToolTip(tr("Goes to the area whose name begins with this text. Return goes to the next one. (Ctrl+F)"));
    txtFind->setClearButtonEnabled(true);
    areasText_ = areas == 1 ? tr("1 area")
                            : tr("%1 areas").arg(QLocale(QLocale::English, QLocale::UnitedKingdom).toString(areas));
    lblRows->setObjectName(QStringLiteral("lblRows"));
    lblRows->setProperty("role", "hint");
    lblRows->setText(areasText_);

    auto* toFind = new QShortcut(QKeySequence::Find, this);
    connect(toFind, &QShortcut::activated, txtFind, [this] {
        txtFind->setFocus(Qt::ShortcutFocusReason);
        txtFind->selectAll();
    });
    connect(txtFind, &QLineEdit::textChanged, this, [this] { find(false); });
    connect(txtFind, &QLineEdit::returnPressed, this, [this] { find(true); });
}

void FrmData::makeFooter() {
    auto* lblExcel = new ucWebbyLink(tr("&Excel"), ucWebbyLink::Kind::Outlined, this);
    lblExcel->setObjectName(QStringLiteral("lblExcel"));
    lblExcel->setToolTip(tr("Output to excel"));
    uctFooter1->RegisterButton(lblExcel);
    uctFooter1->exitButton()->setObjectName(QStringLiteral("CmdClose"));
    uctFooter1->exitButton()->setText(tr("&Close"));
    uctFooter1->exitButton()->setToolTip(tr("Close this window"));
    uctFooter1->exitButton()->setAutoDefault(false); // Return in the search must not close the window
    showParameters();
    connect(lblExcel, &ucWebbyLink::clicked, this, &FrmData::CmdExcel_Click);
    connect(uctFooter1->exitButton(), &QPushButton::clicked, this, &QDialog::accept);
}

void FrmData::showParameters() {
    QStringList details;
    for (const ParameterLine& line : parameterLines(parameters_)) {
        QString name = QString::fromStdString(line.name).trimmed();
        if (!line.value.empty() && name.endsWith('='))
            name = name.chopped(1).trimmed() + QStringLiteral(" = ") + QString::fromStdString(line.value);
        details << name;
    }
    uctFooter1->SetReportDetails(details);
}

void FrmData::arrange() {
    auto* search = new QHBoxLayout;
    search->setSpacing(2 * gap);
    txtFind->setMaximumWidth(280);
    search->addWidget(txtFind, 1);
    search->addWidget(lblRows);
    search->addStretch(1);
    auto* content = new QVBoxLayout;
    content->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    content->setSpacing(gap);
    content->addLayout(search);
    content->addWidget(grdData, 1);
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(uctHeader1);
    window->addLayout(content, 1);
    window->addWidget(uctFooter1);
    grdData->setFocus();
}

void FrmData::fitToScreen() {
    const QSize room = screen()->availableSize();
    const int width = std::max(grdData->columnsWidth() + besideColumns, leastWidth);
    const int around = sizeHint().height() - grdData->sizeHint().height();
    const int height = std::max(grdData->rowsHeight() + around + 2 * gap, leastHeight);
    resize(std::min(width, room.width()), std::min(height, room.height() * 9 / 10));
}

void FrmData::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (placed_)
        return;
    placed_ = true;
    const QRect room = screen()->availableGeometry();
    const QSize outer = frameGeometry().size();
    move(room.x() + std::max(0, (room.width() - outer.width()) / 2),
         room.y() + std::max(0, (room.height() - outer.height()) / 2));
}

void FrmData::find(bool next) {
    const bool found = txtFind->text().isEmpty() || grdData->findArea(txtFind->text(), next);
    lblRows->setText(found ? areasText_ : tr("No area has this name"));
}

void FrmData::saveWorkbook(const std::string& path) const {
    writeDataWorkbook(path, parameters_, grdData->shownTable());
}

void FrmData::CmdExcel_Click() {
    const CurrentProcedure procedure("FrmData_CmdExcel_Click");
    const Hourglass hourglass;
    logAndTell([&] {
        const std::string path = newDocumentPath("Map Data", "xlsx");
        saveWorkbook(path);
        openDocument(path);
    });
}
