#include "orvane/app/tree/SceneTreeModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/NodeSearch.h"
#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeIcons.h"
#include "orvane/app/tree/NodeMarks.h"
#include "orvane/app/tree/SceneBranch.h"
#include "orvane/app/tree/ShownNodes.h"
#include "orvane/app/tree/facts/IgnoredFields.h"
#include "orvane/app/tree/facts/NodeToolTip.h"
#include "orvane/app/tree/facts/SpokenFacts.h"

#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QFont>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

/// Of a name; the time to lay a row out grows with it.
constexpr qsizetype mostCharacters = 200;
/// What the line of an editor takes, by its default: the rest of a longer name is cut off in it.
constexpr qsizetype mostInALine = 32767;

bool canBeSeen(const NxNode& node)
{
    const NxType type = node.getTypeId();
    return type.isDerivedFrom(NxGroup::getClassTypeId()) || type.isDerivedFrom(NxMesh::getClassTypeId())
        || type.isDerivedFrom(NxLight::getClassTypeId()) || type.isDerivedFrom(NxCamera::getClassTypeId());
}

} // namespace

SceneTreeModel::SceneTreeModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_shown(std::make_unique<ShownNodes>(
          [this](SceneBranch& branch, NxNode& node, bool unfolds) { updateNode(branch, node, unfolds); }))
{
}

SceneTreeModel::~SceneTreeModel() = default;

void SceneTreeModel::setScene(NxGroup* scene)
{
    beginResetModel();
    m_shown->clear();
    m_root.reset();
    if (scene != nullptr) {
        m_root = std::make_unique<SceneBranch>(scene, nullptr, 0);
        const auto children = scene->getChildren();
        m_root->insertRows(0, {children.begin(), children.end()});
        watch(*m_root);
    }
    endResetModel();
}

NxGroup* SceneTreeModel::scene() const
{
    return m_root != nullptr ? dynamic_cast<NxGroup*>(m_root->node()) : nullptr;
}

QModelIndexList SceneTreeModel::fetchedIndexes() const
{
    QModelIndexList indexes;
    std::vector<const SceneBranch*> waiting;
    if (m_root != nullptr)
        waiting.push_back(m_root.get());
    while (!waiting.empty()) {
        const SceneBranch* const branch = waiting.back();
        waiting.pop_back();
        if (branch->parent() != nullptr)
            indexes.append(indexOfBranch(*branch));
        for (const auto& [row, below] : branch->branches())
            waiting.push_back(below.get());
    }
    return indexes;
}

NxNode* SceneTreeModel::node(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<SceneBranch*>(index.internalPointer())->child(index.row()) : nullptr;
}

std::span<const NxRef<NxNode>> SceneTreeModel::nodesBelow(const QModelIndex& parent) const
{
    const SceneBranch* const branch = branchOf(parent);
    return branch != nullptr ? branch->children() : std::span<const NxRef<NxNode>>();
}

NxGroup* SceneTreeModel::group(const QModelIndex& index) const
{
    return index.isValid() ? dynamic_cast<NxGroup*>(static_cast<SceneBranch*>(index.internalPointer())->node())
                           : nullptr;
}

std::vector<NxNode*> SceneTreeModel::path(const QModelIndex& index) const
{
    std::vector<NxNode*> nodes;
    for (QModelIndex step = index; step.isValid(); step = step.parent())
        nodes.push_back(node(step));
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

QModelIndex SceneTreeModel::indexOfPath(std::span<NxNode* const> nodes)
{
    QModelIndex index;
    for (const NxNode* step : nodes) {
        index = childIndex(index, step);
        if (!index.isValid())
            break;
    }
    return index;
}

void SceneTreeModel::updateRows(const QModelIndex& parent)
{
    fetchMore(parent);
    SceneBranch* const branch = branchOf(parent);
    // Its sensor may still wait for its call. Views look for rows also while others come or go.
    if (branch != nullptr && !m_isUpdating)
        updateBranch(*branch);
}

QModelIndex SceneTreeModel::childIndex(const QModelIndex& parent, const NxNode* node)
{
    updateRows(parent);
    const SceneBranch* const branch = branchOf(parent);
    if (branch == nullptr)
        return {};
    const int row = branch->findRow(node);
    return row >= 0 ? index(row, NameColumn, parent) : QModelIndex();
}

QModelIndex SceneTreeModel::findNode(const NxFieldContainer* node)
{
    if (m_root == nullptr || node == nullptr)
        return {};
    const QModelIndex fetched = findFetched(*m_root, node);
    return fetched.isValid() ? fetched : indexOfPath(orvane::findPath(m_root->node(), node));
}

QModelIndex SceneTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    SceneBranch* branch = branchOf(parent);
    if (branch == nullptr || row < 0 || row >= branch->count() || column < 0 || column >= ColumnCount)
        return {};
    return createIndex(row, column, branch);
}

QModelIndex SceneTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOfBranch(*static_cast<SceneBranch*>(index.internalPointer())) : QModelIndex();
}

int SceneTreeModel::rowCount(const QModelIndex& parent) const
{
    const SceneBranch* branch = branchOf(parent);
    return branch != nullptr ? branch->count() : 0;
}

int SceneTreeModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

bool SceneTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (const SceneBranch* branch = branchOf(parent))
        return branch->count() > 0;
    return canFetchMore(parent);
}

bool SceneTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return parent.isValid() && parent.column() == NameColumn && branchOf(parent) == nullptr
        && !node(parent)->getChildren().empty();
}

void SceneTreeModel::fetchMore(const QModelIndex& parent)
{
    if (canFetchMore(parent))
        updateBranch(addBranch(parent));
}

QVariant SceneTreeModel::data(const QModelIndex& index, int role) const
{
    NxNode* shown = node(index);
    if (shown == nullptr)
        return {};
    m_shown->note(*static_cast<SceneBranch*>(index.internalPointer()), *shown);
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::EditRole:
        return index.column() == NameColumn ? orvane::toQString(shown->getName())
                                            : QString::fromUtf8(shown->getClassName());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(orvane::nodeIcon(shown->getTypeId())) : QVariant();
    case Qt::FontRole:
        return index.column() == NameColumn ? font(index) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(index);
    case Qt::AccessibleTextRole:
        if (index.column() != ShownColumn)
            return text(index);
        return !canBeSeen(*shown) ? tr("Nothing to see") : isShown(index) ? tr("Shown") : tr("Hidden");
    case Qt::AccessibleDescriptionRole:
        return index.column() == NameColumn ? orvane::spokenFacts(*node(index), canBeSeen(*shown) && !isShown(index))
                                            : QVariant();
    case GreyedRole:
        return m_marks != nullptr && !m_marks->isHit(*shown) && !m_marks->leadsToHit(*shown);
    case ShownRole:
        return isShown(index);
    case HasEyeRole:
        return canBeSeen(*shown);
    case ChildCountRole:
        return static_cast<int>(shown->getChildren().size());
    case IgnoredRole:
        return orvane::hasIgnoredField(*shown);
    default:
        return {};
    }
}

QString SceneTreeModel::text(const QModelIndex& index) const
{
    const NxNode* const shown = node(index);
    if (index.column() == ShownColumn)
        return {};
    if (index.column() == NameColumn && !shown->getName().isEmpty())
        return orvane::shortLine(orvane::toQString(shown->getName()), mostCharacters);
    return QString::fromUtf8(shown->getClassName());
}

bool SceneTreeModel::isShown(const QModelIndex& index) const
{
    return m_hidden == nullptr || m_hidden->isEmpty() || m_hidden->isShown(path(index));
}

bool SceneTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != NameColumn || role != Qt::EditRole)
        return false;
    if (value.toString() != orvane::toQString(node(index)->getName()).left(mostInALine))
        Q_EMIT renameRequested(node(index), value.toString());
    return true;
}

QVariant SceneTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (section == ShownColumn) // too narrow for a text
        return role == Qt::ToolTipRole || role == Qt::AccessibleTextRole ? tr("Shown in the view") : QVariant();
    if (role != Qt::DisplayRole)
        return {};
    return section == NameColumn ? tr("Name") : tr("Class");
}

Qt::ItemFlags SceneTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (!index.isValid())
        return flags;
    flags |= Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    return index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

SceneBranch* SceneTreeModel::branchOf(const QModelIndex& index) const
{
    if (!index.isValid())
        return m_root.get();
    if (index.column() != NameColumn)
        return nullptr;
    return static_cast<SceneBranch*>(index.internalPointer())->branch(index.row());
}

QModelIndex SceneTreeModel::indexOfBranch(const SceneBranch& branch) const
{
    return branch.parent() != nullptr ? createIndex(branch.row(), NameColumn, branch.parent()) : QModelIndex();
}

QModelIndex SceneTreeModel::findFetched(SceneBranch& branch, const NxFieldContainer* node) const
{
    const auto* wanted = dynamic_cast<const NxNode*>(node);
    const int row = branch.findRow(wanted);
    if (row >= 0)
        return createIndex(row, NameColumn, &branch);
    for (const auto& [place, below] : branch.branches()) {
        const QModelIndex found = findFetched(*below, node);
        if (found.isValid())
            return found;
    }
    return {};
}

SceneBranch& SceneTreeModel::addBranch(const QModelIndex& index)
{
    SceneBranch& branch = static_cast<SceneBranch*>(index.internalPointer())->addBranch(index.row());
    watch(branch);
    return branch;
}

void SceneTreeModel::watch(SceneBranch& branch)
{
    branch.watch([this, &branch] { updateBranch(branch); });
}

void SceneTreeModel::forgetBelow(SceneBranch& branch, int row, int count)
{
    for (int i = row; i < row + count; ++i) {
        if (SceneBranch* below = branch.branch(i)) {
            forgetBelow(*below, 0, below->count());
            m_shown->forget(*below);
        }
        m_shown->forget(branch, *branch.child(i));
    }
}

void SceneTreeModel::updateBranch(SceneBranch& branch)
{
    const QScopedValueRollback updating(m_isUpdating, true);
    const std::span<NxNode* const> now = branch.node()->getChildren();
    const int before = branch.count();
    const int after = static_cast<int>(now.size());
    int same = 0;
    while (same < std::min(before, after) && branch.child(same) == now[static_cast<std::size_t>(same)])
        ++same;
    int tail = 0;
    while (tail < std::min(before, after) - same
        && branch.child(before - tail - 1) == now[static_cast<std::size_t>(after - tail - 1)])
        ++tail;

    const QModelIndex parent = indexOfBranch(branch);
    // Views that learn of removed rows may lead to a look at the former state of the scene, which moves its lists.
    const auto added = now.subspan(static_cast<std::size_t>(same), static_cast<std::size_t>(after - same - tail));
    std::vector<NxRef<NxNode>> coming(added.begin(), added.end());
    if (const int gone = before - same - tail; gone > 0) {
        beginRemoveRows(parent, same, same + gone - 1);
        forgetBelow(branch, same, gone);
        branch.removeRows(same, gone);
        endRemoveRows();
    }
    if (!coming.empty()) {
        beginInsertRows(parent, same, same + static_cast<int>(coming.size()) - 1);
        branch.insertRows(same, std::move(coming));
        endInsertRows();
    }
}

void SceneTreeModel::updateNode(SceneBranch& branch, NxNode& node, bool unfolds)
{
    for (int row = branch.findRow(&node); row >= 0; row = branch.findRow(&node, row + 1)) {
        const QModelIndex first = createIndex(row, NameColumn, &branch);
        Q_EMIT dataChanged(first, createIndex(row, ColumnCount - 1, &branch));
        // Views learn whether an item can be unfolded from its rows, so its first children become rows at once.
        if (unfolds && canFetchMore(first))
            fetchMore(first);
        else if (unfolds && branchOf(first) == nullptr)
            layoutAgain();
    }
}

void SceneTreeModel::layoutAgain()
{
    Q_EMIT layoutAboutToBeChanged();
    Q_EMIT layoutChanged();
}

QVariant SceneTreeModel::font(const QModelIndex& index) const
{
    const NxNode* const shown = node(index);
    const bool isHit = m_marks != nullptr && m_marks->isHit(*shown);
    if (!isHit && !shown->getName().isEmpty())
        return {};
    QFont font;
    font.setItalic(shown->getName().isEmpty());
    font.setBold(isHit);
    return font;
}

QString SceneTreeModel::toolTip(const QModelIndex& index) const
{
    if (index.column() != ShownColumn)
        return orvane::plainToolTip(orvane::nodeToolTip(*node(index)));
    if (!canBeSeen(*node(index)))
        return {};
    return isShown(index) ? tr("Hides the node in the view") : tr("Shows the node in the view");
}
