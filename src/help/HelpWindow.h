#pragma once

#include <QDialog>

class QLineEdit;
class QListWidget;
class QTextBrowser;
class QUrl;

/// The guide on the screen: its contents with a search box at the left, the page at the right.
class HelpWindow : public QDialog {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    void showPage(const QString& id);

    QLineEdit* txtSearch;
    QListWidget* lstContents;
    QTextBrowser* browser;

private:
    QWidget* makeBar();
    void fillContents();
    /// Shows in the contents that `page` is open.
    void markPage(const QUrl& page);
};
