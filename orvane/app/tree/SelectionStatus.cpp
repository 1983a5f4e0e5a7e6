#include "orvane/app/tree/SelectionStatus.h"

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/SelectionLabel.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QLabel>
#include <QStatusBar>

namespace {

/// "1 node", "2 nodes".
QString counted(std::size_t count, const QString& one, const QString& many)
{
    return count == 1 ? QStringLiteral("1 %1").arg(one) : QStringLiteral("%1 %2").arg(orvane::countText(count), many);
}

} // namespace

SelectionStatus::SelectionStatus(Session& session, SceneTreePanel* tree, QStatusBar* bar)
    : QObject(bar)
    , m_session(session)
    , m_tree(tree)
    , m_path(new SelectionLabel(bar))
    , m_counts(new QLabel(bar))
{
    m_counts->setObjectName(QStringLiteral("selectionCounts"));
    bar->addWidget(m_path, 1);
    bar->addPermanentWidget(m_counts);
    const OrvServices& services = session.services();
    connect(&services, &OrvServices::selectedNodeChanged, this, &SelectionStatus::updateSoon);
    connect(&services, &OrvServices::selectedFieldChanged, this, &SelectionStatus::updateSoon);
    connect(&session.document(), &SceneDocument::sceneChanged, this, &SelectionStatus::updateSoon);
    connect(tree, &SceneTreePanel::selectionChanged, this, &SelectionStatus::updateSoon);
    const SceneTreeModel* model = tree->model();
    connect(model, &QAbstractItemModel::dataChanged, this, &SelectionStatus::updateSoon);
    connect(model, &QAbstractItemModel::rowsInserted, this, &SelectionStatus::updateSoon);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &SelectionStatus::updateSoon);
    orvane::followLanguage(this, [this] { updateSoon(); });
}

void SelectionStatus::updateSoon()
{
    // One count after many changes, at a time when the user doesn't wait.
    m_timer.start(0, this);
}

void SelectionStatus::timerEvent(QTimerEvent*)
{
    const NxGroup* scene = m_session.document().scene();
    NxNode* node = m_tree->selectedNode();
    const std::optional<std::vector<int>> way = scene != nullptr && node != nullptr ? places(*scene) : std::nullopt;
    if (scene == nullptr || node == nullptr) {
        m_path->setPath({});
        m_counts->setText(
            scene == nullptr ? QString() : counted(scene->getChildren().size(), tr("top node"), tr("top nodes")));
        m_namer.clear();
    } else if (way) {
        // The selection may be locked on another node than that of the tree.
        const NxField* const selected = m_session.services().getSelectedField();
        const NxField* const field = selected != nullptr && selected->getContainer() == node ? selected : nullptr;
        const auto path = m_namer.name(*scene, *way, field, SliceClock::length);
        if (!path)
            return; // the timer goes on
        m_path->setPath(orvane::toQString(*path));
        showCounts(*node);
    }
    m_timer.stop();
}

std::optional<std::vector<int>> SelectionStatus::places(const NxGroup& scene) const
{
    const std::vector<int> rows = m_tree->selectedRows();
    // The tree's rows follow the scene a moment later; then this is called again.
    const NxNode* node = &scene;
    for (const int row : rows) {
        const auto children = node->getChildren();
        if (static_cast<std::size_t>(row) >= children.size())
            return std::nullopt;
        node = children[static_cast<std::size_t>(row)];
    }
    return node == m_tree->selectedNode() ? std::optional(rows) : std::nullopt;
}

void SelectionStatus::showCounts(NxNode& node)
{
    const auto fields = static_cast<std::size_t>(node.getFieldData()->getNumFields());
    QString counts = counted(fields, tr("field"), tr("fields"));
    if (const std::size_t children = node.getChildren().size(); children > 0)
        counts += QStringLiteral(", ") + counted(children, tr("child node"), tr("child nodes"));
    m_counts->setText(counts);
}
