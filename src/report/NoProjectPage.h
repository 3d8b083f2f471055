#pragma once

#include "ui/ucWebbyBorder.h"

class QGridLayout;
class QVBoxLayout;

/// What the main window shows while no project is open: what to do first.
class NoProjectPage : public ucWebbyBorder {
    Q_OBJECT

public:
    explicit NoProjectPage(QWidget* parent = nullptr);

signals:
    void reportRequested(int index); ///< of the button that asks for a project

private:
    void addButton(QVBoxLayout& column);
    void addPicture(QVBoxLayout& column);
    void addSteps(QVBoxLayout& column);
    void addStep(QGridLayout& grid, const QString& text);
};
