#include "orvane/app/lists/ListDelegate.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/lists/rows/ListEdits.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/look/Look.h"

#include "meridane/scene/components/FieldComponents.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <limits>

namespace {

/// The data of a choice: its value.
void fillChoices(QComboBox& box, const QList<ListColumns::Choice>& choices, int present)
{
    for (const ListColumns::Choice& choice : choices)
        box.addItem(choice.name, choice.value);
    if (box.findData(present) < 0)
        box.addItem(QString::number(present), present);
}

} // namespace

ListDelegate::ListDelegate(ListModel& model, ListEdits& edits, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_edits(edits)
{
}

QString ListDelegate::pendingText() const
{
    const auto* const line = qobject_cast<const QLineEdit*>(m_editor.data());
    return line != nullptr && line->isModified() ? line->text() : QString();
}

// The text is drawn without the layout of rich or wrapped text, which takes several times as long.
void ListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_model.columns().kind() == ListColumns::Kind::Flag) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QWidget* const widget = option.widget;
    QStyle* const style = widget != nullptr ? widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, widget);
    QRect area = option.rect;
    const int margin = orvane::look::unit(option.fontMetrics);
    area.adjust(margin, 0, -margin, 0);
    if (const QVariant swatch = index.data(ListModel::SwatchRole); swatch.isValid()) {
        QStyleOptionViewItem square = option;
        square.rect = QRect(area.topLeft(), QSize(area.height(), area.height()));
        paintSwatch(*painter, square, swatch.value<QColor>());
        area.setLeft(square.rect.right());
    }
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    const bool isNumber = m_model.columns().kind() == ListColumns::Kind::Number;
    const QString text = option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, area.width());
    painter->drawText(area, Qt::AlignVCenter | Qt::TextSingleLine | (isNumber ? Qt::AlignRight : Qt::AlignLeft), text);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.backgroundColor = option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, widget);
    }
}

void ListDelegate::paintSwatch(QPainter& painter, const QStyleOptionViewItem& option, const QColor& color) const
{
    const int margin = orvane::look::unit(option.fontMetrics);
    const QRect square = option.rect.adjusted(0, margin, -2 * margin, -margin);
    QColor opaque = color;
    opaque.setAlpha(255);
    painter.fillRect(square, opaque);
    if (color.alpha() < 255) // the right half shows how much is seen through it
        painter.fillRect(square.adjusted(square.width() / 2, 0, 0, 0),
            orvane::look::mixed(option.palette.color(QPalette::Base), opaque, static_cast<double>(color.alphaF())));
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.drawRect(square.adjusted(0, 0, -1, -1));
}

QSize ListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int margin = orvane::look::unit(option.fontMetrics);
    const int height = orvane::look::rowHeight(option.fontMetrics);
    return {option.fontMetrics.horizontalAdvance(index.data().toString()) + 3 * margin, height};
}

QWidget* ListDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    m_index = index;
    switch (m_model.columns().kind()) {
    case ListColumns::Kind::Flag:
        return nullptr; // the check box is the editor
    case ListColumns::Kind::Number:
        m_editor = makeNumberLine(parent, index);
        break;
    case ListColumns::Kind::Choice: {
        auto* const box = new QComboBox(parent);
        fillChoices(
            *box, m_model.columns().choices(), static_cast<int>(m_model.columns().number(m_model.listRow(index), 0)));
        m_editor = box;
        break;
    }
    case ListColumns::Kind::Text:
    case ListColumns::Kind::Value: {
        auto* const line = new QLineEdit(parent);
        line->setMaxLength(std::numeric_limits<int>::max());
        line->setFrame(false);
        m_editor = line;
        break;
    }
    }
    m_editor->setObjectName(QStringLiteral("listCellEditor"));
    m_editor->setAutoFillBackground(true);
    return m_editor;
}

QWidget* ListDelegate::makeNumberLine(QWidget* parent, const QPersistentModelIndex& index) const
{
    auto* const line = new NumberLine(parent);
    line->setFrame(false);
    line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const meridane::FieldComponents& components = *m_model.columns().components();
    orvane::NumberLimits limits;
    limits.isWhole = components.isWhole();
    limits.hardMinimum = components.lowest();
    limits.hardMaximum = components.highest();
    limits.mayBeInfinite = !components.isWhole();
    limits.isAngle = components.name(index.column()) == "angle";
    line->setLimits(limits);
    connect(line, &NumberLine::accepted, this, [this, line, index] {
        if (index.isValid())
            writeNumber(*line, index);
    });
    connect(line, &NumberLine::stepped, this, [this, line, index](double factor) {
        if (!index.isValid())
            return;
        const double value = m_model.columns().number(m_model.listRow(index), index.column());
        const double next = value + factor * line->limits().stepFrom(value);
        if (const auto result = m_edits.setNumber(m_model.listRow(index), index.column(), next); !result)
            line->refuse(result.error());
        else
            setEditorData(line, index);
    });
    return line;
}

void ListDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const int row = m_model.listRow(index);
    if (auto* const number = qobject_cast<NumberLine*>(editor)) {
        // A change of the list from elsewhere must not take what the user types.
        if (!number->isPending())
            number->setValue(
                m_model.columns().number(row, index.column()), m_model.columns().text(row, index.column()));
    } else if (auto* const box = qobject_cast<QComboBox*>(editor)) {
        box->setCurrentIndex(box->findData(static_cast<int>(m_model.columns().number(row, 0))));
    } else if (auto* const line = qobject_cast<QLineEdit*>(editor); line != nullptr && !line->isModified()) {
        line->setText(m_model.columns().text(row, index.column()));
        line->selectAll();
    }
}

// Everything is written by `write`, which can refuse.
void ListDelegate::setModelData(QWidget* /*editor*/, QAbstractItemModel* /*model*/, const QModelIndex& /*index*/) const
{
}

void ListDelegate::writeNumber(NumberLine& line, const QModelIndex& index) const
{
    const int row = m_model.listRow(index);
    const double present = m_model.columns().number(row, index.column());
    const auto value = line.expression().evaluate(present);
    if (const auto* const error = std::get_if<meridane::QueryError>(&value)) {
        line.refuse(orvane::toolkitText(orvane::toQString(error->message)));
        return;
    }
    if (const auto result = m_edits.setNumber(row, index.column(), std::get<double>(value)); !result)
        line.refuse(result.error());
    else
        line.setValue(m_model.columns().number(row, index.column()), m_model.columns().text(row, index.column()));
}

bool ListDelegate::write(QWidget* editor)
{
    if (!m_index.isValid())
        return true;
    const int row = m_model.listRow(m_index);
    if (auto* const number = qobject_cast<NumberLine*>(editor))
        return !number->isPending() || number->accept();
    orvane::Result<> result;
    if (const auto* const box = qobject_cast<QComboBox*>(editor)) {
        if (box->currentData().toInt() != static_cast<int>(m_model.columns().number(row, 0)))
            result = m_edits.setNumber(row, 0, box->currentData().toInt());
    } else if (auto* const line = qobject_cast<QLineEdit*>(editor); line != nullptr && line->isModified()) {
        result = m_edits.setText({&row, 1}, line->text());
        if (!result)
            InputMessage::showFor(line, result.error());
        else
            line->setModified(false);
    }
    return static_cast<bool>(result);
}

// So that nothing is written when it loses the focus.
void ListDelegate::restore(QWidget* editor)
{
    if (auto* const number = qobject_cast<NumberLine*>(editor))
        number->restore();
    else if (auto* const line = qobject_cast<QLineEdit*>(editor))
        line->setModified(false);
}

// The view takes the focus from the editor before it forgets it.
void ListDelegate::close(QWidget* editor)
{
    m_editor = nullptr;
    Q_EMIT closeEditor(editor, NoHint);
}

bool ListDelegate::leaveWithKey(QWidget* editor, int key, bool isBackwards)
{
    if (!write(editor))
        return true;
    close(editor);
    const int direction = isBackwards ? -1 : 1;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        Q_EMIT moveRequested(direction, 0);
    else
        Q_EMIT moveRequested(0, direction);
    return true;
}

bool ListDelegate::eventFilter(QObject* object, QEvent* event)
{
    auto* const editor = qobject_cast<QWidget*>(object);
    if (editor == nullptr || editor != m_editor)
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        switch (key.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return leaveWithKey(editor, key.key(), key.key() == Qt::Key_Backtab);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return leaveWithKey(editor, key.key(), key.modifiers().testFlag(Qt::ShiftModifier));
        case Qt::Key_Escape:
            restore(editor);
            close(editor);
            return true;
        default:
            return false;
        }
    }
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
            return false;
        if (!write(editor))
            Q_EMIT refused(tr("\"%1\" wasn't written.").arg(pendingText().left(80)));
        close(editor);
        return false;
    }
    return false;
}

bool ListDelegate::editorEvent(
    QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (m_model.columns().kind() != ListColumns::Kind::Flag)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const bool isKey
        = event->type() == QEvent::KeyPress && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Space;
    bool isClick = false;
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = static_cast<const QMouseEvent&>(*event);
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QRect box
            = option.widget->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, option.widget);
        isClick = release.button() == Qt::LeftButton && box.contains(release.position().toPoint());
    }
    if (!isKey && !isClick)
        return false;
    const int row = m_model.listRow(index);
    const double toggled = m_model.columns().number(row, 0) == 1 ? 0 : 1;
    if (const auto result = m_edits.setNumber(row, 0, toggled); !result)
        Q_EMIT refused(result.error());
    return true;
}
