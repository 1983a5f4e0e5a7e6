#include "FieldEditors/SFWidgets/NumberLine.h"

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

#include <QDoubleValidator>
#include <QLineEdit>

#include <algorithm>
#include <limits>

namespace orvane {

QString numberText(float value)
{
    return QString().setNum(static_cast<double>(value), 'g', 6);
}

void showNumber(QLineEdit* line, float value)
{
    line->setText(numberText(value));
}

float numberIn(const QLineEdit* line)
{
    return line->text().toFloat();
}

void acceptFloats(QLineEdit* line)
{
    constexpr auto limit = static_cast<double>(std::numeric_limits<float>::max());
    line->setValidator(new QDoubleValidator(-limit, limit, 6, line));
}

void applyFromLine(QLineEdit* line, DvSFieldWidget* editor)
{
    QObject::connect(line, &QLineEdit::editingFinished, editor, &DvSFieldWidget::setFocusLeaveEvent);
    // Connected by text, with this blank in the signal's spelling.
    // clang-format off
    QObject::connect(line, SIGNAL(returnPressed ()), editor, SLOT(setCommandValue()));
    // clang-format on
}

void resetCursors(std::span<QLineEdit* const> lines)
{
    for (QLineEdit* const line : lines)
        line->setCursorPosition(0);
}

bool anyModified(std::span<QLineEdit* const> lines)
{
    return std::any_of(lines.begin(), lines.end(), [](const QLineEdit* line) { return line->isModified(); });
}

} // namespace orvane
