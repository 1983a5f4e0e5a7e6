#include "orvane/app/input/NumberLine.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/PassingFocus.h"
#include "orvane/app/input/PlainReturn.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

using meridane::Expression;
using orvane::Failure;
using orvane::NumberLimits;
using orvane::Result;

namespace {

bool isStep(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down) && !event.modifiers().testFlag(Qt::AltModifier);
}

} // namespace

NumberLine::NumberLine(QWidget* parent)
    : QLineEdit(parent)
{
    setMaxLength(longestText);
    connect(this, &QLineEdit::textEdited, this, [this] {
        const auto expression = readText();
        const auto number = expression ? evaluate(expression.value()) : Failure{QString()};
        showRange(number ? number.value() : std::nullopt);
    });
    connect(this, &QLineEdit::inputRejected, this, &NumberLine::refuseLongText, Qt::QueuedConnection);
    setValue(0);
}

NumberLine::~NumberLine() = default;

void NumberLine::setLimits(const NumberLimits& limits)
{
    m_limits = limits;
    showRange(m_value);
}

void NumberLine::setValue(double value, const QString& shown)
{
    m_value = value;
    m_shown = shown;
    setPlaceholderText({});
    setText(shown);
    setCursorPosition(0); // a long number would hide its sign
    showRange(m_value);
}

void NumberLine::setValue(double value)
{
    setValue(value, orvane::plainNumber(value));
}

void NumberLine::setMixed(const QString& placeholder)
{
    m_value.reset();
    m_shown.clear();
    clear();
    setPlaceholderText(placeholder);
    showRange(m_value);
}

bool NumberLine::isPending() const
{
    return isModified() && text() != m_shown;
}

double NumberLine::number() const
{
    const auto number = m_expression ? evaluate(*m_expression) : Failure{QString()};
    return number ? number.value().value_or(std::numeric_limits<double>::quiet_NaN())
                  : std::numeric_limits<double>::quiet_NaN();
}

bool NumberLine::accept()
{
    if (!isPending()) {
        Q_EMIT restored();
        return true;
    }
    if (const QString why = refusal(); !why.isEmpty()) {
        refuse(why);
        return false;
    }
    m_refused = false;
    const QPointer<NumberLine> self = this;
    InputMessage::clear(this);
    Q_EMIT accepted();
    return self == nullptr || !m_refused;
}

void NumberLine::restore()
{
    // Not setText, which would forget what can be undone.
    selectAll();
    insert(m_shown);
    setModified(false);
    setCursorPosition(0);
    InputMessage::clear(this);
    showRange(m_value);
    Q_EMIT restored();
}

void NumberLine::refuse(const QString& why)
{
    m_refused = true;
    selectAll();
    InputMessage::showFor(this, tr("“%1”: %2").arg(orvane::shortLine(text()), why));
}

Result<Expression> NumberLine::readText() const
{
    Expression::Context context;
    context.isAngle = m_limits.isAngle;
    context.mayBeInfinite = m_limits.mayBeInfinite;
    context.isWhole = m_limits.isWhole;
    auto parsed = Expression::parse(text().toStdString(), context);
    if (const auto* const error = std::get_if<meridane::QueryError>(&parsed))
        return Failure{orvane::toolkitText(orvane::toQString(error->message))};
    return std::get<Expression>(std::move(parsed));
}

// Nothing if only the owner knows the values that it is for.
Result<std::optional<double>> NumberLine::evaluate(const Expression& expression) const
{
    if (expression.usesVariables() && !m_value)
        return std::optional<double>();
    const auto number = expression.evaluate(m_value.value_or(0));
    if (const auto* const error = std::get_if<meridane::QueryError>(&number))
        return Failure{orvane::toolkitText(orvane::toQString(error->message))};
    return std::optional(std::get<double>(number));
}

// Why the text can't be taken; empty if it can, which is then the expression.
QString NumberLine::refusal()
{
    const auto expression = readText();
    const auto number = expression ? evaluate(expression.value()) : Failure{expression.error()};
    if (!number)
        return tr("%1 Enter %2 or a formula.").arg(number.error(), m_limits.description());
    if (number.value()) {
        if (QString why = m_limits.refusal(*number.value()); !why.isEmpty())
            return why;
    }
    m_expression = expression.value();
    return {};
}

bool NumberLine::event(QEvent* event)
{
    // The keys of the line come before those of the window's actions while something is being typed.
    if (event->type() == QEvent::ShortcutOverride && isPending()) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape || orvane::isPlainReturn(*key) || isStep(*key))
            event->accept();
    }
    if (event->type() == QEvent::ApplicationPaletteChange)
        showRange(m_value);
    return QLineEdit::event(event);
}

void NumberLine::keyPressEvent(QKeyEvent* event)
{
    if (orvane::isPlainReturn(*event)) {
        accept();
    } else if (event->key() == Qt::Key_Escape) {
        const bool wasPending = isPending();
        restore();
        event->setAccepted(wasPending); // an untouched line leaves the key to what it is in, such as a popup
    } else if (isStep(*event)) {
        step(*event);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void NumberLine::step(const QKeyEvent& event)
{
    const QPointer<NumberLine> self = this;
    if (isPending() && (!accept() || self == nullptr))
        return;
    const bool coarse = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool fine = event.modifiers().testFlag(Qt::ControlModifier);
    const double size = coarse ? 10 : fine ? 0.1 : 1;
    Q_EMIT stepped(event.key() == Qt::Key_Up ? size : -size);
}

void NumberLine::focusOutEvent(QFocusEvent* event)
{
    const QPointer<NumberLine> self = this;
    if (!orvane::isPassingFocus(event->reason()) && isPending())
        leave();
    if (self != nullptr)
        QLineEdit::focusOutEvent(event);
}

// The message is for a place of the parent, since the line of a cell is about to be hidden.
void NumberLine::leave()
{
    const QPointer<NumberLine> self = this;
    if (accept() || self == nullptr)
        return;
    QWidget* const place = parentWidget();
    const InputMessage* const message = InputMessage::shownIn(this);
    const QString why = message != nullptr ? message->text() : QString();
    const QRect frame = geometry();
    restore();
    if (place != nullptr && !why.isEmpty())
        InputMessage::showBriefly(place, frame, why);
}

void NumberLine::showRange(std::optional<double> number)
{
    const NumberLimits::Range range = number ? m_limits.rangeOf(*number) : NumberLimits::Range::Usual;
    QPalette own; // inherits what it doesn't set
    if (range != NumberLimits::Range::Usual) {
        const auto tint
            = range == NumberLimits::Range::Unusual ? orvane::look::Tint::Warning : orvane::look::Tint::Error;
        own.setColor(QPalette::Text, orvane::look::textColor(tint, palette().color(QPalette::Base)));
    }
    setPalette(own);
}

// A pasted text that is too long has been cut by then.
void NumberLine::refuseLongText()
{
    if (text().size() < longestText)
        return;
    undo();
    InputMessage::showFor(this,
        tr("The text is longer than the %1 characters of the longest formula, so it wasn't inserted.")
            .arg(longestText));
}
