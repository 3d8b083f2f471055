#pragma once

#include "ui/PropertyBag.h"

#include <QWidget>

class DetailList;
class QAbstractButton;
class QPushButton;
class ucWebbyLink;

/// The band at the foot of a window: a list of details at the left, and at the right the panel of registered buttons,
/// the help button and the exit button. Widths are device-independent pixels.
class uctFooter : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool ExitButtonVisible READ ExitButtonVisible WRITE setExitButtonVisible)
    Q_PROPERTY(QString ExitButtonText READ ExitButtonText WRITE setExitButtonText)
    Q_PROPERTY(QString ExitToolTipText READ ExitToolTipText WRITE setExitToolTipText)
    Q_PROPERTY(bool ExitEnabled READ ExitEnabled WRITE setExitEnabled)
    Q_PROPERTY(bool HelpVisible READ HelpVisible WRITE setHelpVisible)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(int ButtonPanelWidth READ ButtonPanelWidth)
    Q_PROPERTY(bool DetailVisible READ DetailVisible)
    Q_PROPERTY(int DetailCount READ DetailCount)

public:
    explicit uctFooter(QWidget* parent = nullptr);

    bool ExitButtonVisible() const;
    void setExitButtonVisible(bool visible);
    QString ExitButtonText() const;
    void setExitButtonText(const QString& text);
    QString ExitToolTipText() const;
    void setExitToolTipText(const QString& text);
    bool ExitEnabled() const;
    void setExitEnabled(bool enabled);
    bool HelpVisible() const;
    void setHelpVisible(bool visible); ///< false at first

    /// Takes a button of the window into the panel, behind those already there. A button is taken once.
    void RegisterButton(QAbstractButton* button);
    /// Makes a link of the window and takes it in. `name` is its object name.
    ucWebbyLink* AddLink(const char* name, const QString& caption, const QString& tip);
    /// Enables or disables all registered buttons; help and exit stay as they are.
    void EnableButtons(bool enabled);
    /// Width taken by the registered buttons that are visible.
    int ButtonPanelWidth() const;

    /// An entry at the end of the list; it ends in "..." where its room is too small. Blank ones are left out.
    void AddDetail(const QString& detail);
    /// Takes `count` entries out from index `first` on, as far as there are any.
    void RemoveDetails(int first, int count = 1);
    void ClearDetails();
    /// The parameters of the present report in the place of all details.
    void SetReportDetails(const QStringList& parameters);
    int DetailCount() const;
    /// Whether there are details and room for them; buttons come first.
    bool DetailVisible() const;
    /// The details as they are drawn.
    QStringList shownDetails() const;

    /// Works out anew whether the details have room beside the buttons.
    void CheckButtonWidth();
    void Refresh();
    /// Presses the exit button, unless it is disabled.
    void Button_Exit();

    static const StoredProperties& storedProperties();

    QPushButton* exitButton() const { return exit_; }
    QPushButton* helpButton() const { return help_; }

signals:
    void exitClicked();
    void helpClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    QList<QAbstractButton*> registeredButtons() const;
    void setDetails(const QStringList& details);

    DetailList* details_;
    QWidget* panel_;
    QPushButton* help_;
    QPushButton* exit_;
};
