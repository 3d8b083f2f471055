#pragma once

#include "groups/editor/MembershipQuery.h"

#include <QDialog>

class QLabel;

/// Asks about an area that belongs to another group than the selected one. Modal. Escape answers No.
class frmGroupSaveQuery : public QDialog {
    Q_OBJECT

public:
    explicit frmGroupSaveQuery(QWidget* parent = nullptr);

    /// `Reference` is the area, `GroupName` the group that it is in. Returns when the user has answered.
    void QueryUser(const std::string& Reference, const std::string& GroupName, bool Adding, MembershipAnswer& Result);

private:
    QLabel* lblInfo;
    MembershipAnswer answer_ = MembershipAnswer::No;
};
