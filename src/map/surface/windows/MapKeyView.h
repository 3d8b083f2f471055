#pragma once

#include <QScrollArea>

class MapKey;

/// Shows a colour key in a window. As large as the key needs; where the window has less room, it scrolls and nothing is
/// cut. With nothing to list it says what will stand there. Takes over the key's Repaint; the key outlives the view.
/// Readers of the screen hear title and bands.
class MapKeyView : public QScrollArea {
    Q_OBJECT

public:
    explicit MapKeyView(MapKey& key, QWidget* parent = nullptr);
    ~MapKeyView() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    class Sheet;

    void showKey();

    MapKey& key_;
    Sheet* sheet_;
};
