#include "orvane/app/manners/PaneKeys.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/manners/LineWatch.h"
#include "orvane/app/manners/PaneFrame.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>

#include <algorithm>
#include <tuple>

namespace {

/// Whether a widget edits a cell of a view, which has its own use for the key.
bool isInCell(const QWidget* widget)
{
    for (const QWidget* each = widget; each != nullptr && !each->isWindow(); each = each->parentWidget()) {
        const auto* const view = qobject_cast<const QAbstractItemView*>(
            each->parentWidget() != nullptr ? each->parentWidget()->parentWidget() : nullptr);
        if (view != nullptr && each->parentWidget() == view->viewport())
            return true;
    }
    return false;
}

/// The widget that takes the keys of a pane: the one that had the focus there last, else a view, else the first
/// control.
QWidget* keyTarget(QWidget* pane)
{
    const auto isUsable = [](const QWidget* widget) {
        return widget != nullptr && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus) != 0;
    };
    if (QWidget* const last = pane->focusWidget(); isUsable(last))
        return last;
    for (QAbstractItemView* const view : pane->findChildren<QAbstractItemView*>()) {
        if (isUsable(view))
            return view;
    }
    return EditorDocks::firstControl(pane);
}

/// Where a pane comes in the order of the keys: as one reads, the bottom last, windows of their own at the end.
std::tuple<int, int, int> orderOf(const QMainWindow* window, const QWidget* pane)
{
    const auto* const dock = qobject_cast<const QDockWidget*>(pane);
    const QPoint place = pane->mapToGlobal(QPoint());
    int area = 1; // the middle
    if (dock != nullptr && dock->isFloating())
        area = 4;
    else if (dock != nullptr && window->dockWidgetArea(const_cast<QDockWidget*>(dock)) == Qt::BottomDockWidgetArea)
        area = 3;
    else if (dock != nullptr && window->dockWidgetArea(const_cast<QDockWidget*>(dock)) == Qt::RightDockWidgetArea)
        area = 2;
    else if (dock != nullptr)
        area = 0;
    return area == 3 ? std::tuple(area, place.x(), place.y()) : std::tuple(area, place.y(), place.x());
}

} // namespace

PaneKeys::PaneKeys(QMainWindow* window, FieldPanel* fields, LineWatch& watch)
    : QObject(window)
    , m_window(window)
    , m_fields(fields)
    , m_watch(watch)
    , m_docks(window)
{
    connect(fields, &FieldPanel::editorRequested, this, &PaneKeys::focusEditor);
    QCoreApplication::instance()->installEventFilter(this);
}

PaneKeys::~PaneKeys() = default;

bool PaneKeys::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !object->isWidgetType())
        return false;
    auto* const widget = static_cast<QWidget*>(object);
    // Keys go to the widget with the focus first, and then to those that it is in.
    return widget == QApplication::focusWidget() && keyPressed(widget, *static_cast<QKeyEvent*>(event));
}

bool PaneKeys::keyPressed(QWidget* widget, const QKeyEvent& key)
{
    if (QApplication::activeModalWidget() != nullptr)
        return false;
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    switch (key.key()) {
    case Qt::Key_F6:
        if (QApplication::activePopupWidget() != nullptr || (modifiers & ~Qt::ShiftModifier) != Qt::NoModifier)
            return false;
        step(modifiers.testFlag(Qt::ShiftModifier) ? -1 : 1);
        return true;
    case Qt::Key_Escape:
        return modifiers == Qt::NoModifier && escape(widget);
    default:
        return false;
    }
}

bool PaneKeys::escape(QWidget* widget)
{
    if (qobject_cast<NumberLine*>(widget) != nullptr || EditorDocks::dockOf(widget) == nullptr)
        return false;
    QLineEdit* const line = LineWatch::lineOf(widget);
    const bool inCell = isInCell(widget);
    if (line != nullptr && !inCell && m_watch.isTyped(line)) {
        m_watch.restore(line);
        InputMessage::clear(line);
        return true;
    }
    if (inCell || QApplication::activePopupWidget() != nullptr)
        return false;
    m_fields->setFocus(Qt::OtherFocusReason);
    return true;
}

void PaneKeys::focusEditor()
{
    QDockWidget* const dock = m_docks.first();
    if (dock == nullptr)
        return;
    dock->raise();
    QWidget* const control = EditorDocks::firstControl(dock->widget());
    if (control == nullptr)
        return;
    control->setFocus(Qt::ShortcutFocusReason); // which selects the text of a line
}

QList<QWidget*> PaneKeys::panes() const
{
    QList<QWidget*> panes;
    for (QDockWidget* const dock : m_window->findChildren<QDockWidget*>()) {
        // A dock behind another one's tab is visible, but none of it is seen.
        if (dock->isVisible() && !dock->visibleRegion().isEmpty() && keyTarget(dock) != nullptr)
            panes.append(dock);
    }
    if (QWidget* const middle = m_window->centralWidget(); middle != nullptr && keyTarget(middle) != nullptr)
        panes.append(middle);
    std::sort(panes.begin(), panes.end(), [this](const QWidget* left, const QWidget* right) {
        return orderOf(m_window, left) < orderOf(m_window, right);
    });
    return panes;
}

void PaneKeys::step(int direction)
{
    const QList<QWidget*> all = panes();
    if (all.isEmpty())
        return;
    const QWidget* const focus = QApplication::focusWidget();
    const auto current = std::find_if(all.begin(), all.end(),
        [focus](const QWidget* pane) { return focus != nullptr && (pane == focus || pane->isAncestorOf(focus)); });
    const auto count = static_cast<int>(all.size());
    const int next = current == all.end() ? (direction > 0 ? 0 : count - 1)
                                          : (static_cast<int>(current - all.begin()) + direction + count) % count;
    focusPane(all.at(next));
}

void PaneKeys::focusPane(QWidget* pane)
{
    if (pane->isWindow())
        pane->activateWindow();
    keyTarget(pane)->setFocus(Qt::ShortcutFocusReason);
    delete m_frame;
    m_frame = new PaneFrame(pane);
}
