#include "orvane/app/SelectionStatus.h"

#include "orvane/app/SceneTreeModel.h"
#include "orvane/app/SceneTreePanel.h"
#include "orvane/app/SelectionLabel.h"
#include "orvane/app/Session.h"
#include "orvane/app/TextConversion.h"

#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldData.h"
#include "meridane/scene/NxScenePath.h"

#include <QLabel>
#include <QStatusBar>

namespace {

/// "1 node", "2 nodes".
QString counted(std::size_t count, const QString& one, const QString& many)
{
    return count == 1 ? QStringLiteral("1 %1").arg(one) : QStringLiteral("%1 %2").arg(count).arg(many);
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
    const SceneTreeModel* model = tree->model();
    connect(model, &QAbstractItemModel::dataChanged, this, &SelectionStatus::updateSoon);
    connect(model, &QAbstractItemModel::rowsInserted, this, &SelectionStatus::updateSoon);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &SelectionStatus::updateSoon);
}

void SelectionStatus::updateSoon()
{
    // Naming a node looks through all of its siblings: once for many changes, and not while the user waits.
    m_timer.start(0, this);
}

void SelectionStatus::timerEvent(QTimerEvent*)
{
    m_timer.stop();
    NxGroup* scene = m_session.document().scene();
    if (scene == nullptr) {
        m_path->setPath({});
        m_counts->clear();
        return;
    }
    NxNode* node = m_tree->currentNode();
    if (node == nullptr) {
        m_path->setPath({});
        m_counts->setText(counted(scene->getChildren().size(), tr("top node"), tr("top nodes")));
        return;
    }
    const std::vector<NxNode*> nodes = m_tree->model()->path(m_tree->current());
    const NxField* field = m_session.services().getSelectedField();
    m_path->setPath(orvane::toQString(
        field != nullptr ? NxScenePath::toText(scene, nodes, field) : NxScenePath::toText(scene, nodes)));
    const auto fields = static_cast<std::size_t>(node->getFieldData()->getNumFields());
    QString counts = counted(fields, tr("field"), tr("fields"));
    if (const std::size_t children = node->getChildren().size(); children > 0)
        counts += QStringLiteral(", ") + counted(children, tr("child node"), tr("child nodes"));
    m_counts->setText(counts);
}
