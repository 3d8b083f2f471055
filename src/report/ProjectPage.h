#pragma once

#include "ui/ucWebbyBorder.h"

#include <optional>
#include <string>

class QLabel;
struct ProjectPeriod;

/// What the main window tells of the open project.
class ProjectPage : public ucWebbyBorder {
    Q_OBJECT

public:
    explicit ProjectPage(QWidget* parent = nullptr);

    void showProject(const std::string& path, const std::optional<ProjectPeriod>& period);

private:
    QLabel* name_;
    QLabel* path_;
    QLabel* period_;
};
