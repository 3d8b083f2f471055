#include "ui/WindowProgress.h"

#include "ui/FrmMessage.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 leastMilliseconds = 30; ///< between two yields, unless something is to be seen at once

int clamped(long value) {
    return static_cast<int>(std::clamp<long>(value, 0, std::numeric_limits<int>::max()));
}

/// A maximum of 0 would be an endless bar.
void setBar(QProgressBar& bar, long maximum, long value) {
    bar.setRange(0, std::max(clamped(maximum), 1));
    bar.setValue(std::min(clamped(value), bar.maximum()));
}

} // namespace

WindowProgress::WindowProgress() {
    setProgress(this);
}

WindowProgress::~WindowProgress() {
    while (hourglasses_ > 0)
        setHourglass(false);
    setProgress(nullptr);
}

void WindowProgress::showReportOn(QLabel* Label8, QProgressBar* Prog1) {
    reportText_ = Label8;
    reportBar_ = Prog1;
}

void WindowProgress::setTask(const std::string& text) {
    if (FrmMessage* window = FrmMessage::shown())
        window->setTask(QString::fromStdString(text));
    due_ = true;
}

void WindowProgress::setMessageBar(long maximum, long value) {
    if (FrmMessage* window = FrmMessage::shown())
        setBar(*window->Prog1(), maximum, value);
}

void WindowProgress::setReportBar(bool visible, long maximum, long value) {
    if (reportBar_) {
        setBar(*reportBar_, maximum, value);
        reportBar_->setVisible(visible);
    }
    if (reportText_)
        reportText_->setVisible(visible);
    due_ = true;
}

void WindowProgress::setReading(double share) {
    constexpr long whole = 1000;
    if (!beforeReading_.bar) {
        FrmMessage* window = FrmMessage::shown();
        QProgressBar* bar = window ? window->Prog1() : reportBar_.data();
        if (!bar || share >= 1)
            return;
        beforeReading_ = {bar, !bar->isHidden(), bar->maximum(), bar->value()};
        showBar(true);
    }
    QProgressBar& bar = *beforeReading_.bar;
    setBar(bar, whole, static_cast<long>(share * whole));
    if (share < 1)
        return;
    setBar(bar, beforeReading_.maximum, beforeReading_.value);
    showBar(beforeReading_.visible);
    beforeReading_ = {};
}

void WindowProgress::showBar(bool visible) {
    beforeReading_.bar->setVisible(visible);
    if (reportText_ && beforeReading_.bar == reportBar_)
        reportText_->setVisible(visible);
    due_ = true;
}

void WindowProgress::setHourglass(bool on) {
    if (on && ++hourglasses_ == 1)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else if (!on && hourglasses_ > 0 && --hourglasses_ == 0)
        QApplication::restoreOverrideCursor();
}

void WindowProgress::yield() {
    if (!due_ && sinceYield_.isValid() && sinceYield_.elapsed() < leastMilliseconds)
        return;
    due_ = false;
    QApplication::processEvents();
    sinceYield_.start();
}

PlainPointer::PlainPointer() {
    QApplication::setOverrideCursor(Qt::ArrowCursor);
}

PlainPointer::~PlainPointer() {
    QApplication::restoreOverrideCursor();
}
