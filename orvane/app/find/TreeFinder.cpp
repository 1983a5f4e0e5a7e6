#include "orvane/app/find/TreeFinder.h"

#include "orvane/app/base/PendingEdits.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/find/FindEdit.h"
#include "orvane/app/find/FindLine.h"
#include "orvane/app/find/FindMenu.h"
#include "orvane/app/find/FoundNodes.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QAction>
#include <QApplication>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <utility>

using Direction = NodeFinder::Direction;

namespace {

constexpr std::chrono::milliseconds sliceOfUnfolding(1);

} // namespace

TreeFinder::TreeFinder(
    Session& session, ImageFolderQuestion& folders, SceneTreePanel* tree, Browse browse, QMainWindow* window)
    : QObject(window)
    , m_session(session)
    , m_tree(tree)
    , m_browse(std::move(browse))
    , m_finder(session.services())
    , m_facts(session, folders)
    , m_kept(session.settings())
    , m_line(new FindLine(tree))
    , m_marks(std::make_shared<FoundNodes>(&m_finder))
{
    tree->setHeaderWidget(m_line);
    addActions(window);
    connectLine();
    new FindMenu(m_kept, *m_line);
    connect(&m_finder, &NodeFinder::changed, this, &TreeFinder::followHits);
    connect(&m_facts, &FindFacts::changed, this, [this] {
        m_finder.setFacts(m_facts.facts());
        showState();
    });
    connect(tree, &SceneTreePanel::selectionChanged, this, &TreeFinder::showState);
    // After the tree has the scene.
    connect(&session.document(), &SceneDocument::sceneChanged, this, &TreeFinder::restart, Qt::QueuedConnection);
    orvane::followLanguage(this, [this] { showState(); });
}

TreeFinder::~TreeFinder()
{
    m_facts.setOn(false);
    m_finder.disconnect(this);
}

QAction* TreeFinder::addAction(const char* name, const char* text, const char* tip, const QKeySequence& key)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    return action;
}

void TreeFinder::addActions(QMainWindow* window)
{
    m_find = addAction("find.begin", QT_TR_NOOP("&Find Nodes"),
        QT_TR_NOOP("Searches the scene for nodes by name, class or value"), QKeySequence::Find);
    m_next = addAction(
        "find.next", QT_TR_NOOP("Find Ne&xt"), QT_TR_NOOP("Selects the next hit of the search"), Qt::Key_F3);
    m_previous = addAction("find.previous", QT_TR_NOOP("Find Pre&vious"),
        QT_TR_NOOP("Selects the previous hit of the search"), Qt::SHIFT | Qt::Key_F3);
    m_all = addAction("find.selectAll", QT_TR_NOOP("Select All &Hits"),
        QT_TR_NOOP("Selects all nodes that the search has found"), Qt::ALT | Qt::Key_Return);
    m_all->setShortcutContext(Qt::WidgetWithChildrenShortcut); // in the tree and the line
    m_tree->addAction(m_all);
    window->addActions({m_find, m_next, m_previous});
    if (auto* const menu = window->findChild<QMenu*>(QStringLiteral("editMenu"))) {
        menu->addSeparator();
        menu->addActions(actions());
    }
    m_line->setActions(m_previous, m_next);
    connect(m_find, &QAction::triggered, this, &TreeFinder::begin);
    connect(m_next, &QAction::triggered, this, [this] { goTo(Direction::Next); });
    connect(m_previous, &QAction::triggered, this, [this] { goTo(Direction::Previous); });
    connect(m_all, &QAction::triggered, this, &TreeFinder::selectAll);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget* /*old*/, const QWidget* now) { leaveKeysToFocus(now); });
}

void TreeFinder::connectLine()
{
    const FindEdit* const edit = m_line->edit();
    connect(edit, &FindEdit::textChanged, this, &TreeFinder::followText);
    connect(edit, &FindEdit::nextWanted, m_next, &QAction::trigger);
    connect(edit, &FindEdit::previousWanted, m_previous, &QAction::trigger);
    connect(edit, &FindEdit::allWanted, m_all, &QAction::trigger);
    connect(edit, &FindEdit::left, this, [this] { m_tree->view()->setFocus(); });
    connect(edit, &FindEdit::endWanted, this, [this] {
        m_tree->view()->setFocus();
        m_line->edit()->clear();
    });
    // Names are read while the user thinks of what to type.
    connect(edit, &FindEdit::entered, this, [this] {
        if (m_line->edit()->text().isEmpty())
            m_finder.search({});
    });
}

// A list or another pane may have a search of its own by the same key.
void TreeFinder::leaveKeysToFocus(const QWidget* focus)
{
    bool hasOwn = false;
    for (const QWidget* widget = focus; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        const QList<QAction*> actions = widget->actions();
        hasOwn = hasOwn || std::any_of(actions.begin(), actions.end(), [this](const QAction* action) {
            return action != m_find && action->shortcuts().contains(m_find->shortcut());
        });
    }
    m_find->setShortcutContext(hasOwn ? Qt::WidgetShortcut : Qt::WindowShortcut);
}

/// An edit belongs to the field that was selected when it began.
void TreeFinder::commitEdit()
{
    if (!m_line->edit()->hasFocus())
        orvane::commitPendingEdit();
}

void TreeFinder::begin()
{
    commitEdit();
    for (QWidget* widget = m_line; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget())
        widget->show(); // the dock may be closed
    m_line->edit()->setFocus(Qt::ShortcutFocusReason);
    m_line->edit()->selectAll();
}

void TreeFinder::end()
{
    m_wanted.reset();
    m_facts.setOn(false);
    m_finder.end();
    m_tree->setMarks(nullptr);
    if (m_folds) {
        m_tree->restoreFolds(*m_folds);
        const QModelIndex selected = m_tree->selected();
        m_tree->unfoldTo(m_tree->model()->path(selected));
        if (selected.isValid())
            m_tree->view()->scrollTo(selected);
    }
    m_folds.reset();
}

void TreeFinder::followText(const QString& text)
{
    const meridane::QueryDraft draft = meridane::Query::parseDraft(text.toStdString());
    m_line->setNote({}, FindLine::Tone::Quiet);
    m_wanted.reset();
    m_isWrapped = false;
    if (draft.error) {
        m_line->setNote(tr("Character %1: %2")
                            .arg(orvane::toQString(text.toStdString().substr(0, draft.error->position)).size() + 1)
                            .arg(orvane::toolkitText(orvane::toQString(draft.error->message))),
            FindLine::Tone::Error);
        return; // the last query that made sense stays
    }
    if (draft.missing)
        m_line->setNote(orvane::toolkitText(orvane::toQString(draft.missing->message)), FindLine::Tone::Quiet);
    if (draft.query.isEmpty()) {
        end();
        if (m_line->edit()->hasFocus())
            m_finder.search({});
        showState();
        return;
    }
    if (!m_folds)
        m_folds = m_tree->foldState();
    else
        m_tree->restoreFolds(*m_folds);
    m_unfolded = 0;
    m_isFolding = false;
    m_isScrolled = false;
    m_rows = m_tree->model()->rowCount();
    for (const QPersistentModelIndex& index : m_folds->unfolded())
        m_rows += m_tree->model()->rowCount(index);
    m_facts.setOn(draft.query.needsFacts());
    m_finder.search(draft.query);
    m_finder.setFacts(m_facts.facts());
    showState();
}

void TreeFinder::restart()
{
    m_folds.reset();
    m_finder.prepare();
    followText(m_line->edit()->text());
}

void TreeFinder::followHits()
{
    if (m_line == nullptr)
        return;
    if (!m_finder.query().isEmpty()) {
        m_tree->setMarks(m_marks);
        if (!m_isUnfolding)
            unfoldHits();
        scrollToFirst();
        if (m_wanted)
            goTo(*std::exchange(m_wanted, std::nullopt));
    }
    showState();
}

void TreeFinder::unfoldHits()
{
    m_isUnfolding = false;
    const meridane::WorkBudget budget(sliceOfUnfolding);
    m_unfolded = std::min(m_unfolded, m_finder.count()); // hits may have gone since
    for (; m_unfolded < m_finder.count() && !m_isFolding; ++m_unfolded) {
        if (m_finder.isBesideTheOneBefore(m_unfolded))
            continue;
        if (budget.isSpent()) {
            m_isUnfolding = true;
            QMetaObject::invokeMethod(this, &TreeFinder::unfoldHits, Qt::QueuedConnection);
            return;
        }
        m_isFolding = !unfold(m_finder.path(m_unfolded));
    }
}

/// Unfolds what leads to a node. Returns false if the tree would have too many rows then.
bool TreeFinder::unfold(std::span<NxNode* const> path)
{
    for (std::size_t length = 1; length < path.size(); ++length) {
        const QModelIndex index = m_tree->model()->indexOfPath(path.first(length));
        if (!index.isValid())
            return true; // the scene has changed, and the search follows it
        if (m_tree->view()->isExpanded(index))
            continue;
        const std::size_t rows = m_tree->model()->node(index)->getChildren().size();
        if (rows + static_cast<std::size_t>(m_rows) > mostRowsUnfolded)
            return false;
        m_rows += static_cast<int>(rows);
        m_tree->unfoldTo(path.first(length + 1));
    }
    return true;
}

void TreeFinder::scrollToFirst()
{
    if (m_isScrolled || m_finder.count() == 0)
        return;
    m_isScrolled = true;
    const NxNode* const selected = m_tree->selectedNode();
    const bool isAtHit = selected != nullptr && m_finder.isHit(*selected);
    QModelIndex shown = isAtHit ? m_tree->selected() : m_tree->model()->indexOfPath(m_finder.path(0));
    // To scroll to a row that is folded away would unfold it.
    for (QModelIndex group = shown.parent(); group.isValid(); group = group.parent()) {
        if (!m_tree->view()->isExpanded(group))
            shown = group;
    }
    if (shown.isValid())
        m_tree->view()->scrollTo(shown);
}

/// Whether all hits are known.
bool TreeFinder::isComplete() const
{
    return m_finder.isComplete() && (!m_finder.query().needsFacts() || m_facts.isSettled());
}

QString TreeFinder::countText() const
{
    const QLocale locale;
    const auto number = [&locale](std::size_t count) { return locale.toString(static_cast<qulonglong>(count)); };
    const std::size_t count = m_finder.count();
    const bool isComplete = this->isComplete();
    const QString all = isComplete ? number(count) : tr("%1\u2026").arg(number(count));
    const NxNode* const selected = m_tree->selectedNode();
    const auto place = selected != nullptr ? m_finder.place(*selected) : std::nullopt;
    if (place)
        return tr("%1 of %2").arg(number(*place + 1), all);
    if (count == 0)
        return isComplete ? tr("No hits") : tr("Searching\u2026");
    return count == 1 && isComplete ? tr("1 hit") : tr("%1 hits").arg(all);
}

void TreeFinder::showState()
{
    if (m_line == nullptr)
        return;
    const bool isOn = !m_finder.query().isEmpty();
    const bool hasHits = isOn && m_finder.count() > 0;
    for (QAction* const action : {m_next, m_previous, m_all}) {
        action->setEnabled(hasHits || (isOn && action != m_all));
        action->setToolTip(isOn ? action->statusTip() : tr("Nothing is searched for"));
    }
    m_line->setCount(isOn ? countText() : QString());
    if (!isOn || m_line->edit()->text().isEmpty())
        return;
    const meridane::QueryDraft draft = meridane::Query::parseDraft(m_line->edit()->text().toStdString());
    if (draft.error || draft.missing)
        return; // which is said already
    QString note;
    if (m_finder.isComplete() && !isComplete())
        note = tr("The scene is being checked.");
    else if (m_isWrapped)
        note = tr("Went on at the other end");
    else if (m_isFolding)
        note = tr("Some hits are folded, since there are many; going to one unfolds it.");
    m_line->setNote(note, FindLine::Tone::Quiet);
}

void TreeFinder::goTo(Direction direction)
{
    commitEdit();
    m_isWrapped = false;
    if (m_finder.query().isEmpty())
        return;
    std::optional<std::size_t> place = m_finder.beside(m_tree->selectedNode(), direction);
    if (!place && !isComplete()) {
        m_wanted = direction;
        return;
    }
    if (!place && m_finder.count() > 0) {
        m_isWrapped = m_finder.count() > 1;
        place = m_finder.beside(nullptr, direction);
    }
    if (place)
        goTo(*place);
    showState();
}

void TreeFinder::goTo(std::size_t place)
{
    const std::vector<NxNode*> path = m_finder.path(place);
    const QModelIndex index = m_tree->model()->indexOfPath(path);
    if (!index.isValid())
        return; // the scene has changed, and the search follows it
    m_tree->unfoldTo(path);
    m_browse(index, m_finder.query().firstField(*m_tree->model()->node(index), m_finder.facts()));
    m_tree->view()->scrollTo(index);
}

void TreeFinder::selectAll()
{
    commitEdit();
    if (m_finder.count() > 0)
        m_tree->selection().select(m_finder.hits());
}
