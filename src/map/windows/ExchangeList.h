#pragma once

#include <QListWidget>

#include <string>
#include <vector>

/// Names in the order given. Typing goes to the first that begins so; several can be chosen and copied, one a line.
class ExchangeList : public QListWidget {
    Q_OBJECT

public:
    explicit ExchangeList(const std::vector<std::string>& names, QWidget* parent = nullptr);

    /// Hides the names that do not hold `text`, without regard to case.
    void show(const QString& text);
    /// The chosen names, or all that are shown where none is, to the clipboard.
    void copy() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
