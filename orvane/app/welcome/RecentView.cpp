#include "orvane/app/welcome/RecentView.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/welcome/RecentDelegate.h"
#include "orvane/app/welcome/RecentModel.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QUrl>

#include <algorithm>

namespace {

/// The files whose names have all words of a text.
class FoundFiles : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setWords(const QStringList& words)
    {
        m_words = words;
        invalidateRowsFilter();
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QString text = sourceModel()->index(row, 0, parent).data(RecentModel::SearchRole).toString();
        return std::ranges::all_of(
            m_words, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
    }

private:
    QStringList m_words;
};

} // namespace

RecentView::RecentView(RecentModel& model, QWidget* parent)
    : QListView(parent)
    , m_model(model)
    , m_found(new FoundFiles(this))
    , m_open(add("recent.open", nullptr))
    , m_openInNewWindow(add("recent.openInNewWindow", nullptr))
    , m_showInFolder(add("recent.showInFolder", &RecentView::showInFolder))
    , m_pin(add("recent.pin", &RecentView::togglePin))
    , m_remove(add("recent.remove", &RecentView::remove))
{
    m_found->setSourceModel(&model);
    setModel(m_found);
    setItemDelegate(new RecentDelegate(this));
    setViewMode(IconMode);
    setMovement(Static);
    setDragEnabled(true); // after the movement, which decides about it
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setMouseTracking(true);
    setFrameShape(NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    viewport()->setAutoFillBackground(false);
    m_openInNewWindow->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
    m_remove->setShortcut(QKeySequence(Qt::Key_Delete));
    connect(m_open, &QAction::triggered, this, [this] { Q_EMIT openRequested(currentFile()); });
    connect(m_openInNewWindow, &QAction::triggered, this, [this] { Q_EMIT openInNewWindowRequested(currentFile()); });
    connect(this, &QListView::clicked, this,
        [this](const QModelIndex& index) { Q_EMIT openRequested(index.data(RecentModel::FileNameRole).toString()); });
    connect(m_found, &QAbstractItemModel::modelReset, this, &RecentView::updateActions);
    connect(m_found, &QAbstractItemModel::dataChanged, this, &RecentView::updateActions);
    orvane::followLanguage(this, [this] { setTexts(); });
    updateGrid();
    updateActions();
}

QAction* RecentView::add(const char* name, void (RecentView::*run)())
{
    auto* const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcutContext(Qt::WidgetShortcut);
    if (run != nullptr)
        connect(action, &QAction::triggered, this, run);
    addAction(action);
    return action;
}

void RecentView::setTexts()
{
    setAccessibleName(tr("Recent files"));
    m_open->setText(tr("&Open Recent File"));
    m_open->setStatusTip(tr("Opens the marked file of the start page"));
    m_openInNewWindow->setText(tr("Open in &New Window"));
    m_openInNewWindow->setStatusTip(tr("Opens the marked file of the start page in another window"));
    m_showInFolder->setText(tr("&Show in Folder"));
    m_showInFolder->setStatusTip(tr("Opens the folder of the marked file in the file manager"));
    m_remove->setText(tr("&Remove from List"));
    m_remove->setStatusTip(tr("Takes the marked file off the recent files; the file itself stays"));
    updateActions();
}

void RecentView::search(const QString& text)
{
    static_cast<FoundFiles*>(m_found)->setWords(text.split(u' ', Qt::SkipEmptyParts));
    updateActions();
}

QString RecentView::currentFile() const
{
    return currentIndex().data(RecentModel::FileNameRole).toString();
}

QSize RecentView::minimumSizeHint() const
{
    return RecentDelegate::tileSize(fontMetrics()) + QSize(2 * orvane::look::unit(fontMetrics()), 0);
}

void RecentView::updateGrid()
{
    setGridSize(RecentDelegate::tileSize(fontMetrics()));
}

// Only what is seen is looked at.
void RecentView::paintEvent(QPaintEvent* event)
{
    for (int row = 0; row < m_found->rowCount(); ++row) {
        const QModelIndex index = m_found->index(row, 0);
        const QRect place = visualRect(index);
        if (place.top() > viewport()->height())
            break;
        if (place.intersects(viewport()->rect()))
            m_model.look(m_found->mapToSource(index).row());
    }
    QListView::paintEvent(event);
}

void RecentView::contextMenuEvent(QContextMenuEvent* event)
{
    QModelIndex index = indexAt(event->pos());
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        index = currentIndex();
        place = viewport()->mapToGlobal(visualRect(index).center());
    }
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    auto* const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("recentFileMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions({m_open, m_openInNewWindow, m_showInFolder});
    menu->addSeparator();
    menu->addActions({m_pin, m_remove});
    menu->setDefaultAction(m_open);
    menu->popup(place);
}

void RecentView::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && currentIndex().isValid()) {
        Q_EMIT openRequested(currentFile());
        return;
    }
    QListView::keyPressEvent(event);
}

void RecentView::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGrid();
}

void RecentView::showEvent(QShowEvent* event)
{
    QListView::showEvent(event);
    updateActions();
}

void RecentView::hideEvent(QHideEvent* event)
{
    QListView::hideEvent(event);
    updateActions();
}

// Something is marked as soon as the keys come here, so that they have something to work on.
void RecentView::focusInEvent(QFocusEvent* event)
{
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        setCurrentIndex(m_found->index(0, 0));
    QListView::focusInEvent(event);
}

void RecentView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    updateActions();
}

void RecentView::updateActions()
{
    const QString reason
        = currentIndex().isValid() && isVisible() ? QString() : tr("Mark a recent file on the start page first.");
    for (QAction* const action : {m_open, m_openInNewWindow, m_showInFolder, m_pin, m_remove})
        orvane::setReason(*action, reason);
    m_pin->setText(isCurrentPinned() ? tr("Un&pin") : tr("&Pin"));
    m_pin->setStatusTip(isCurrentPinned() ? tr("Lets the marked file take its place among the recent ones again")
                                          : tr("Keeps the marked file first in the list"));
}

bool RecentView::isCurrentPinned() const
{
    return currentIndex().data(RecentModel::PinnedRole).toBool();
}

void RecentView::togglePin()
{
    const QString fileName = currentFile();
    Q_EMIT pinRequested(fileName, !isCurrentPinned());
}

// The mark stays where it was, so that several can be removed one after the other.
void RecentView::remove()
{
    const int row = currentIndex().row();
    Q_EMIT removeRequested(currentFile());
    const int last = m_found->rowCount() - 1;
    if (last >= 0)
        setCurrentIndex(m_found->index(std::min(row, last), 0));
}

void RecentView::showInFolder()
{
    const QString folder = currentFile().section(u'/', 0, -2) + u'/';
    if (!QDesktopServices::openUrl(QUrl::fromEncoded(orvane::toFileUrl(folder))))
        Q_EMIT failed(tr("%1 can't be shown: no file manager can be started.").arg(folder));
}
