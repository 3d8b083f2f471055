#pragma once

#include "groups/windows/frmGroups.h"

#include <QPointer>

/// Messages and menus let events run: nothing may start beside what is being done. The keyboard goes back to where it
/// was, unless the work has put it elsewhere.
class frmGroups::Work {
public:
    explicit Work(frmGroups& window) : form_(&window), keyboard_(window.focusWidget()) { form_->DisableForm(true); }
    ~Work() {
        form_->DisableForm(false);
        if (keyboard_ && keyboard_->isEnabled())
            keyboard_->setFocus();
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    void leaveKeyboardOn(QWidget* control) { keyboard_ = control; }

private:
    frmGroups* form_;
    QPointer<QWidget> keyboard_;
};
