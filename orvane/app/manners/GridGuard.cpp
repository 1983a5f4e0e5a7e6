#include "orvane/app/manners/GridGuard.h"

#include "orvane/app/input/NumberLimits.h"
#include "orvane/app/manners/EditorDocks.h"
#include "orvane/app/manners/EditorLine.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxMField.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTableView>

#include <utility>

using meridane::FieldComponents;

GridGuard::GridGuard(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

GridGuard::~GridGuard() = default;

bool GridGuard::eventFilter(QObject* object, QEvent* event)
{
    if (!object->isWidgetType())
        return false;
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* const button = qobject_cast<QAbstractButton*>(object);
        m_pressed = button != nullptr ? rowOf(button) : std::nullopt;
    } else if (event->type() == QEvent::Show && m_pressed) {
        const auto* const widget = static_cast<QWidget*>(object);
        if (widget->windowType() == Qt::Popup && EditorDocks::fieldOf(widget) == m_pressed->field)
            gridShown(widget);
    }
    return false;
}

std::optional<GridGuard::Row> GridGuard::rowOf(const QWidget* widget)
{
    const QDockWidget* const dock = EditorDocks::dockOf(widget);
    NxField* const field = EditorDocks::fieldOf(widget);
    const auto* const components
        = field != nullptr && field->isOfType(NxMField::getClassTypeId()) ? FieldComponents::of(*field) : nullptr;
    const auto* const table = dock != nullptr ? dock->widget()->findChild<QTableView*>() : nullptr;
    if (components == nullptr || table == nullptr)
        return std::nullopt;
    const int row = table->currentIndex().row();
    if (row < 0 || row >= components->rows(*field))
        return std::nullopt;
    Row result{field, row, {}};
    for (int component = 0; component < components->count(); ++component)
        result.numbers.push_back(components->get(*field, row, component));
    return result;
}

void GridGuard::gridShown(const QWidget* popup)
{
    const Row before = *std::exchange(m_pressed, std::nullopt);
    const QList<QLineEdit*> lines = popup->findChildren<QLineEdit*>();
    const FieldComponents& components = *FieldComponents::of(*before.field);
    if (lines.size() != components.count() || before.row >= components.rows(*before.field))
        return;
    for (int component = 0; component < components.count(); ++component) {
        QLineEdit* const line = lines.at(component);
        const QSignalBlocker blocker(line); // the editor would write the row
        const double number = before.numbers.at(static_cast<std::size_t>(component));
        line->setText(EditorLine::acceptableText(line, orvane::plainNumber(number, components.number())));
        line->setCursorPosition(0);
    }
    for (int component = 0; component < components.count(); ++component) {
        if (components.get(*before.field, before.row, component)
            != before.numbers.at(static_cast<std::size_t>(component)))
            components.setRow(*before.field, before.row, before.numbers);
    }
}
