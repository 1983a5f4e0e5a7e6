#include "orvane/app/tree/TreeTips.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/facts/NodeToolTip.h"

#include <QHelpEvent>
#include <QTimerEvent>
#include <QToolTip>
#include <QTreeView>

#include <chrono>

namespace {

/// Of one slice: half of what may pass between two pictures of a window that moves.
constexpr std::chrono::milliseconds slice(4);

} // namespace

TreeTips::TreeTips(QTreeView* view, SceneTreeModel* model)
    : QObject(view)
    , m_view(view)
    , m_model(model)
{
    view->viewport()->installEventFilter(this);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_figures.reset(); });
}

bool TreeTips::eventFilter(QObject* /*object*/, QEvent* event)
{
    return event->type() == QEvent::ToolTip && show(*static_cast<const QHelpEvent*>(event));
}

bool TreeTips::show(const QHelpEvent& event)
{
    m_timer.stop();
    m_figures.reset();
    const QModelIndex index = m_view->indexAt(event.pos());
    if (!index.isValid() || index.column() == SceneTreeModel::ShownColumn)
        return false;
    m_text = orvane::nodeToolTip(*m_model->node(index));
    m_place = event.globalPos();
    m_row = m_view->visualRect(index);
    m_figures = std::make_unique<meridane::NodeFigures>(m_model->path(index));
    if (m_figures->advance(slice)) {
        showText(orvane::figuresText(*m_figures));
        m_figures.reset();
    } else {
        showText({});
        m_timer.start(0, this);
    }
    return true;
}

void TreeTips::showText(const QString& text)
{
    if (!text.isEmpty())
        m_text += u'\n' + text;
    QToolTip::showText(m_place, orvane::plainToolTip(m_text), m_view->viewport(), m_row);
}

void TreeTips::timerEvent(QTimerEvent*)
{
    const bool isSeen = QToolTip::isVisible() && QToolTip::text() == orvane::plainToolTip(m_text);
    if (m_figures == nullptr || !isSeen) {
        m_timer.stop();
        m_figures.reset();
        return;
    }
    if (!m_figures->advance(slice))
        return;
    m_timer.stop();
    showText(orvane::figuresText(*m_figures));
    m_figures.reset();
}
