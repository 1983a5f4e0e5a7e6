#include "orvane/app/manners/EditorLine.h"

#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/manners/EditorDocks.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"

#include <QDockWidget>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableView>

#include <algorithm>
#include <cmath>

using meridane::FieldComponents;
using orvane::NumberLimits;

namespace {

template <typename Widget>
Widget* ancestorOf(const QWidget* widget)
{
    for (QWidget* each = widget->parentWidget(); each != nullptr && !each->isWindow(); each = each->parentWidget()) {
        if (auto* const found = qobject_cast<Widget*>(each))
            return found;
    }
    return nullptr;
}

/// Whether an editor shows the number with that text: rounded in one of the ways that editors round.
bool shows(const QString& text, double number)
{
    return text == QString::number(number, 'g', 6) || text == QString::number(number, 'f', 6)
        || text == QString::number(number, 'g', 15) || text == orvane::plainNumber(number);
}

/// The same number without a decimal sign, such as 123456789e-9. Validators limit the decimals, not the digits.
QString withoutDecimals(const QString& number)
{
    const auto parts = number.split(u'e');
    const QString& mantissa = parts.front();
    const qsizetype point = mantissa.indexOf(u'.');
    if (point < 0)
        return number;
    const auto decimals = static_cast<int>(mantissa.size() - point - 1);
    const int exponent = (parts.size() > 1 ? parts.back().toInt() : 0) - decimals;
    static const QRegularExpression zeros(QStringLiteral("^(-?)0+(?=[0-9])"));
    return QString(mantissa).remove(point, 1).replace(zeros, QStringLiteral("\\1")) + u'e' + QString::number(exponent);
}

void narrow(NumberLimits& limits, double lowest, double highest)
{
    limits.hardMinimum = std::max(limits.hardMinimum, lowest);
    limits.hardMaximum = std::min(limits.hardMaximum, highest);
}

} // namespace

std::optional<EditorLine> EditorLine::of(QLineEdit* line, const QString& before)
{
    const QDockWidget* const dock = EditorDocks::dockOf(line);
    if (dock == nullptr || line->isReadOnly() || !line->isEnabled())
        return std::nullopt;
    EditorLine result(line);
    NxField* const field = EditorDocks::fieldOf(line);
    if (field != nullptr && FieldComponents::of(*field) != nullptr)
        result.m_field = field;
    result.m_table = ancestorOf<QTableView>(line);
    result.findPlace(dock->widget(), result.m_field);
    const QValidator* const validator = line->validator();
    const bool isNumeric = qobject_cast<const QDoubleValidator*>(validator) != nullptr
        || qobject_cast<const QIntValidator*>(validator) != nullptr || ancestorOf<QAbstractSpinBox>(line) != nullptr;
    if (!isNumeric && (result.m_place.component < 0 || std::isnan(result.valueOf(before))))
        return std::nullopt;
    result.findLimits(result.m_field);
    return result;
}

// The lines of an editor that are for values, in the order in which the editor has made them.
QList<QLineEdit*> EditorLine::linesIn(const QWidget* frame)
{
    QList<QLineEdit*> lines = frame->findChildren<QLineEdit*>();
    lines.removeIf([](const QLineEdit* line) {
        return !line->isEnabled() || line->isReadOnly() || ancestorOf<QTableView>(line) != nullptr
            || line->inherits("NumberLine");
    });
    return lines;
}

void EditorLine::findPlace(const QWidget* frame, const NxField* field)
{
    const FieldComponents* const components = field != nullptr ? FieldComponents::of(*field) : nullptr;
    if (components == nullptr || frame == nullptr)
        return;
    if (m_table != nullptr && m_table->model() != nullptr) {
        const QPoint middle = m_line->mapTo(m_table->viewport(), m_line->rect().center());
        const QModelIndex index = m_table->indexAt(middle);
        // A column before the components shows the row as a whole, such as its colour.
        const int ahead = m_table->model()->columnCount() - components->count();
        if (index.isValid() && ahead >= 0 && index.column() >= ahead)
            m_place = {index.row(), index.column() - ahead};
        m_isShifted = ahead > 0;
        return;
    }
    const QList<QLineEdit*> lines = linesIn(frame);
    if (lines.size() != components->count() || field->isOfType(NxMField::getClassTypeId()))
        return;
    m_group = lines;
    m_place = {0, static_cast<int>(lines.indexOf(m_line))};
}

void EditorLine::findLimits(const NxField* field)
{
    if (field != nullptr && m_place.component >= 0)
        m_limits = NumberLimits::of(*field, m_place.component);
    const double lowest = m_limits.hardMinimum;
    const double highest = m_limits.hardMaximum;
    const QValidator* const validator = m_line->validator();
    if (const auto* const whole = qobject_cast<const QIntValidator*>(validator)) {
        m_limits.isWhole = true;
        narrow(m_limits, whole->bottom(), whole->top());
    } else if (const auto* const real = qobject_cast<const QDoubleValidator*>(validator)) {
        narrow(m_limits, real->bottom(), real->top());
    }
    if (const auto* const box = ancestorOf<QSpinBox>(m_line)) {
        m_limits.isWhole = true;
        narrow(m_limits, box->minimum(), box->maximum());
    } else if (const auto* const realBox = ancestorOf<QDoubleSpinBox>(m_line)) {
        narrow(m_limits, realBox->minimum(), realBox->maximum());
    }
    // An editor with bounds of its own takes nothing beyond them.
    if (m_limits.hardMinimum > lowest || m_limits.hardMaximum < highest)
        m_limits.mayBeInfinite = false;
}

double EditorLine::valueOf(const QString& text) const
{
    bool isNumber = false;
    const double shown = QLocale::c().toDouble(text, &isNumber);
    if (m_field != nullptr && m_place.component >= 0) {
        const double exact = present();
        // The line of a cell may have opened with another text than the cell's.
        if (shows(text, exact) || (m_table != nullptr && !m_line->isModified()))
            return exact;
    }
    return isNumber ? shown : std::numeric_limits<double>::quiet_NaN();
}

bool EditorLine::takesWithoutValidator(const QString& text) const
{
    static const QRegularExpression whole(QStringLiteral("^[+-]?[0-9]*$"));
    static const QRegularExpression real(QStringLiteral("^[+-]?[0-9]*\\.?[0-9]*([eE][+-]?[0-9]*)?$"));
    return (m_limits.isWhole ? whole : real).match(text).hasMatch();
}

bool EditorLine::takesBeginning(const QString& text) const
{
    if (!takesWithoutValidator(text))
        return false;
    QString tried = text;
    auto position = static_cast<int>(tried.size());
    return m_line->validator() == nullptr || m_line->validator()->validate(tried, position) != QValidator::Invalid;
}

QString EditorLine::acceptableText(const QLineEdit* line, const QString& number)
{
    for (const QString& text : {number, withoutDecimals(number)}) {
        QString tried = text;
        auto position = static_cast<int>(tried.size());
        if (line->validator() == nullptr || line->validator()->validate(tried, position) == QValidator::Acceptable)
            return text;
    }
    return {};
}

bool EditorLine::takes(const QString& text) const
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text, &isNumber);
    return isNumber && m_limits.refusal(number).isEmpty() && acceptableText(m_line, text) == text;
}

QString EditorLine::textFor(double number) const
{
    if (!std::isfinite(number))
        return m_limits.mayBeInfinite ? orvane::plainNumber(number) : QString();
    const FieldComponents* const components = m_field != nullptr ? FieldComponents::of(*m_field) : nullptr;
    QString exact
        = components != nullptr ? orvane::plainNumber(number, components->number()) : orvane::plainNumber(number);
    if (m_limits.isWhole)
        exact = QString::number(number, 'f', 0);
    return m_limits.refusal(number).isEmpty() ? acceptableText(m_line, exact) : QString();
}

bool EditorLine::waitsForReturn() const
{
    const FieldComponents* const components = m_field != nullptr ? FieldComponents::of(*m_field) : nullptr;
    return !m_group.isEmpty() && components != nullptr && components->name(components->count() - 1) == "angle";
}

bool EditorLine::isPartOfCell() const
{
    return m_table != nullptr && m_line->parentWidget() != m_table->viewport();
}

bool EditorLine::write(OrvServices& services, double number) const
{
    if (m_field == nullptr || m_place.component < 0)
        return false;
    FieldWriter writer(services);
    const FieldComponents* const components = FieldComponents::of(*m_field);
    const auto set = [this, components, number](
                         NxField& field) { return components->set(field, m_place.row, m_place.component, number); };
    return bool(writer.change(FieldSet(*m_field), set));
}

double EditorLine::present() const
{
    const FieldComponents* const components
        = m_field != nullptr && m_place.component >= 0 ? FieldComponents::of(*m_field) : nullptr;
    return components != nullptr ? components->get(*m_field, m_place.row, m_place.component)
                                 : std::numeric_limits<double>::quiet_NaN();
}

void EditorLine::showOwnValue() const
{
    const double own = present();
    if (m_table == nullptr || std::isnan(own))
        return;
    if (const QString text = textFor(own); !text.isEmpty() && m_line->text() != text)
        m_line->setText(text);
}

void EditorLine::refineOthers() const
{
    const FieldComponents* const components = m_field != nullptr ? FieldComponents::of(*m_field) : nullptr;
    if (components == nullptr || m_group.size() < 2 || components->isWhole())
        return;
    for (int component = 0; component < components->count(); ++component) {
        QLineEdit* const line = m_group.at(component);
        const double exact = components->get(*m_field, 0, component);
        const QString text = acceptableText(line, orvane::plainNumber(exact, components->number()));
        if (!text.isEmpty() && !line->isModified() && line->text() != text && shows(line->text(), exact))
            line->setText(text);
    }
}
