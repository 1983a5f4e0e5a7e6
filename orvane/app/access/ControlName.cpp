#include "orvane/app/access/ControlName.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QVariant>

namespace {

// The name that a widget has got here, and may change as long as nobody else has set one.
constexpr char givenName[] = "orvaneGivenName";

QString plainLine(const QString& text)
{
    const QString plain = QTextDocumentFragment::fromHtml(text).toPlainText();
    return plain.section(u'\n', 0, 0).trimmed();
}

QString withoutMnemonic(QString text)
{
    return text.remove(u'&');
}

// What a label beside the widget says: its buddy, or the one to the left in the same row.
QString labelText(const QWidget& widget)
{
    const QWidget* const parent = widget.parentWidget();
    if (parent == nullptr)
        return {};
    const QLabel* nearest = nullptr;
    for (const QLabel* const label : parent->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (label->buddy() == &widget)
            return withoutMnemonic(label->text());
        const QRect place = label->geometry();
        const bool isBeside = !label->isHidden() && !label->text().isEmpty() && place.right() <= widget.x()
            && place.top() < widget.geometry().bottom() && place.bottom() > widget.y();
        if (isBeside && (nearest == nullptr || nearest->x() < label->x()))
            nearest = label;
    }
    return nearest != nullptr ? plainLine(nearest->text()) : QString();
}

// The name of the control, group, dock or dialog that the widget is a part of.
QString placeText(const QWidget& widget)
{
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (qobject_cast<const QComboBox*>(parent) != nullptr)
            return QAccessible::queryAccessibleInterface(const_cast<QWidget*>(parent))->text(QAccessible::Name);
        if (!parent->accessibleName().isEmpty() && parent->accessibleName() != parent->property(givenName).toString())
            return parent->accessibleName();
        if (const auto* const group = qobject_cast<const QGroupBox*>(parent); group != nullptr)
            return withoutMnemonic(group->title());
        if (qobject_cast<const QMainWindow*>(parent) != nullptr)
            return {};
        if (!parent->windowTitle().isEmpty())
            return parent->windowTitle();
    }
    return {};
}

// What screen readers say without a name; the text of an input is its value instead.
QString ownText(const QWidget& widget)
{
    if (const auto* const button = qobject_cast<const QToolButton*>(&widget);
        button != nullptr && button->text().isEmpty() && button->defaultAction() != nullptr)
        return withoutMnemonic(button->defaultAction()->text());
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget); button != nullptr)
        return withoutMnemonic(button->text());
    if (const auto* const label = qobject_cast<const QLabel*>(&widget); label != nullptr)
        return label->text();
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget); group != nullptr)
        return group->title();
    return {};
}

QString placeholderText(const QWidget& widget)
{
    return widget.property("placeholderText").toString();
}

QString nameFor(const QWidget& widget)
{
    if (QString tip = plainLine(widget.toolTip()); !tip.isEmpty())
        return tip;
    if (QString status = plainLine(widget.statusTip()); !status.isEmpty())
        return status;
    if (QString placeholder = placeholderText(widget); !placeholder.isEmpty())
        return placeholder;
    if (QString label = labelText(widget); !label.isEmpty())
        return label;
    return placeText(widget);
}

bool isControl(const QWidget& widget)
{
    return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(&widget) != nullptr;
}

bool needsName(const QWidget& widget)
{
    const QString name = widget.accessibleName();
    const bool isGiven = name.isEmpty() || name == widget.property(givenName).toString();
    return isGiven && isControl(widget) && ownText(widget).isEmpty();
}

void giveName(QWidget& widget)
{
    const QString name = needsName(widget) ? nameFor(widget) : QString();
    if (name.isEmpty() || name == widget.accessibleName())
        return;
    widget.setProperty(givenName, name);
    widget.setAccessibleName(name);
}

/// Names its parent again when that is shown, or gets another tool tip.
class NameWatch final : public QObject {
public:
    explicit NameWatch(QWidget& widget)
        : QObject(&widget)
        , m_widget(widget)
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::ToolTipChange || event->type() == QEvent::Show)
            giveName(m_widget);
        return false;
    }

private:
    QWidget& m_widget;
};

} // namespace

void orvane::nameControl(QWidget& widget)
{
    // It may be asked about before it has got what the name is made of.
    if (widget.property(givenName).isNull()) {
        widget.setProperty(givenName, QString(QLatin1String("")));
        new NameWatch(widget);
    }
    giveName(widget);
}
