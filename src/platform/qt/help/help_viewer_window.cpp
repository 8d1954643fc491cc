#include "platform/qt/help/help_viewer_window.hpp"

#include <QAction>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QLineEdit>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <memory>

namespace kov::qt {
namespace {

constexpr int Width = 960, Height = 680, ListWidth = 260;

} // namespace

HelpViewerWindow::HelpViewerWindow(const QString& collection) : engine_(collection) {
    engine_.setReadOnly(true);
    setObjectName(QStringLiteral("HelpViewer"));
    setWindowTitle(tr("KOV Input Data - Help"));
    resize(Width, Height);
}

bool HelpViewerWindow::open() {
    if (!engine_.setupData() || engine_.registeredDocumentations().isEmpty()) {
        return false;
    }
    build();
    return true;
}

void HelpViewerWindow::build() {
    auto* split = new QSplitter(this);
    tabs_ = new QTabWidget(split);
    tabs_->setObjectName(QStringLiteral("HelpTabs"));
    browser_ = new HelpBrowser(engine_, split);
    auto* contents = engine_.contentWidget();
    contents->setObjectName(QStringLiteral("HelpContents"));
    tabs_->addTab(contents, tr("&Contents"));
    tabs_->addTab(makeIndex(), tr("&Search"));
    split->addWidget(tabs_);
    split->addWidget(browser_);
    split->setStretchFactor(1, 1);
    split->setSizes({ListWidth, Width - ListWidth});
    setCentralWidget(split);
    makeToolBar();
    connect(contents, &QHelpContentWidget::linkActivated, this, [this](const QUrl& page) { showPage(page); });
    connect(contents, &QHelpContentWidget::clicked, this, [this](const QModelIndex& index) {
        if (const auto* item = engine_.contentModel()->contentItemAt(index)) {
            showPage(item->url());
        }
    });
    connect(engine_.contentModel(), &QHelpContentModel::contentsCreated, contents, &QTreeView::expandAll);
}

QWidget* HelpViewerWindow::makeIndex() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    keyword_ = new QLineEdit(page);
    keyword_->setObjectName(QStringLiteral("HelpKeyword"));
    keyword_->setPlaceholderText(tr("Keyword"));
    keyword_->setClearButtonEnabled(true);
    auto* index = engine_.indexWidget();
    index->setObjectName(QStringLiteral("HelpIndex"));
    column->addWidget(keyword_);
    column->addWidget(index);
    connect(keyword_, &QLineEdit::textChanged, index, [index](const QString& text) { index->filterIndices(text, {}); });
    connect(keyword_, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, this, [this](const QHelpLink& link) { showPage(link.url); });
    connect(index, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& links) { showPage(links.constFirst().url); });
    connect(index, &QListView::clicked, index, &QHelpIndexWidget::activateCurrentItem);
    return page;
}

void HelpViewerWindow::makeToolBar() {
    auto* bar = addToolBar(tr("Pages"));
    bar->setObjectName(QStringLiteral("HelpBar"));
    bar->setMovable(false);
    auto* back = bar->addAction(tr("&Back"), browser_, &QTextBrowser::backward);
    auto* forth = bar->addAction(tr("&Forward"), browser_, &QTextBrowser::forward);
    bar->addAction(tr("&Home"), this, [this] { showContents(); });
    back->setShortcut(QKeySequence::Back);
    forth->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forth->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forth, &QAction::setEnabled);
}

void HelpViewerWindow::bringUp() {
    show();
    raise();
    activateWindow();
}

void HelpViewerWindow::showPage(const QUrl& page, const QString& anchor) {
    browser_->showPage(page, anchor.isEmpty() ? page.fragment() : anchor);
    engine_.contentWidget()->setCurrentIndex(engine_.contentWidget()->indexOf(page));
}

bool HelpViewerWindow::showContext(int context, const QString& anchor) {
    const auto pages = engine_.documentsForIdentifier(QString::number(context));
    bringUp();
    if (pages.isEmpty()) {
        showContents();
        return false;
    }
    showPage(pages.constFirst().url, anchor);
    return true;
}

void HelpViewerWindow::showContents() {
    bringUp();
    tabs_->setCurrentIndex(0);
    const auto pages = engine_.documentsForIdentifier(QStringLiteral("index"));
    if (!pages.isEmpty()) {
        showPage(pages.constFirst().url);
    }
}

void HelpViewerWindow::showSearch(const QString& keyword) {
    bringUp();
    if (browser_->source().isEmpty()) {
        showContents();
    }
    tabs_->setCurrentIndex(1);
    keyword_->setText(keyword);
    keyword_->setFocus();
}

} // namespace kov::qt

extern "C" Q_DECL_EXPORT kov::qt::HelpWindow* kovMakeHelpWindow(const QString& collection);

kov::qt::HelpWindow* kovMakeHelpWindow(const QString& collection) {
    auto window = std::make_unique<kov::qt::HelpViewerWindow>(collection);
    return window->open() ? window.release() : nullptr;
}
