#include "animation/windows/FrmAnimate.h"

#include "animation/AnimationTyping.h"
#include "animation/windows/NumberBox.h"
#include "core/Prompts.h"
#include "report/panels/DTPicker.h"
#include "report/panels/OptionGroup.h"
#include "ui/AppIcon.h"
#include "ui/ElidedLabel.h"
#include "ui/modBranding.h"
#include "ui/ucWebbyBorder.h"
#include "ui/uctHeader.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int gap = 8;

QStringList texts(std::span<const std::string_view> rows) {
    QStringList list;
    for (const std::string_view row : rows)
        list.append(QString::fromUtf8(row.data(), static_cast<qsizetype>(row.size())));
    return list;
}

void keepRoom(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

QLabel* labelFor(QWidget* control, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setBuddy(control);
    return label;
}

} // namespace

FrmAnimate::FrmAnimate(const ReportParameters& parameters, MapPeriods& periods, QWidget* parent)
    : QDialog(parent), setup_(parameters, periods), choices_(new QWidget(this)), DTPicker1{},
      OptPeriod(new OptionGroup(QStringLiteral("OptPeriod"), OptionGroup::Needs::Nothing, this)),
      CmbDataPeriod(new QComboBox(this)),
      CmbFrames(new NumberBox(QStringLiteral("CmbFrames"), tr("Number of frames"), framesFault, this)),
      CmbInterval(new NumberBox(QStringLiteral("CmbInterval"), tr("Display interval for frames, in seconds"),
                                intervalFault, this)),
      CmdApply(new QPushButton(tr("&Apply"), this)), cmdCancel(new QPushButton(tr("Cancel"), this)),
      Label7(new ElidedLabel(this)), Prog1(new QProgressBar(this)), secondRow_(new QLabel(this)),
      outline_(new ElidedLabel(this)) {
    setObjectName(QStringLiteral("FrmAnimate"));
    setWindowTitle(tr("Animate Map"));
    setModal(true);
    makePickers();
    makeLists();
    brandWindow(*this);
    arrange();
    setFormFonts(*this);
    connectControls();
    start(setup_.presets());
}

void FrmAnimate::makePickers() {
    const QString spoken[] = {tr("Start date"), tr("Start time"), tr("End date"), tr("End time")};
    const QString tips[] = {tr("First date of the first frame"), tr("Time of day at which the first frame starts"),
                            tr("Date by which the last frame ends"), tr("Time of day by which the last frame ends")};
    for (int i = 0; i < 4; ++i) {
        const auto holds = i % 2 == 0 ? DTPicker::Holds::Day : DTPicker::Holds::TimeOfDay;
        auto* picker = new DTPicker(QStringLiteral("DTPicker1_%1").arg(i), holds, this);
        picker->setAccessibleName(spoken[i]);
        picker->setToolTip(tips[i]);
        DTPicker1[static_cast<std::size_t>(i)] = picker;
    }
}

void FrmAnimate::makeLists() {
    CmbDataPeriod->setObjectName(QStringLiteral("CmbDataPeriod"));
    CmbDataPeriod->setAccessibleName(tr("Length of each frame"));
    CmbDataPeriod->setToolTip(tr("Length of each frame"));
    CmbDataPeriod->setPlaceholderText(tr("Select"));
    CmbDataPeriod->addItems(texts(dataPeriods()));
    CmbDataPeriod->setMaxVisibleItems(static_cast<int>(dataPeriods().size()));
    CmbDataPeriod->installEventFilter(this);
    CmbFrames->addItems(texts(frameCounts()));
    CmbFrames->setToolTip(tr("How many frames there are, up to 10"));
    CmbInterval->addItems(texts(displayIntervals()));
    CmbInterval->setMaxVisibleItems(static_cast<int>(displayIntervals().size()));
    CmbInterval->setToolTip(tr("For how many seconds each frame is shown, up to 30"));
    for (NumberBox* box : {CmbFrames, CmbInterval}) {
        box->lineEdit()->setPlaceholderText(tr("Select"));
        box->setWayOut(CmdApply);
        box->setWayOut(cmdCancel);
    }
}

QLayout* FrmAnimate::timeRows() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap);
    grid->addWidget(OptPeriod->add(tr("Set Start and &end date/time"), choices_), 0, 0, 1, 3);
    grid->addWidget(OptPeriod->add(tr("Set Startdate/time and &Period"), choices_), 1, 0, 1, 3);
    grid->setRowMinimumHeight(2, gap);
    grid->addWidget(labelFor(DTPicker1[0], tr("&Start"), choices_), 3, 0);
    grid->addWidget(DTPicker1[0], 3, 1);
    grid->addWidget(DTPicker1[1], 3, 2);
    grid->addWidget(secondRow_, 4, 0);
    grid->addWidget(DTPicker1[2], 4, 1);
    grid->addWidget(CmbDataPeriod, 4, 1);
    grid->addWidget(DTPicker1[3], 4, 2);
    keepRoom(*DTPicker1[3]);
    grid->setColumnMinimumWidth(0, 96);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* FrmAnimate::frameRows() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap);
    grid->addWidget(labelFor(CmbFrames, tr("&Number of frames"), choices_), 0, 0);
    grid->addWidget(CmbFrames, 0, 1);
    grid->addWidget(labelFor(CmbInterval, tr("Display &interval for Frames (Seconds)"), choices_), 1, 0);
    grid->addWidget(CmbInterval, 1, 1);
    grid->setColumnStretch(0, 1);
    for (NumberBox* box : {CmbFrames, CmbInterval})
        box->setFixedWidth(112);
    return grid;
}

QLayout* FrmAnimate::buttons() {
    CmdApply->setObjectName(QStringLiteral("CmdApply"));
    CmdApply->setProperty("kind", "primary");
    CmdApply->setDefault(true);
    CmdApply->setToolTip(tr("Count the calls of each frame and go back to the map"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);
    cmdCancel->setToolTip(tr("Go back to the map without an animation"));
    auto* row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addStretch(1);
    for (QPushButton* button : {CmdApply, cmdCancel}) {
        button->setMinimumWidth(104);
        row->addWidget(button);
    }
    return row;
}

void FrmAnimate::arrange() {
    auto* header = new uctHeader(this);
    header->setHeaderType(uctHeader::Style::Prompt);
    header->setTitle(windowTitle());
    header->SetPicture(appIcon());
    outline_->setObjectName(QStringLiteral("lblOutline"));
    outline_->setProperty("role", "hint");
    Label7->setObjectName(QStringLiteral("Label7"));
    Prog1->setObjectName(QStringLiteral("Prog1"));
    Prog1->setAccessibleName(tr("Progress of the frames"));
    Prog1->setTextVisible(false);
    for (QWidget* part : {static_cast<QWidget*>(Label7), static_cast<QWidget*>(Prog1)}) {
        keepRoom(*part);
        part->hide();
    }

    const auto panel = [this](QLayout* rows) {
        auto* border = new ucWebbyBorder(choices_);
        border->setLayout(rows);
        rows->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
        return border;
    };
    auto* choices = new QVBoxLayout(choices_);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->setSpacing(gap);
    choices->addWidget(panel(timeRows()));
    choices->addWidget(panel(frameRows()));
    choices->addWidget(outline_);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(3 * gap, 2 * gap, 3 * gap, 2 * gap);
    body->setSpacing(gap);
    body->addWidget(choices_);
    body->addStretch(1);
    body->addWidget(Label7);
    body->addWidget(Prog1);
    body->addSpacing(gap);
    body->addLayout(buttons());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header);
    column->addLayout(body, 1);
    setMinimumWidth(456);
}

void FrmAnimate::connectControls() {
    connect(OptPeriod, &OptionGroup::picked, this, &FrmAnimate::OptPeriod_Click);
    connect(CmdApply, &QPushButton::clicked, this, &FrmAnimate::CmdApply_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &FrmAnimate::reject);
    for (DTPicker* picker : DTPicker1)
        connect(picker, &DTPicker::changed, this, &FrmAnimate::refreshOutline);
    for (QComboBox* list : {CmbDataPeriod, static_cast<QComboBox*>(CmbFrames)})
        connect(list, &QComboBox::currentTextChanged, this, &FrmAnimate::refreshOutline);
    QWidget* order[] = {OptPeriod->button(0),
                        OptPeriod->button(1),
                        DTPicker1[0],
                        DTPicker1[1],
                        DTPicker1[2],
                        DTPicker1[3],
                        CmbDataPeriod,
                        CmbFrames,
                        CmbInterval,
                        CmdApply,
                        cmdCancel};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void FrmAnimate::start(const AnimationSettings& settings) {
    const Date values[] = {settings.startDate, settings.startTime, settings.endDate, settings.endTime};
    for (std::size_t i = 0; i < DTPicker1.size(); ++i)
        DTPicker1[i]->setValue(values[i]);
    CmbDataPeriod->setCurrentIndex(CmbDataPeriod->findText(QString::fromStdString(settings.CmbDataPeriod)));
    CmbFrames->setCurrentIndex(-1);
    CmbFrames->setEditText(QString::fromStdString(settings.CmbFrames));
    CmbInterval->setCurrentIndex(-1);
    CmbInterval->setEditText(QString::fromStdString(settings.CmbInterval));
    OptPeriod->choose(settings.OptPeriod);
    OptPeriod_Click();
    DTPicker1[0]->setFocus();
}

AnimationSettings FrmAnimate::settings() const {
    AnimationSettings settings;
    settings.startDate = DTPicker1[0]->value();
    settings.startTime = DTPicker1[1]->value();
    settings.endDate = DTPicker1[2]->value();
    settings.endTime = DTPicker1[3]->value();
    settings.OptPeriod = OptPeriod->chosen();
    settings.CmbDataPeriod = CmbDataPeriod->currentText().toStdString();
    settings.CmbFrames = CmbFrames->text();
    settings.CmbInterval = CmbInterval->text();
    return settings;
}

void FrmAnimate::OptPeriod_Click() {
    const bool byEnd = OptPeriod->chosen() == 0;
    DTPicker1[2]->setVisible(byEnd);
    DTPicker1[3]->setVisible(byEnd);
    CmbDataPeriod->setVisible(!byEnd);
    secondRow_->setText(byEnd ? tr("En&d") : tr("Pe&riod"));
    secondRow_->setBuddy(byEnd ? static_cast<QWidget*>(DTPicker1[2]) : CmbDataPeriod);
    refreshOutline();
}

void FrmAnimate::refreshOutline() {
    outline_->setText(QString::fromStdString(setup_.outline(settings())));
}

void FrmAnimate::CmdApply_Click() {
    if (setup_.CmdApply_Click(settings(), *this))
        accept();
    else
        focusFirstToMend();
}

/// The list that is empty or holds what it must not.
void FrmAnimate::focusFirstToMend() {
    const AnimationSettings chosen = settings();
    if (chosen.OptPeriod != 0 && chosen.CmbDataPeriod.empty())
        CmbDataPeriod->setFocus();
    else if (framesOf(chosen) < 1 || !framesFault(chosen.CmbFrames).empty())
        CmbFrames->setFocus();
    else if (intervalOf(chosen) < 1 || !intervalFault(chosen.CmbInterval).empty())
        CmbInterval->setFocus();
    else
        DTPicker1[0]->setFocus();
}

void FrmAnimate::DisableForm() {
    working_ = true;
    for (QWidget* part : {choices_, static_cast<QWidget*>(CmdApply), static_cast<QWidget*>(cmdCancel)})
        part->setEnabled(false);
}

void FrmAnimate::EnableForm() {
    working_ = false;
    for (QWidget* part : {choices_, static_cast<QWidget*>(CmdApply), static_cast<QWidget*>(cmdCancel)})
        part->setEnabled(true);
}

void FrmAnimate::showProgress(const std::string& text, int maximum) {
    Label7->setText(QString::fromStdString(text));
    Prog1->setRange(0, maximum);
    Prog1->setValue(0);
    Label7->show();
    Prog1->show();
}

void FrmAnimate::setProgress(int value) {
    Prog1->setValue(value);
}

void FrmAnimate::hideProgress() {
    Label7->hide();
    Prog1->hide();
}

/// Escape, Cancel and the window's own button.
void FrmAnimate::reject() {
    if (!working_)
        QDialog::reject();
}

/// The lengths of the list may hold decimals, but none can be typed.
bool FrmAnimate::eventFilter(QObject* watched, QEvent* event) {
    if (watched == CmbDataPeriod && event->type() == QEvent::KeyPress) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        if (text == QStringLiteral(".") || text == QStringLiteral(",")) {
            showMessage(notWhole);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
