#include "map/windows/FrmCallDetail.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "map/windows/ExchangeList.h"
#include "map/workbook/AreaWorkbook.h"
#include "ui/AppIcon.h"
#include "ui/OpenDocument.h"
#include "ui/ucWebbyBorder.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int gap = 8;

QLabel* sectionLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setProperty("role", "section");
    label->setWordWrap(true);
    return label;
}

/// The lines of the window that are shown, in its order.
std::vector<std::string> linesOf(const AreaDetail& detail) {
    std::vector<std::string> lines{detail.title, detail.answered,    detail.engaged, detail.rtnr,
                                   detail.other, detail.ineffective, detail.cost};
    for (const auto& line : {detail.lostCallers, detail.answeredCallers, detail.population}) {
        if (line)
            lines.push_back(*line);
    }
    if (detail.campaign) {
        const AreaDetail::Campaign& campaign = *detail.campaign;
        lines.insert(lines.end(), {campaign.costPerResponse, campaign.costPerCaller, campaign.areaCostPerAnsweredCall,
                                   campaign.areaCostPerAnsweredCaller});
    }
    return lines;
}

} // namespace

FrmCallDetail::FrmCallDetail(const AreaDetail& detail, const std::string& parameters, QWidget* parent)
    : QDialog(parent), detail_(detail), parameters_(parameters), uctHeader1(new uctHeader(this)),
      uctFooter1(new uctFooter(this)) {
    setObjectName(QStringLiteral("FrmCallDetail"));
    setWindowTitle(tr("Call Detail"));
    uctHeader1->setTitle(tr("Call Detail"));
    uctHeader1->SetPicture(appIcon());

    auto* figures = new ucWebbyBorder(this);
    auto* lines = new QVBoxLayout(figures);
    lines->setSpacing(gap);
    auto* title = sectionLabel(QString::fromStdString(detail_.title), figures);
    title->setObjectName(QStringLiteral("lblTitle"));
    lines->addWidget(title);
    addFigures(*lines);
    addCampaign(*lines);
    lines->addStretch(1);

    auto* panels = new QHBoxLayout;
    panels->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    panels->setSpacing(2 * gap);
    panels->addWidget(figures, 3);
    if (detail_.listHeading)
        panels->addWidget(exchangePanel(), 2);

    auto* lblExcel = new ucWebbyLink(tr("&Excel"), ucWebbyLink::Kind::Outlined, this);
    lblExcel->setObjectName(QStringLiteral("lblExcel"));
    lblExcel->setToolTip(tr("Output to excel"));
    uctFooter1->RegisterButton(lblExcel);
    uctFooter1->exitButton()->setText(tr("&Close"));
    uctFooter1->exitButton()->setToolTip(tr("Unload this form"));
    uctFooter1->exitButton()->setObjectName(QStringLiteral("CmdExit"));

    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->setSpacing(0);
    window->addWidget(uctHeader1);
    window->addLayout(panels, 1);
    window->addWidget(uctFooter1);
    resize(detail_.listHeading ? QSize(760, 480) : QSize(480, 440));

    connect(lblExcel, &ucWebbyLink::clicked, this, &FrmCallDetail::CmdExcel_Click);
    connect(uctFooter1->exitButton(), &QPushButton::clicked, this, &QDialog::accept);
}

void FrmCallDetail::addLine(QVBoxLayout& column, const char* name, const std::string& text) {
    auto* label = new QLabel(QString::fromStdString(text), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column.addWidget(label);
}

void FrmCallDetail::addFigures(QVBoxLayout& column) {
    addLine(column, "lblAnswered", detail_.answered);
    addLine(column, "lblEngaged", detail_.engaged);
    addLine(column, "lblRTNR", detail_.rtnr);
    addLine(column, "lblOther", detail_.other);
    addLine(column, "lblIneffective", detail_.ineffective);
    addLine(column, "lblCost", detail_.cost);
    if (detail_.lostCallers)
        addLine(column, "lblLostCallers", *detail_.lostCallers);
    if (detail_.answeredCallers)
        addLine(column, "lblAnsweredCallers", *detail_.answeredCallers);
    if (detail_.population)
        addLine(column, "lblPopulation", *detail_.population);
}

void FrmCallDetail::addCampaign(QVBoxLayout& column) {
    if (!detail_.campaign)
        return;
    column.addSpacing(gap);
    column.addWidget(sectionLabel(tr("Campaign Spend"), this));
    addLine(column, "lblCostPerResponse", detail_.campaign->costPerResponse);
    addLine(column, "lblCostPerCaller", detail_.campaign->costPerCaller);
    addLine(column, "lblTherefore1", tr("Therefore:").toStdString());
    addLine(column, "lblAreaCostPerAnsweredCall", detail_.campaign->areaCostPerAnsweredCall);
    addLine(column, "lblAreaCostPerAnsweredCaller", detail_.campaign->areaCostPerAnsweredCaller);
}

QWidget* FrmCallDetail::exchangePanel() {
    auto* panel = new ucWebbyBorder(this);
    auto* column = new QVBoxLayout(panel);
    column->setSpacing(gap);
    auto* heading = sectionLabel(QString::fromStdString(*detail_.listHeading), panel);
    heading->setObjectName(QStringLiteral("lblListHeading"));
    auto* search = new QLineEdit(panel);
    search->setObjectName(QStringLiteral("txtFind"));
    search->setPlaceholderText(tr("Find an exchange"));
    search->setAccessibleName(tr("Find an exchange"));
    search->setClearButtonEnabled(true);
    auto* list = new ExchangeList(detail_.exchanges, panel);
    list->setObjectName(QStringLiteral("List1"));
    list->setAccessibleName(heading->text());
    heading->setBuddy(list);
    column->addWidget(heading);
    column->addWidget(search);
    column->addWidget(list, 1);
    connect(search, &QLineEdit::textChanged, list, &ExchangeList::show);
    list->setFocus();
    return panel;
}

void FrmCallDetail::saveWorkbook(const std::string& path) const {
    AreaSheet sheet;
    sheet.title = detail_.title;
    sheet.parameters = parameters_;
    sheet.lines = linesOf(detail_);
    if (detail_.listHeading && gsBoundaryType != "CustomerGroups")
        sheet.exchanges = detail_.exchanges;
    writeAreaWorkbook(path, sheet);
}

void FrmCallDetail::CmdExcel_Click() {
    gsCurrentProc = "FrmCallDetail_CmdExcel_Click";
    logAndTell([&] {
        const std::string path = newDocumentPath("Call Detail", "xlsx");
        saveWorkbook(path);
        openDocument(path);
    });
}
