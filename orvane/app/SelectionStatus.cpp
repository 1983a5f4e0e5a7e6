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
        m_counts->setText(tr("%n top node(s)", nullptr, scene->getNumChildren()));
        return;
    }
    const std::vector<NxNode*> nodes = m_tree->model()->path(m_tree->current());
    const NxField* field = m_session.services().getSelectedField();
    m_path->setPath(orvane::toQString(
        field != nullptr ? NxScenePath::toText(scene, nodes, field) : NxScenePath::toText(scene, nodes)));
    QString counts = tr("%n field(s)", nullptr, node->getFieldData()->getNumFields());
    if (const std::size_t children = node->getChildren().size(); children > 0)
        counts = tr("%n node(s) in it, ", nullptr, static_cast<int>(children)) + counts;
    m_counts->setText(counts);
}
