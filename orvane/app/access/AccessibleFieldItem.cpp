#include "orvane/app/access/AccessibleFieldItem.h"

#include "orvane/app/fields/FieldTableView.h"

#include <QAbstractItemModel>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <limits>

AccessibleFieldItem::AccessibleFieldItem(
    FieldTableView& view, const QModelIndex& index, int part, QAccessibleInterface* parent)
    : m_part(view, index, part)
    , m_parent(parent)
{
}

AccessibleFieldItem::~AccessibleFieldItem()
{
    for (const QAccessible::Id id : m_children) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

bool AccessibleFieldItem::isValid() const
{
    return m_part.isValid();
}

QWindow* AccessibleFieldItem::window() const
{
    return m_part.view().window()->windowHandle();
}

QAccessibleInterface* AccessibleFieldItem::childAt(int x, int y) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (QAccessibleInterface* const found = child(i); found->rect().contains(x, y))
            return found;
    }
    return nullptr;
}

QAccessibleInterface* AccessibleFieldItem::parent() const
{
    return m_parent != nullptr ? m_parent : QAccessible::queryAccessibleInterface(&m_part.view());
}

QAccessibleInterface* AccessibleFieldItem::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const auto place = static_cast<std::size_t>(index);
    m_children.resize(std::max(m_children.size(), place + 1));
    if (m_children[place] == 0) {
        auto* const self = const_cast<AccessibleFieldItem*>(this);
        m_children[place] = QAccessible::registerAccessibleInterface(
            new AccessibleFieldItem(m_part.view(), m_part.index(), index, self));
    }
    return QAccessible::accessibleInterface(m_children[place]);
}

int AccessibleFieldItem::childCount() const
{
    return m_part.partCount();
}

int AccessibleFieldItem::indexOfChild(const QAccessibleInterface* child) const
{
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        if (m_children[i] != 0 && QAccessible::accessibleInterface(m_children[i]) == child)
            return static_cast<int>(i);
    }
    return -1;
}

QString AccessibleFieldItem::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return m_part.name();
    case QAccessible::Value:
        return m_part.value();
    case QAccessible::Description:
        return m_part.description();
    default:
        return {};
    }
}

void AccessibleFieldItem::setText(QAccessible::Text kind, const QString& text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
}

QRect AccessibleFieldItem::rect() const
{
    return m_part.area();
}

QAccessible::Role AccessibleFieldItem::role() const
{
    switch (m_part.kind()) {
    case FieldPart::Kind::Number:
        return QAccessible::SpinBox;
    case FieldPart::Kind::Flag:
        return QAccessible::CheckBox;
    case FieldPart::Kind::Choice:
        return QAccessible::ComboBox;
    case FieldPart::Kind::Opener:
        return QAccessible::ButtonMenu;
    case FieldPart::Kind::Group:
        return m_part.index().column() == 0 ? QAccessible::TreeItem : QAccessible::Cell;
    default:
        return QAccessible::Cell;
    }
}

QAccessible::State AccessibleFieldItem::state() const
{
    QAccessible::State state;
    if (!m_part.isValid()) {
        state.invalid = true;
        return state;
    }
    const FieldTableView& view = m_part.view();
    const QModelIndex index = m_part.index();
    const QRect place = view.visualRect(index);
    state.invisible = view.isColumnHidden(index.column()) || !view.isVisible();
    state.offscreen = !view.viewport()->rect().intersects(place);
    state.selectable = true;
    state.selected = view.selectionModel()->isSelected(index);
    // The row of a group has its title alone.
    state.focusable = !state.invisible && (index.parent().isValid() || index.column() == 0);
    state.focused = m_part.part() == FieldPart::whole && view.hasFocus() && view.currentIndex() == index;
    const FieldPart::Kind kind = m_part.kind();
    if (kind == FieldPart::Kind::Group && index.column() == 0) {
        state.expandable = true;
        state.expanded = view.isExpanded(index);
        state.collapsed = !state.expanded;
    }
    state.editable = isTextEditable();
    state.readOnly = kind == FieldPart::Kind::Label || kind == FieldPart::Kind::Group;
    state.hasPopup = kind == FieldPart::Kind::Choice || kind == FieldPart::Kind::Opener;
    if (kind == FieldPart::Kind::Flag) {
        state.checkable = true;
        state.checked = m_part.checkState() == Qt::Checked;
        state.checkStateMixed = m_part.checkState() == Qt::PartiallyChecked;
    }
    return state;
}

bool AccessibleFieldItem::isTextEditable() const
{
    const FieldPart::Kind kind = m_part.kind();
    return kind == FieldPart::Kind::Number || kind == FieldPart::Kind::Text || kind == FieldPart::Kind::Choice
        || kind == FieldPart::Kind::Several;
}

void* AccessibleFieldItem::interface_cast(QAccessible::InterfaceType type)
{
    const bool showsText = m_part.kind() != FieldPart::Kind::Label || !m_part.value().isEmpty();
    switch (type) {
    case QAccessible::TextInterface:
        return showsText ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
    case QAccessible::EditableTextInterface:
        return isTextEditable() ? static_cast<QAccessibleEditableTextInterface*>(this) : nullptr;
    case QAccessible::ValueInterface:
        return m_part.kind() == FieldPart::Kind::Number ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
    case QAccessible::ActionInterface:
        return static_cast<QAccessibleActionInterface*>(this);
    default:
        return nullptr;
    }
}

// The text has neither a cursor nor a selection: it is edited by an editor that opens, or replaced as a whole.

void AccessibleFieldItem::selection(int /*selectionIndex*/, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = 0;
}

void AccessibleFieldItem::addSelection(int /*startOffset*/, int /*endOffset*/) { }
void AccessibleFieldItem::removeSelection(int /*selectionIndex*/) { }
void AccessibleFieldItem::setSelection(int /*selectionIndex*/, int /*startOffset*/, int /*endOffset*/) { }
void AccessibleFieldItem::setCursorPosition(int /*position*/) { }
void AccessibleFieldItem::scrollToSubstring(int /*startIndex*/, int /*endIndex*/) { }

QString AccessibleFieldItem::text(int startOffset, int endOffset) const
{
    const QString value = m_part.value();
    return value.mid(startOffset, (endOffset < 0 ? value.size() : endOffset) - startOffset);
}

int AccessibleFieldItem::characterCount() const
{
    return static_cast<int>(m_part.value().size());
}

QRect AccessibleFieldItem::characterRect(int /*offset*/) const
{
    return m_part.area();
}

int AccessibleFieldItem::offsetAtPoint(const QPoint& point) const
{
    return m_part.area().contains(point) ? 0 : -1;
}

QString AccessibleFieldItem::attributes(int /*offset*/, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

void AccessibleFieldItem::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset, QString());
}

void AccessibleFieldItem::insertText(int offset, const QString& text)
{
    replaceText(offset, offset, text);
}

void AccessibleFieldItem::replaceText(int startOffset, int endOffset, const QString& text)
{
    QString value = m_part.value();
    value.replace(startOffset, std::max(0, endOffset - startOffset), text);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (m_part.kind() != FieldPart::Kind::Number)
        m_part.setText(value);
    else if (isNumber)
        m_part.setNumber(number);
}

QVariant AccessibleFieldItem::currentValue() const
{
    const std::optional<double> number = m_part.presentNumber();
    return number ? QVariant(*number) : QVariant();
}

void AccessibleFieldItem::setCurrentValue(const QVariant& value)
{
    m_part.setNumber(value.toDouble());
}

QVariant AccessibleFieldItem::maximumValue() const
{
    const std::optional<FieldNumber> number = m_part.number();
    return number ? std::min(number->limits.validMaximum, number->limits.hardMaximum) : 0.0;
}

QVariant AccessibleFieldItem::minimumValue() const
{
    const std::optional<FieldNumber> number = m_part.number();
    return number ? std::max(number->limits.validMinimum, number->limits.hardMinimum) : 0.0;
}

QVariant AccessibleFieldItem::minimumStepSize() const
{
    const std::optional<FieldNumber> number = m_part.number();
    return number ? number->limits.stepFrom(*m_part.presentNumber()) : 0.0;
}

QStringList AccessibleFieldItem::actionNames() const
{
    switch (m_part.kind()) {
    case FieldPart::Kind::Number:
        return {pressAction(), increaseAction(), decreaseAction(), showMenuAction(), setFocusAction()};
    case FieldPart::Kind::Flag:
        return {toggleAction(), showMenuAction(), setFocusAction()};
    default:
        return {pressAction(), showMenuAction(), setFocusAction()};
    }
}

void AccessibleFieldItem::doAction(const QString& actionName)
{
    if (!m_part.isValid())
        return;
    FieldTableView& view = m_part.view();
    if (actionName == pressAction() || actionName == toggleAction()) {
        m_part.activate();
    } else if (actionName == increaseAction() || actionName == decreaseAction()) {
        m_part.step(actionName == increaseAction() ? 1 : -1);
    } else if (actionName == setFocusAction() || actionName == showMenuAction()) {
        view.setFocus();
        view.setCurrentIndex(m_part.index());
        if (actionName != showMenuAction())
            return;
        const QPoint place = view.visualRect(m_part.index()).center();
        const QPoint onScreen = view.viewport()->mapToGlobal(place);
        // Not at once: the menu has an event loop of its own, and the program that asks waits.
        QCoreApplication::postEvent(
            view.viewport(), new QContextMenuEvent(QContextMenuEvent::Keyboard, place, onScreen));
    }
}

QStringList AccessibleFieldItem::keyBindingsForAction(const QString& actionName) const
{
    return actionName == pressAction() ? QStringList{QStringLiteral("F2")} : QStringList();
}
