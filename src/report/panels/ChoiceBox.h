#pragma once

#include "report/form/ChoiceList.h"

#include <QComboBox>

/// A list that belongs to an option: open while the option stands on it, else empty. The last valid choice comes back
/// with the option.
class ChoiceBox : public QComboBox {
    Q_OBJECT

public:
    ChoiceBox(const QString& name, const QString& spokenName, QWidget* parent = nullptr);

    /// Takes rows and first choice of another project. Nothing is chosen.
    void offer(const ChoiceList& list);
    /// The option came to stand on the list, or left it.
    void setStanding(bool standing);
    bool isStanding() const { return standing_; }
    /// Empties the list and leaves it, without remembering its choice.
    void reset();
    void setFormEnabled(bool enabled);

    std::string text() const { return currentText().toStdString(); }
    bool holdsRow() const; ///< whether the text is a row

protected:
    const std::vector<std::string>& rows() const { return rows_; }
    void wheelEvent(QWheelEvent* event) override;

private:
    void remember();
    void bringBack();
    void clearChoice();
    void enable();

    std::vector<std::string> rows_;
    std::string remembered_;
    bool standing_ = false;
    bool formEnabled_ = true;
};
