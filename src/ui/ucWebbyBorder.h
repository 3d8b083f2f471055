#pragma once

#include <QWidget>

/// A white panel with rounded corners, the parent of what belongs together.
class ucWebbyBorder : public QWidget {
    Q_OBJECT

public:
    explicit ucWebbyBorder(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
