#pragma once

#include <QButtonGroup>

class QRadioButton;

/// Options of which one is set: NAME_0, NAME_1 …
class OptionGroup : public QButtonGroup {
    Q_OBJECT

public:
    enum class Needs { Nothing, Project };
    /// With Needs::Project a click without an open project is told to the user and changes nothing.
    OptionGroup(const QString& name, Needs needs, QObject* parent);

    /// The next option; the first one is set.
    QRadioButton* add(const QString& caption, QWidget* parent);
    int chosen() const { return chosen_; }
    /// Raises no signal.
    void choose(int option);
    /// Whether an option can be picked while the group is enabled.
    void setAvailable(int option, bool available);
    void setEnabled(bool enabled);

signals:
    void picked(int option); ///< by the user; not for the option that is set already

private:
    void enableOptions();
    void take(int option);

    Needs needs_;
    int chosen_ = 0;
    bool enabled_ = true;
    QList<bool> available_;
};
