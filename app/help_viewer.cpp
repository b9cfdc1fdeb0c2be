#include "app/help_viewer.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/base/files.h"
#include "platform/forms/icons.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

/// Name of the anchor in a heading; empty for one without.
QString anchorOf(const QTextBlock& heading) {
    for (auto part = heading.begin(); !part.atEnd(); ++part) {
        const QStringList names = part.fragment().charFormat().anchorNames();
        if (!names.isEmpty()) return names.first();
    }
    return {};
}

}  // namespace

HelpViewer::HelpViewer(QString file)
    : file_(std::move(file)),
      contents_(new QTreeWidget(this)),
      page_(new QTextBrowser(this)),
      search_(new QLineEdit(this)),
      split_(new QSplitter(this)) {
    setWindowTitle(u"Kinbook Help"_s);
    setWindowFlags(Qt::Window);
    // The program ends with its own windows; this one doesn't keep it.
    setAttribute(Qt::WA_QuitOnClose, false);
    layOut();
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) page_->setSource(QUrl(u'#' + item->data(0, Qt::UserRole).toString()));
    });
    connect(search_, &QLineEdit::returnPressed, this, [this] { search(); });
    connect(search_, &QLineEdit::textChanged, this, [this] { notFound_->setVisible(false); });
}

void HelpViewer::layOut() {
    auto* bar = new QToolBar(this);
    QAction* back = bar->addAction(platform::themeIcon(u"go-previous"_s), u"Back"_s);
    QAction* forward = bar->addAction(platform::themeIcon(u"go-next"_s), u"Forward"_s);
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, page_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, page_, &QTextBrowser::forward);
    bar->addSeparator();
    search_->setPlaceholderText(u"Search"_s);
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    search_->setMaximumWidth(260);
    bar->addWidget(search_);
    QAction* previous = bar->addAction(platform::themeIcon(u"go-up"_s), u"Previous place"_s);
    QAction* next = bar->addAction(platform::themeIcon(u"go-down"_s), u"Next place"_s);
    next->setShortcut(QKeySequence::FindNext);
    previous->setShortcut(QKeySequence::FindPrevious);
    connect(previous, &QAction::triggered, this, [this] { search(QTextDocument::FindBackward); });
    connect(next, &QAction::triggered, this, [this] { search(); });
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, search_, [this] {
        search_->setFocus();
        search_->selectAll();
    });
    addAction(find);
    new QShortcut(Qt::Key_Escape, this, [this] { close(); });
    notFound_ = bar->addWidget(new QLabel(u"Not found"_s, this));
    notFound_->setVisible(false);

    contents_->setAccessibleName(u"Contents"_s);
    contents_->setHeaderLabel(contents_->accessibleName());
    contents_->setHeaderHidden(true);
    contents_->header()->setStretchLastSection(false);
    page_->setAccessibleName(windowTitle());
    page_->setOpenLinks(true);
    page_->document()->setDocumentMargin(16);
    split_->addWidget(contents_);
    split_->addWidget(page_);
    split_->setStretchFactor(1, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(bar);
    column->addWidget(split_, 1);
    resize(960, 680);
}

void HelpViewer::open() {
    if (platform::files::fileExists(file_)) {
        page_->setSource(QUrl::fromLocalFile(file_), QTextDocument::HtmlResource);
        page_->clearHistory();
        showContents();
    } else {
        tellMissing();
    }
    // An open dialog would keep the keys from a window that isn't modal too.
    const bool overDialog = QApplication::activeModalWidget() && QApplication::activeModalWidget() != this;
    if (overDialog || !isVisible()) {
        hide();  // It may be open behind the dialog; how it stands to others changes while it is hidden.
        setWindowModality(overDialog ? Qt::ApplicationModal : Qt::NonModal);
    }
    showNormal();
    raise();
    activateWindow();
    contents_->setFocus();
}

void HelpViewer::tellMissing() {
    contents_->clear();
    page_->setPlainText(
        u"The help file is not there:\n\n%1\n\nIt belongs to the program. Lay the application folder out "
        "anew to get it back; your records are not touched by that."_s.arg(file_));
}

void HelpViewer::showContents() {
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    QTreeWidgetItem* chapter = nullptr;
    for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0) continue;
        auto* item = level == 1 || !chapter ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(chapter);
        item->setText(0, block.text());
        item->setData(0, Qt::UserRole, anchorOf(block));
        if (level == 1) chapter = item;
    }
    contents_->expandToDepth(0);
    const int besideText = 2 * contents_->frameWidth() + contents_->verticalScrollBar()->sizeHint().width();
    contents_->resizeColumnToContents(0);
    const int wide = contents_->columnWidth(0) + besideText;
    split_->setSizes({wide, width() - wide});
    contents_->setCurrentItem(contents_->topLevelItem(0));
}

void HelpViewer::search(QTextDocument::FindFlags direction) {
    const QString text = search_->text();
    if (text.isEmpty()) return;
    bool found = page_->find(text, direction);
    if (!found) {
        const QTextCursor before = page_->textCursor();
        page_->moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
        found = page_->find(text, direction);
        if (!found) page_->setTextCursor(before);
    }
    notFound_->setVisible(!found);
}

}  // namespace app
