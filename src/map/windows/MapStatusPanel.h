#pragma once

#include "map/MapFormState.h"

#include <QWidget>

#include <array>

class QLabel;

/// The read-outs of a map: the largest and the smallest area, the period, the parameters of the selection.
class MapStatusPanel : public QWidget {
    Q_OBJECT

public:
    explicit MapStatusPanel(QWidget* parent = nullptr);

    void showState(const MapFormState& form, bool withMinimum, const std::string& parameters);

private:
    QLabel* makeLabel(const QString& name, const QString& text, const char* role = nullptr);

    std::array<QLabel*, 6> LabelStatus{};
    std::array<QLabel*, 8> LblStatusValue{};
    QLabel* lblParameters;
};
