#include "help/HelpWindow.h"

#include "help/GuideBook.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr int gap = 8;
constexpr int pictureWidth = 560;

/// Reads pages and pictures of the guide.
class GuideBrowser : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type == QTextDocument::ImageResource)
            return picture(name.fileName());
        return guidePage(name.path()).html;
    }

private:
    /// As large as the pages show it: scaled by the browser it would be coarse.
    QImage picture(const QString& name) const {
        const double ratio = devicePixelRatioF();
        QImage image(guidePicturePath(name));
        image = image.scaledToWidth(static_cast<int>(pictureWidth * ratio), Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
        return image;
    }
};

QPushButton* barButton(const QString& text, const QString& tip, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoDefault(false);
    return button;
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent), txtSearch(new QLineEdit(this)), lstContents(new QListWidget(this)),
      browser(new GuideBrowser(this)) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Callscope Mapping Help"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    txtSearch->setPlaceholderText(tr("Search the guide"));
    txtSearch->setAccessibleName(tr("Search the guide"));
    txtSearch->setClearButtonEnabled(true);
    lstContents->setAccessibleName(tr("Contents"));
    browser->setAccessibleName(tr("Page"));
    browser->setOpenExternalLinks(false);
    browser->document()->setDocumentMargin(2 * gap);

    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gap);
    column->addWidget(txtSearch);
    column->addWidget(lstContents, 1);
    auto* halves = new QSplitter(this);
    halves->addWidget(left);
    halves->addWidget(browser);
    halves->setStretchFactor(1, 1);
    halves->setSizes({240, 660});
    halves->setChildrenCollapsible(false);
    auto* window = new QVBoxLayout(this);
    window->setSpacing(gap);
    window->addWidget(makeBar());
    window->addWidget(halves, 1);
    resize(920, 640);

    connect(txtSearch, &QLineEdit::textChanged, this, &HelpWindow::fillContents);
    connect(txtSearch, &QLineEdit::returnPressed, this, [this] {
        if (lstContents->count() > 0)
            showPage(lstContents->item(0)->data(Qt::UserRole).toString());
    });
    connect(lstContents, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item)
            showPage(item->data(Qt::UserRole).toString());
    });
    connect(browser, &QTextBrowser::sourceChanged, this, &HelpWindow::markPage);
    fillContents();
    showPage(guidePages().front().id);
    txtSearch->setFocus();
}

QWidget* HelpWindow::makeBar() {
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    auto* back = barButton(tr("&Back"), tr("The page before"), bar);
    auto* forward = barButton(tr("&Forward"), tr("The page after"), bar);
    auto* smaller = barButton(tr("A &−"), tr("Smaller text"), bar);
    auto* larger = barButton(tr("A &+"), tr("Larger text"), bar);
    auto* close = barButton(tr("&Close"), tr("Close the help"), bar);
    back->setEnabled(false);
    forward->setEnabled(false);
    for (QPushButton* button : {back, forward, smaller, larger})
        row->addWidget(button);
    row->addStretch(1);
    row->addWidget(close);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, browser, &QTextBrowser::forward);
    connect(smaller, &QPushButton::clicked, browser, [this] { browser->zoomOut(); });
    connect(larger, &QPushButton::clicked, browser, [this] { browser->zoomIn(); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    return bar;
}

void HelpWindow::fillContents() {
    const QSignalBlocker quiet(lstContents);
    lstContents->clear();
    for (const GuidePage* page : searchGuide(txtSearch->text())) {
        auto* item = new QListWidgetItem(page->title, lstContents);
        item->setData(Qt::UserRole, page->id);
    }
    markPage(browser->source());
}

void HelpWindow::showPage(const QString& id) {
    const QUrl page(QStringLiteral("guide:") + guidePage(id).id);
    if (browser->source() != page)
        browser->setSource(page, QTextDocument::HtmlResource);
}

void HelpWindow::markPage(const QUrl& page) {
    const QSignalBlocker quiet(lstContents);
    for (int row = 0; row < lstContents->count(); ++row) {
        if (lstContents->item(row)->data(Qt::UserRole) == page.path())
            lstContents->setCurrentRow(row);
    }
}
