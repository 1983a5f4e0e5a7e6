#include "orvane/app/fields/editors/LineEditor.h"

#include <QHBoxLayout>
#include <QLineEdit>

#include <limits>
#include <utility>

LineEditor::LineEditor(const CellEdit& edit, Shown shown, FormOf formOf, QWidget* parent)
    : TextLineEditor(edit, parent)
    , m_shown(std::move(shown))
    , m_formOf(std::move(formOf))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const line = new QLineEdit(this);
    layout->addWidget(line);
    line->setMaxLength(std::numeric_limits<int>::max());
    setLine(line);
}

QString LineEditor::shownText(const NxField& field) const
{
    return m_shown(field);
}

QString LineEditor::formOf(const QString& text) const
{
    return m_formOf(text);
}
