#pragma once

#include "groups/editor/MembershipQuery.h"

#include <QDialog>

#include <string>
#include <vector>

class QTreeWidget;

/// Confirms a drawn selection: the areas in a list, each with a check mark that the user can take away. Modal.
class frmGroupSelection : public QDialog {
    Q_OBJECT

public:
    frmGroupSelection(GroupAction action, const std::vector<std::string>& areas, QWidget* parent = nullptr);

    /// Those that have kept their mark, in the order of the list.
    std::vector<std::string> checkedAreas() const;

private:
    void checkAll(Qt::CheckState state);

    QTreeWidget* lvSelected;
};
