#pragma once

#include "ui/ucWebbyBorder.h"

class QVBoxLayout;

/// What the main window shows while no project is open: what to do first.
class NoProjectPage : public ucWebbyBorder {
    Q_OBJECT

public:
    explicit NoProjectPage(QWidget* parent = nullptr);

private:
    void addPicture(QVBoxLayout& column);
    void addStep(QVBoxLayout& column, int number, const QString& text);
};
