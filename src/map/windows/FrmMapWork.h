#pragma once

#include "core/Progress.h"
#include "map/windows/FrmMap.h"

#include <QPointer>

/// Builds let events run: nothing may start another one, and the keyboard stays where it was.
class FrmMap::Work {
public:
    explicit Work(FrmMap& window) : window_(window), focus_(window.focusWidget()) { window_.DisableForm(); }
    ~Work() {
        window_.EnableForm();
        if (focus_)
            focus_->setFocus();
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

private:
    FrmMap& window_;
    QPointer<QWidget> focus_;
    Hourglass hourglass_;
};
