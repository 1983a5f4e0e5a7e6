#include "orvane/app/help/HelpWindow.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/help/HelpBrowser.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QString geometryKey = QStringLiteral("help/geometry");
const QString splitterKey = QStringLiteral("help/splitter");
constexpr int fileRole = Qt::UserRole;
constexpr double listPart = 0.26;

} // namespace

HelpWindow::HelpWindow(AppSettings& settings, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_settings(settings)
    , m_splitter(new QSplitter(this))
    , m_search(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_browser(new HelpBrowser(this))
    , m_message(new QLabel(this))
{
    setObjectName(QStringLiteral("helpWindow"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* const toolBar = new QToolBar(this);
    layout->addWidget(toolBar);
    layout->addWidget(m_splitter, 1);
    auto* const left = new QWidget(this);
    auto* const column = new QVBoxLayout(left);
    column->setContentsMargins(2 * unit, 2 * unit, unit, 2 * unit);
    column->setSpacing(unit);
    m_search->setObjectName(QStringLiteral("helpSearch"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    column->addWidget(m_search);
    m_list->setObjectName(QStringLiteral("helpList"));
    m_list->setHeaderHidden(true);
    m_list->setColumnCount(1);
    m_list->setUniformRowHeights(true);
    column->addWidget(m_list, 1);
    m_message->setObjectName(QStringLiteral("helpMessage"));
    m_message->setWordWrap(true);
    m_message->hide();
    column->addWidget(m_message);
    m_browser->setObjectName(QStringLiteral("helpPage"));
    m_splitter->addWidget(left);
    m_splitter->addWidget(m_browser);
    m_splitter->setStretchFactor(1, 1);
    buildToolBar(toolBar);
    fillList({});

    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &HelpWindow::choose);
    connect(m_list, &QTreeWidget::itemClicked, this, &HelpWindow::choose);
    connect(m_browser, &QTextBrowser::sourceChanged, this, &HelpWindow::showPlace);
    connect(m_browser, &QTextBrowser::historyChanged, this, &HelpWindow::showPlace);
    connect(m_browser, &HelpBrowser::linkFailed, this, [this](const QString& message) {
        m_message->setText(message);
        m_message->show();
    });
    const QSize room = screen()->availableSize() * 0.85;
    const int letter = fontMetrics().averageCharWidth();
    resize(std::min(letter * 150, room.width()), std::min(orvane::look::rowHeight(fontMetrics()) * 32, room.height()));
    m_splitter->setSizes({static_cast<int>(width() * listPart), static_cast<int>(width() * (1 - listPart))});
    restoreGeometry(settings.value(geometryKey).toByteArray());
    m_splitter->restoreState(settings.value(splitterKey).toByteArray());
}

HelpWindow::~HelpWindow()
{
    m_settings.setValue(geometryKey, saveGeometry());
    m_settings.setValue(splitterKey, m_splitter->saveState());
    m_search->removeEventFilter(this);
}

void HelpWindow::showPage(const QString& address)
{
    show();
    raise();
    activateWindow();
    m_browser->setSource(m_pages.address(address));
    m_browser->setFocus();
}

bool HelpWindow::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_search || (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return QWidget::eventFilter(object, event);
    if (event->type() == QEvent::ShortcutOverride) {
        // Escape clears the line before it closes the window.
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && !m_search->text().isEmpty())
            event->accept();
        return false;
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        m_list->setFocus();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_browser->goToWord(true);
        return true;
    case Qt::Key_Escape:
        if (m_search->text().isEmpty())
            return false;
        m_search->clear();
        return true;
    default:
        return false;
    }
}

void HelpWindow::buildToolBar(QToolBar* toolBar)
{
    toolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_back = add(toolBar, "help.back", QKeySequence::Back);
    m_forward = add(toolBar, "help.forward", QKeySequence::Forward);
    QAction* const contents = add(toolBar, "help.home", QKeySequence(Qt::ALT | Qt::Key_Home));
    toolBar->addSeparator();
    QAction* const find = add(toolBar, "help.find", QKeySequence::Find);
    QAction* const next = add(toolBar, "help.next", QKeySequence::FindNext);
    QAction* const previous = add(toolBar, "help.previous", QKeySequence::FindPrevious);
    toolBar->addSeparator();
    QAction* const larger = add(toolBar, "help.larger", QKeySequence::ZoomIn);
    QAction* const smaller = add(toolBar, "help.smaller", QKeySequence::ZoomOut);
    orvane::followLanguage(this, [=, this] {
        const auto say = [](QAction* action, const QString& text, const QString& tip) {
            action->setText(text);
            action->setStatusTip(tip);
            action->setToolTip({});
        };
        say(m_back, tr("Back"), tr("Goes to the page before"));
        say(m_forward, tr("Forward"), tr("Goes forward again"));
        say(contents, tr("Contents"), tr("Shows the list of all pages"));
        say(find, tr("Search"), tr("Searches all pages"));
        say(next, tr("Next"), tr("Goes to the next place that was found"));
        say(previous, tr("Previous"), tr("Goes to the previous place that was found"));
        say(larger, tr("Larger"), tr("Makes the letters larger"));
        say(smaller, tr("Smaller"), tr("Makes the letters smaller"));
        m_search->setPlaceholderText(tr("Search all pages"));
        m_search->setAccessibleName(tr("Search all pages"));
        m_list->setAccessibleName(tr("Pages"));
        m_browser->setAccessibleName(tr("Page"));
        showPlace();
    });
    connect(m_back, &QAction::triggered, m_browser, &QTextBrowser::backward);
    connect(m_forward, &QAction::triggered, m_browser, &QTextBrowser::forward);
    connect(contents, &QAction::triggered, this, [this] { showPage(orvane::HelpPages::contents()); });
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    connect(next, &QAction::triggered, this, [this] { m_browser->goToWord(true); });
    connect(previous, &QAction::triggered, this, [this] { m_browser->goToWord(false); });
    connect(larger, &QAction::triggered, this, [this] { zoom(1); });
    connect(smaller, &QAction::triggered, this, [this] { zoom(-1); });
    auto* const close = new QAction(this);
    close->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
}

QAction* HelpWindow::add(QToolBar* toolBar, const char* name, const QKeySequence& key)
{
    QAction* const action = toolBar->addAction(QString());
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    return action;
}

void HelpWindow::search(const QString& text)
{
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    fillList(words);
    m_browser->setWords(words);
    if (words.isEmpty() || m_list->topLevelItemCount() == 0)
        return;
    // The page that is shown stays if it has the words.
    if (m_list->currentItem() == nullptr)
        m_list->setCurrentItem(m_list->topLevelItem(0));
    m_browser->moveCursor(QTextCursor::Start);
    m_browser->goToWord(true);
}

void HelpWindow::fillList(const QStringList& words)
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    m_list->setRootIsDecorated(words.isEmpty());
    QTreeWidgetItem* group = nullptr;
    const QList<orvane::HelpHit> hits = m_pages.find(words);
    for (const orvane::HelpHit& hit : hits) {
        if (words.isEmpty() && (group == nullptr || group->text(0) != hit.page->group)) {
            group = new QTreeWidgetItem(m_list, {hit.page->group});
            group->setFlags(Qt::ItemIsEnabled);
            group->setExpanded(true);
        }
        QTreeWidgetItem* const item = words.isEmpty() ? new QTreeWidgetItem(group) : new QTreeWidgetItem(m_list);
        item->setText(
            0, words.isEmpty() ? hit.page->title : tr("%1 (%2)").arg(hit.page->title, orvane::countText(hit.count)));
        item->setToolTip(0, hit.page->summary);
        item->setData(0, fileRole, hit.page->file);
    }
    m_message->setText(tr("No page has all these words."));
    m_message->setVisible(hits.isEmpty());
    showPlace();
}

void HelpWindow::choose(const QTreeWidgetItem* item)
{
    if (item == nullptr || item->data(0, fileRole).isNull())
        return;
    const QUrl address = m_pages.address(item->data(0, fileRole).toString());
    if (m_browser->source().adjusted(QUrl::RemoveFragment) != address)
        m_browser->setSource(address);
}

// The row of the page that is shown, and where back and forward lead.
void HelpWindow::showPlace()
{
    const QSignalBlocker blocker(m_list);
    const orvane::HelpPage* const page = m_pages.pageAt(m_browser->source());
    QTreeWidgetItem* current = nullptr;
    for (QTreeWidgetItemIterator item(m_list); *item != nullptr; ++item) {
        if (page != nullptr && (*item)->data(0, fileRole).toString() == page->file)
            current = *item;
    }
    m_list->setCurrentItem(current);
    setWindowTitle(page == nullptr ? tr("Help") : tr("%1 — Help").arg(page->title));
    orvane::setReason(*m_back, m_browser->isBackwardAvailable() ? QString() : tr("This is the first page."));
    orvane::setReason(*m_forward, m_browser->isForwardAvailable() ? QString() : tr("This is the last page."));
}

void HelpWindow::zoom(int steps)
{
    if (steps > 0)
        m_browser->zoomIn(steps);
    else
        m_browser->zoomOut(-steps);
}
