#include "orvane/app/tree/TreeMemory.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QTreeView>

#include <algorithm>

namespace {

const QString treeMemoryKey = QStringLiteral("scene/trees");
/// Between the file and the three parts of an entry, and between the rows of a part. Names and files are without them.
constexpr QChar partEnd(u'\n');
constexpr QChar rowEnd(u'\t');
/// Of a name, which is only a check.
constexpr qsizetype mostOfName = 40;

QString checkOf(const NxNode& node)
{
    QString name = orvane::toQString(node.getName()).left(mostOfName);
    name.replace(partEnd, u' ').replace(rowEnd, u' ');
    return name;
}

QString fileOf(const QString& entry)
{
    return entry.section(partEnd, 0, 0);
}

} // namespace

TreeMemory::TreeMemory(Session& session, SceneTreePanel* tree)
    : QObject(tree)
    , m_session(session)
    , m_tree(tree)
{
    const SceneDocument& document = session.document();
    connect(&document, &SceneDocument::sceneAboutToChange, this, [this] {
        if (!m_session.document().isModified())
            store();
    });
    connect(&document, &SceneDocument::saved, this, &TreeMemory::store);
    connect(tree, &SceneTreePanel::sceneShown, this, &TreeMemory::restore);
    connect(tree, &SceneTreePanel::selectionChanged, this, &TreeMemory::noteSelection);
    // Before a scene is closed, everything is deselected: that isn't what the user has left.
    connect(
        tree, &SceneTreePanel::selectionChanged, this,
        [this] {
            if (!m_tree->selected().isValid())
                m_selected.clear();
        },
        Qt::QueuedConnection);
}

void TreeMemory::noteSelection()
{
    const qsizetype count = m_tree->selection().rowCount();
    if (count == 0)
        return;
    m_selected.clear();
    if (count > mostRows) // no place that the user would want to come back to
        return;
    m_selected.append(m_tree->selected());
    const QModelIndexList rows = m_tree->selection().indexes();
    for (const QModelIndex& row : rows) {
        if (row != m_tree->selected())
            m_selected.append(row);
    }
}

QString TreeMemory::entryOf(const QModelIndex& index) const
{
    QStringList rows;
    for (QModelIndex step = index; step.isValid(); step = step.parent())
        rows.prepend(QString::number(step.row()));
    return rows.join(u'.') + u' ' + checkOf(*m_tree->model()->node(index));
}

QModelIndex TreeMemory::find(const QString& entry) const
{
    SceneTreeModel& model = *m_tree->model();
    QModelIndex index;
    const QStringList rows = entry.section(u' ', 0, 0).split(u'.');
    for (const QString& row : rows) {
        model.fetchMore(index);
        bool isNumber = false;
        index = model.index(row.toInt(&isNumber), SceneTreeModel::NameColumn, index);
        if (!isNumber || !index.isValid())
            return {};
    }
    return checkOf(*model.node(index)) == entry.section(u' ', 1) ? index : QModelIndex();
}

QModelIndexList TreeMemory::findAll(const QString& part) const
{
    QModelIndexList indexes;
    const QStringList entries = part.split(rowEnd, Qt::SkipEmptyParts);
    for (const QString& entry : entries.mid(0, mostRows)) {
        if (const QModelIndex index = find(entry); index.isValid())
            indexes.append(index);
    }
    return indexes;
}

void TreeMemory::store()
{
    const SceneDocument& document = m_session.document();
    const QString& fileName = document.fileName();
    if (fileName.isEmpty() || fileName.contains(partEnd) || m_tree->model()->scene() != document.scene())
        return;
    QStringList unfolded;
    const FoldState state = m_tree->foldState();
    const QTreeView& view = *m_tree->view();
    for (const QPersistentModelIndex& index : state.unfolded()) {
        if (unfolded.size() < mostRows)
            unfolded.append(entryOf(index));
    }
    QStringList selected;
    for (const QPersistentModelIndex& row : m_selected) {
        if (row.isValid())
            selected.append(entryOf(row));
    }
    const QModelIndex top = view.indexAt(QPoint(0, 0)).siblingAtColumn(SceneTreeModel::NameColumn);
    const QString entry
        = QStringList{fileName, unfolded.join(rowEnd), selected.join(rowEnd), top.isValid() ? entryOf(top) : QString()}
              .join(partEnd);
    QStringList entries = m_session.settings().value(treeMemoryKey).toStringList();
    if (!entries.isEmpty() && entries.first() == entry)
        return;
    entries.removeIf([&fileName](const QString& other) { return fileOf(other) == fileName; });
    entries.prepend(entry);
    m_session.settings().setValue(treeMemoryKey, entries.mid(0, mostFiles));
}

void TreeMemory::restore()
{
    const SceneDocument& document = m_session.document();
    if (m_tree->model()->scene() == nullptr || document.fileName().isEmpty())
        return;
    const QStringList entries = m_session.settings().value(treeMemoryKey).toStringList();
    const auto entry = std::find_if(entries.begin(), entries.end(),
        [&document](const QString& other) { return fileOf(other) == document.fileName(); });
    if (entry == entries.end())
        return;
    constexpr qsizetype parts = 4;
    const QStringList part = entry->split(partEnd);
    if (part.size() != parts)
        return;
    const QModelIndexList unfolded = findAll(part[1]);
    m_tree->restoreFolds(FoldState({unfolded.begin(), unfolded.end()}));
    if (const QModelIndexList selected = findAll(part[2]); !selected.isEmpty())
        m_tree->selection().selectIndexes(selected);
    if (const QModelIndex top = find(part[3]); top.isValid())
        m_tree->view()->scrollTo(top, QAbstractItemView::PositionAtTop);
}
