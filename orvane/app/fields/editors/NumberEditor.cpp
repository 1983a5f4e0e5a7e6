#include "orvane/app/fields/editors/NumberEditor.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/popups/StepFactor.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/input/PassingFocus.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxField.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>

using meridane::FieldComponents;

namespace orvane {

namespace {

// A tenth more or less must not give 0.30000000000000004.
double withoutRounding(double sum, double present, double change)
{
    constexpr int digits = 14;
    constexpr int mostDecimals = 22; // powers of ten up to this one are exact
    const double scale = std::max(std::abs(present), std::abs(change));
    const int decimals = digits - static_cast<int>(std::floor(std::log10(scale)));
    const double factor = std::pow(10.0, std::abs(decimals));
    if (!(scale > 0) || std::abs(decimals) > mostDecimals)
        return sum;
    return decimals > 0 ? std::round(sum * factor) / factor : std::round(sum / factor) * factor;
}

} // namespace

} // namespace orvane

FieldNumber orvane::fieldNumber(const NxField& field, int component)
{
    const FieldComponents* const components = FieldComponents::of(field);
    FieldNumber number;
    number.get = [=](const NxField& each) { return components->get(each, 0, component); };
    number.set = [=](NxField& each, double value) { return components->set(each, 0, component, value); };
    number.text = [=](const NxField& each) { return componentText(each, component); };
    number.limits = NumberLimits::of(field, component);
    number.name = accessibleNameOf(field, component);
    return number;
}

double orvane::stepped(const FieldNumber& number, const NxField& field, double change)
{
    const double present = number.get(field);
    const double sum = present + change;
    if (!std::isfinite(sum))
        return present;
    const double tidy = number.limits.isWhole ? std::round(sum) : withoutRounding(sum, present, change);
    return std::clamp(tidy, number.limits.hardMinimum, number.limits.hardMaximum);
}

NumberEditor::NumberEditor(const CellEdit& edit, FieldNumber number, QWidget* parent)
    : CellEditor(edit, parent)
    , m_number(std::move(number))
    , m_line(new NumberLine(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    m_line->setFrame(false);
    m_line->setAccessibleName(m_number.name);
    m_line->setLimits(m_number.limits);
    m_line->installEventFilter(this);
    setFocusProxy(m_line);
    constexpr int shownDigits = 10;
    setMinimumWidth(shownDigits * fontMetrics().averageCharWidth());
    connect(m_line, &NumberLine::accepted, this, &NumberEditor::accept);
    connect(m_line, &NumberLine::stepped, this, &NumberEditor::step);
    connect(m_line, &NumberLine::restored, this, [this] {
        conclude(!m_isEscaping);
        finish();
    });
    show();
}

// The line loses the focus while it is destroyed, and would report what is typed in it.
NumberEditor::~NumberEditor()
{
    m_line->disconnect(this);
}

void NumberEditor::refresh()
{
    if (!m_line->isPending())
        show();
}

void NumberEditor::show()
{
    const FieldSet set = fields();
    if (set.isEmpty())
        return;
    const double first = m_number.get(set.first());
    const std::span<NxField* const> all = set.fields();
    const bool isMixed = std::any_of(all.begin(), all.end(), [&](const NxField* field) {
        const double other = m_number.get(*field);
        return other != first && !(std::isnan(other) && std::isnan(first));
    });
    if (isMixed)
        m_line->setMixed(tr("several values"));
    else
        m_line->setValue(first, m_number.text(set.first()));
    QFont font = m_line->font();
    font.setItalic(showPending());
    m_line->setFont(font);
    m_line->selectAll();
}

void NumberEditor::accept()
{
    const FieldSet set = fields();
    if (set.isEmpty())
        return finish();
    QString why;
    const meridane::Expression expression = m_line->expression();
    const auto write = [&](NxField& field) {
        const auto result = expression.evaluate(m_number.get(field));
        if (const auto* const error = std::get_if<meridane::QueryError>(&result); error != nullptr)
            why = orvane::toolkitText(orvane::toQString(error->message));
        else
            why = m_number.limits.refusal(std::get<double>(result));
        return why.isEmpty() && m_number.set(field, std::get<double>(result));
    };
    const orvane::Result<> result = writer().change(set, write);
    if (!result) {
        m_line->refuse(why.isEmpty() ? result.error() : why);
        return;
    }
    show();
    if (m_isStepping)
        return;
    conclude(true);
    finish();
}

void NumberEditor::step(double factor)
{
    const FieldSet set = fields();
    if (set.isEmpty() || isFinished())
        return;
    if (!m_isLive)
        m_isLive = static_cast<bool>(writer().begin(set));
    const double change = factor * m_number.limits.stepFrom(m_number.get(set.first()));
    const orvane::Result<> result = writer().change(
        set, [&](NxField& field) { return m_number.set(field, orvane::stepped(m_number, field, change)); });
    if (!result)
        m_line->refuse(result.error());
    else
        show();
}

void NumberEditor::conclude(bool keep)
{
    if (!std::exchange(m_isLive, false))
        return;
    if (keep)
        writer().end();
    else
        writer().cancel();
}

bool NumberEditor::handleKey(int key)
{
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab)
        return false;
    // What is typed is written without closing the editor, which goes on to the next cell.
    const QScopedValueRollback stepping(m_isStepping, true);
    if (m_line->isPending() && !m_line->accept())
        return true;
    conclude(true);
    finish(key == Qt::Key_Tab ? Next::Forward : Next::Backward);
    return true;
}

bool NumberEditor::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            event->accept();
        return false;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (handleKey(key))
            return true;
        m_isEscaping = key == Qt::Key_Escape;
        m_isStepping = key == Qt::Key_Up || key == Qt::Key_Down;
        return false;
    }
    case QEvent::FocusOut: {
        m_isEscaping = false;
        m_isStepping = false;
        const bool isPassing = orvane::isPassingFocus(static_cast<QFocusEvent*>(event)->reason());
        if (!isPassing && !isFinished() && !m_line->isPending()) {
            conclude(true);
            finish();
        }
        return false;
    }
    case QEvent::Wheel: {
        if (!m_line->hasFocus())
            return false;
        constexpr int notch = 120;
        m_wheel += static_cast<QWheelEvent*>(event)->angleDelta().y();
        const int steps = m_wheel / notch;
        m_wheel -= steps * notch;
        if (steps != 0)
            step(steps * orvane::stepFactor(static_cast<QWheelEvent*>(event)->modifiers()));
        return true;
    }
    default:
        return CellEditor::eventFilter(object, event);
    }
}

void NumberEditor::hideEvent(QHideEvent* event)
{
    CellEditor::hideEvent(event);
    conclude(true);
}
