#pragma once

#include "map/calltypes/CallTypeSplit.h"

#include <QWidget>

#include <optional>

class PiePicture;

/// The pie of calls beside the map, fraPie. The pointer shows the figures of a series; who cannot see the pie is told
/// all of them. Hides itself where there is nothing to show.
class CallTypePie : public QWidget {
    Q_OBJECT

public:
    explicit CallTypePie(QWidget* parent = nullptr);

    void setSplit(std::optional<CallTypeSplit> split);
    /// Whether there is anything to show.
    bool hasSplit() const { return split_.has_value(); }

    QSize sizeHint() const override { return {320, 176}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    PiePicture picture() const;

    std::optional<CallTypeSplit> split_;
};
