#include "orvane/app/tree/TreeTips.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/facts/NodeToolTip.h"

#include <QHelpEvent>
#include <QTimerEvent>
#include <QToolTip>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

/// Of one slice: half of what may pass between two pictures of a window that moves.
constexpr std::chrono::milliseconds sliceOfTip(4);

} // namespace

TreeTips::TreeTips(QTreeView* view, SceneTreeModel* model, const HiddenNodes& hidden)
    : QObject(view)
    , m_view(view)
    , m_model(model)
    , m_hidden(hidden)
{
    view->viewport()->installEventFilter(this);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &TreeTips::end);
}

bool TreeTips::eventFilter(QObject* /*object*/, QEvent* event)
{
    return event->type() == QEvent::ToolTip && show(*static_cast<const QHelpEvent*>(event));
}

bool TreeTips::show(const QHelpEvent& event)
{
    end();
    const QModelIndex index = m_view->indexAt(event.pos());
    const bool isEye = index.column() == SceneTreeModel::ShownColumn;
    if (!index.isValid() || (isEye && !index.data(SceneTreeModel::HasEyeRole).toBool()))
        return false;
    m_text = isEye ? index.data(Qt::ToolTipRole).toString() : orvane::nodeToolTip(*m_model->node(index));
    m_place = event.globalPos();
    m_row = m_view->visualRect(index);
    m_index = index;
    begin(index);
    showText({});
    goOn();
    if (m_figures != nullptr || m_places != nullptr)
        m_timer.start(0, this);
    return true;
}

void TreeTips::begin(const QModelIndex& index)
{
    if (index.column() == SceneTreeModel::ShownColumn)
        m_places = std::make_unique<PlaceCount>(*m_model->scene(), std::vector<NxNode*>{m_model->node(index)});
    else
        m_figures = std::make_unique<meridane::NodeFigures>(m_model->path(index));
}

/// Goes on for one slice.
void TreeTips::goOn()
{
    const bool isDone = m_figures != nullptr ? m_figures->advance(sliceOfTip) : m_places->advance(sliceOfTip);
    if (!isDone)
        return;
    showText(m_figures != nullptr ? orvane::figuresText(*m_figures) : placesText());
    end();
}

void TreeTips::end()
{
    m_timer.stop();
    m_figures.reset();
    m_places.reset();
}

/// What the eye of a node that is in several places is about.
QString TreeTips::placesText() const
{
    const NxNode* const node = m_model->node(m_index);
    const std::size_t places = m_places->count();
    if (node == nullptr || places < 2)
        return {};
    const bool isHidden = std::ranges::find(m_hidden.hidden(), node) != m_hidden.hidden().end();
    return isHidden ? tr("Hidden in %1 places").arg(places)
                    : tr("It is in %1 places of the scene and would be hidden in all of them.").arg(places);
}

void TreeTips::showText(const QString& text)
{
    if (!text.isEmpty())
        m_text += u'\n' + text;
    QToolTip::showText(m_place, orvane::plainToolTip(m_text), m_view->viewport(), m_row);
}

void TreeTips::timerEvent(QTimerEvent*)
{
    if (QToolTip::isVisible() && QToolTip::text() == orvane::plainToolTip(m_text))
        goOn();
    else
        end();
}
