#include "orvane/app/manners/CellFocus.h"

#include "orvane/app/manners/CellSlider.h"
#include "orvane/app/manners/EditorDocks.h"
#include "orvane/app/manners/EditorLine.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxMField.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QSlider>
#include <QTableView>

namespace {

/// Popups of Qt itself, such as menus and the lists of combo boxes, take the keys by themselves.
bool isEditorPopup(const QWidget* widget)
{
    return widget->windowType() == Qt::Popup && widget->findChild<QLineEdit*>() != nullptr
        && EditorDocks::dockOf(widget) != nullptr;
}

/// The table in a cell of which the widget is; null for none.
QTableView* tableOf(const QWidget* widget)
{
    const QWidget* const parent = widget->parentWidget();
    auto* const view = parent != nullptr ? qobject_cast<QTableView*>(parent->parentWidget()) : nullptr;
    return view != nullptr && view->viewport() == parent ? view : nullptr;
}

} // namespace

CellFocus::CellFocus(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

CellFocus::~CellFocus() = default;

bool CellFocus::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (!object->isWidgetType())
        return false;
    auto* const widget = static_cast<QWidget*>(object);
    if (type == QEvent::Show)
        widgetShown(widget);
    else if (type == QEvent::Hide && widget == m_escaped)
        popupHidden(widget);
    else if (type == QEvent::KeyPress)
        keyPressed(widget, static_cast<QKeyEvent*>(event)->key());
    else if (type == QEvent::FocusIn && qobject_cast<QAbstractSpinBox*>(widget) != nullptr)
        boxFocused(static_cast<QAbstractSpinBox*>(widget));
    return false;
}

void CellFocus::keyPressed(QWidget* widget, int key)
{
    m_escaped = key == Qt::Key_Escape ? widget->window() : nullptr;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        tabPressed(widget, key == Qt::Key_Backtab);
}

// The tables take the line out of the cell before they would go on to the next one.
void CellFocus::tabPressed(QWidget* widget, bool backwards)
{
    auto* const line = qobject_cast<QLineEdit*>(widget);
    const QPointer<QTableView> view = line != nullptr ? tableOf(line) : nullptr;
    if (view == nullptr || EditorDocks::dockOf(view) == nullptr)
        return;
    const QModelIndex cell = view->indexAt(line->geometry().center());
    const auto target = EditorLine::of(line, line->text());
    const int firstColumn = target && target->isBesideWhole() ? 1 : 0;
    const auto goOn = [view, cell = QPersistentModelIndex(cell), firstColumn, backwards] {
        if (view == nullptr || !cell.isValid())
            return;
        const int columns = cell.model()->columnCount() - firstColumn;
        const int place = cell.row() * columns + cell.column() - firstColumn + (backwards ? -1 : 1);
        const QModelIndex next = cell.model()->index(place / columns, place % columns + firstColumn);
        if (place < 0 || !next.isValid() || !view->hasFocus())
            return;
        view->setCurrentIndex(next);
        view->edit(next);
    };
    QMetaObject::invokeMethod(view, goOn, Qt::QueuedConnection);
}

void CellFocus::widgetShown(QWidget* widget)
{
    if (widget->isWindow()) {
        if (isEditorPopup(widget))
            popupShown(widget);
        return;
    }
    if (const QTableView* const view = tableOf(widget); view != nullptr && EditorDocks::dockOf(view) != nullptr)
        cellEditorShown(widget);
}

// The popup is about to take over the keys, and gives them to the widget that has the focus in it.
void CellFocus::popupShown(QWidget* popup)
{
    auto* const line = qobject_cast<QLineEdit*>(EditorDocks::firstControl(popup));
    if (line == nullptr)
        return;
    line->setFocus(Qt::PopupFocusReason);
    line->selectAll();
}

void CellFocus::popupHidden(QWidget* popup)
{
    m_escaped = nullptr;
    QDockWidget* const dock = EditorDocks::dockOf(popup);
    if (popup->windowType() != Qt::Popup || dock == nullptr)
        return;
    // After the popup has gone and the focus is where it was before.
    const auto giveFocus = [dock] {
        const QWidget* const focus = QApplication::focusWidget();
        if (focus != nullptr && dock->isAncestorOf(focus))
            return;
        if (QWidget* const control = EditorDocks::firstControl(dock->widget()))
            control->setFocus();
    };
    QMetaObject::invokeMethod(dock, giveFocus, Qt::QueuedConnection);
}

void CellFocus::cellEditorShown(QWidget* editor)
{
    auto* line = qobject_cast<QLineEdit*>(editor);
    if (line == nullptr) {
        line = editor->findChild<QLineEdit*>();
        if (line == nullptr)
            return;
        editor->setFocusProxy(line); // the frame itself does nothing with keys
        line->selectAll();
    }
    const auto target = EditorLine::of(line, line->text());
    if (!target)
        return;
    if (target->isBesideWhole()) {
        target->showOwnValue();
        line->selectAll();
    }
    auto* const slider = editor->findChild<QSlider*>();
    if (slider != nullptr && target->field() != nullptr && target->row() > 0)
        new CellSlider(slider, *target);
}

// While a number is typed, each of its beginnings would be written.
void CellFocus::boxFocused(QAbstractSpinBox* box)
{
    NxField* const field = EditorDocks::fieldOf(box);
    if (field != nullptr && !field->isOfType(NxMField::getClassTypeId()))
        box->setKeyboardTracking(false);
}
