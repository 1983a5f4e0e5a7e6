#include "orvane/app/access/FieldPart.h"

#include "orvane/app/access/ColorName.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/fields/cells/CellRegistry.h"
#include "orvane/app/fields/cells/ValueDelegate.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/popups/ColorValue.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLimits.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFColorRGBA.h"
#include "meridane/scene/fields/single/NxSFEnum.h"

#include <QCoreApplication>
#include <QTextDocumentFragment>

#include <algorithm>

namespace {

struct FieldPartTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldPart)
};

bool isColor(const NxField& field)
{
    return field.isOfType(NxSFColor::getClassTypeId()) || field.isOfType(NxSFColorRGBA::getClassTypeId());
}

QString colorText(const NxField& field)
{
    const auto* const components = meridane::FieldComponents::of(field);
    orvane::ColorNumbers color{0, 0, 0, 1};
    for (int i = 0; i < components->count(); ++i)
        color[static_cast<std::size_t>(i)] = components->get(field, 0, i);
    return orvane::toHex(color, components->count() == 4) + QStringLiteral(", ")
        + orvane::colorName(orvane::shownColor(color));
}

QString plain(const QString& toolTip)
{
    return QTextDocumentFragment::fromHtml(toolTip).toPlainText();
}

} // namespace

FieldPart::FieldPart(FieldTableView& view, const QModelIndex& index, int part)
    : m_view(view)
    , m_index(index)
    , m_part(part)
{
}

const FieldTableModel& FieldPart::model() const
{
    return static_cast<const FieldTableModel&>(*m_view.model());
}

ValueDelegate* FieldPart::delegate() const
{
    return qobject_cast<ValueDelegate*>(m_view.itemDelegateForIndex(m_index));
}

const FieldSet* FieldPart::fields() const
{
    const ValueDelegate* const values = m_index.isValid() ? delegate() : nullptr;
    const FieldSet* const shown = values != nullptr ? ValueDelegate::shownFields(m_index) : nullptr;
    return shown != nullptr ? &values->services().writer().pending(*shown) : nullptr;
}

int FieldPart::partCount() const
{
    const FieldSet* const shown = fields();
    if (shown == nullptr || m_part != whole)
        return 0;
    const int count = orvane::cellOf(shown->first()).parts(shown->first(), delegate()->services());
    return count > 1 ? count : 0;
}

// The only part of a value is the whole.
int FieldPart::shownPart() const
{
    return m_part == whole && partCount() == 0 ? 0 : m_part;
}

FieldPart::Kind FieldPart::kind() const
{
    if (m_index.isValid() && !m_index.parent().isValid())
        return Kind::Group;
    const FieldSet* const shown = fields();
    if (shown == nullptr)
        return Kind::Label;
    if (m_part == whole && partCount() > 0)
        return Kind::Several;
    if (number())
        return Kind::Number;
    if (m_part != whole)
        return Kind::Opener;
    if (shown->first().isOfType(NxSFBool::getClassTypeId()))
        return Kind::Flag;
    return shown->first().isOfType(NxSFEnum::getClassTypeId()) ? Kind::Choice : Kind::Text;
}

std::optional<FieldNumber> FieldPart::number() const
{
    const FieldSet* const shown = fields();
    const int part = shownPart();
    if (shown == nullptr || part == whole)
        return std::nullopt;
    return orvane::cellOf(shown->first()).number(shown->first(), part, delegate()->services());
}

std::optional<double> FieldPart::presentNumber() const
{
    const std::optional<FieldNumber> shown = number();
    return shown ? std::optional(shown->get(fields()->first())) : std::nullopt;
}

bool FieldPart::isMixed() const
{
    const FieldSet& shown = *fields();
    const std::optional<FieldNumber> one = number();
    if (!one || shown.count() == 1)
        return shown.count() > 1 && shown.isMixed();
    const QString first = one->text(shown.first());
    const std::span<NxField* const> all = shown.fields();
    return std::any_of(all.begin(), all.end(), [&](const NxField* field) { return one->text(*field) != first; });
}

QString FieldPart::name() const
{
    const FieldSet* const shown = fields();
    if (shown == nullptr) {
        const FieldTableModel& rows = model();
        for (const int role : {Qt::AccessibleTextRole, Qt::DisplayRole}) {
            if (QString text = m_index.data(role).toString(); !text.isEmpty())
                return text;
        }
        // An empty cell is called as its column.
        const QString title = rows.headerData(m_index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString();
        return title.isEmpty() ? rows.headerData(m_index.column(), Qt::Horizontal, Qt::DisplayRole).toString() : title;
    }
    if (const std::optional<FieldNumber> one = number())
        return one->name;
    const QString field = orvane::accessibleNameOf(shown->first(), -1);
    return kind() == Kind::Opener ? FieldPartTexts::tr("Edit %1").arg(field) : field;
}

QString FieldPart::value() const
{
    const FieldSet* const shown = fields();
    if (shown == nullptr)
        return m_part == whole ? m_index.data(Qt::DisplayRole).toString() : QString();
    if (isMixed())
        return FieldPartTexts::tr("mixed");
    if (const std::optional<FieldNumber> one = number())
        return one->text(shown->first());
    if (m_part != whole)
        return isColor(shown->first()) ? colorText(shown->first()) : QString();
    return m_index.data(Qt::DisplayRole).toString();
}

QString FieldPart::rangeWarning() const
{
    using Range = orvane::NumberLimits::Range;
    const std::optional<FieldNumber> one = number();
    switch (one ? one->limits.rangeOf(one->get(fields()->first())) : Range::Usual) {
    case Range::Usual:
        return {};
    case Range::Unusual:
        return FieldPartTexts::tr("This number is unusual.");
    case Range::Senseless:
    case Range::Impossible:
        break;
    }
    return FieldPartTexts::tr("This number makes no sense here.");
}

QString FieldPart::description() const
{
    if (!m_index.isValid())
        return {};
    QStringList lines;
    const FieldSet* const shown = fields();
    if (shown != nullptr) {
        lines += rangeWarning();
        if (m_part == whole && isColor(shown->first()) && !isMixed())
            lines += colorText(shown->first());
        if (delegate()->services().writer().isPending(*ValueDelegate::shownFields(m_index)))
            lines += FieldPartTexts::tr("This value isn't written yet.");
        if (m_part == whole)
            lines += orvane::cellOf(shown->first()).toolTip(*shown, delegate()->services());
    }
    if (m_part == whole) {
        lines += m_index.sibling(m_index.row(), FieldTableModel::MarkColumn).data(Qt::AccessibleTextRole).toString();
        lines += plain(m_index.data(Qt::ToolTipRole).toString());
    }
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QRect FieldPart::area() const
{
    if (!m_index.isValid())
        return {};
    QRect place = m_view.visualRect(m_index);
    const FieldSet* const shown = fields();
    if (m_part != whole && shown != nullptr) {
        place = orvane::cellOf(shown->first())
                    .partArea(ValueDelegate::areaOf(m_view, place), shown->first(), m_part, delegate()->services());
    }
    return place.isValid() ? place.translated(m_view.viewport()->mapToGlobal(QPoint())) : QRect();
}

Qt::CheckState FieldPart::checkState() const
{
    if (kind() != Kind::Flag)
        return Qt::Unchecked;
    if (isMixed())
        return Qt::PartiallyChecked;
    return static_cast<const NxSFBool&>(fields()->first()).getValue() != 0 ? Qt::Checked : Qt::Unchecked;
}

void FieldPart::refuse(const QString& why)
{
    InputMessage::showBriefly(&m_view, m_view.visualRect(m_index), why);
}

void FieldPart::setNumber(double value)
{
    const std::optional<FieldNumber> one = number();
    if (!one)
        return;
    if (const QString why = one->limits.refusal(value); !why.isEmpty())
        return refuse(why);
    const FieldSet written = *ValueDelegate::shownFields(m_index);
    FieldWriter& writer = delegate()->services().writer();
    const auto result = writer.change(written, [&](NxField& field) { return one->set(field, value); });
    if (!result)
        refuse(result.error());
}

void FieldPart::step(int count)
{
    const std::optional<FieldNumber> one = number();
    if (!one)
        return;
    const FieldSet written = *ValueDelegate::shownFields(m_index);
    const auto result = delegate()->services().writer().change(written, [&](NxField& field) {
        const double present = one->get(field);
        return one->set(field, orvane::stepped(*one, field, count * one->limits.stepFrom(present)));
    });
    if (!result)
        refuse(result.error());
}

void FieldPart::setText(const QString& text)
{
    if (fields() == nullptr)
        return;
    const FieldSet written = *ValueDelegate::shownFields(m_index);
    const auto result = delegate()->services().writer().setText(written, text);
    if (!result)
        refuse(result.error());
}

void FieldPart::activate()
{
    if (!m_index.isValid())
        return;
    m_view.setFocus();
    if (kind() == Kind::Flag) {
        const FieldSet written = *ValueDelegate::shownFields(m_index);
        if (const auto result = delegate()->services().writer().toggle(written); !result)
            refuse(result.error());
    } else if (m_part != whole && fields() != nullptr) {
        delegate()->edit(m_index, m_part, CellEdit::Reason::Key);
    } else if (kind() == Kind::Group) {
        const QModelIndex group = m_index.sibling(m_index.row(), 0);
        m_view.setExpanded(group, !m_view.isExpanded(group));
    } else {
        m_view.setCurrentIndex(m_index);
        m_view.editRow(m_index);
    }
}
