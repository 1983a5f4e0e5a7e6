#include "orvane/app/fields/FieldFilter.h"

#include "orvane/app/fields/FieldRow.h"

#include <algorithm>

namespace {

bool hasLettersInOrder(const QString& text, const QString& letters)
{
    qsizetype next = 0;
    for (const QChar letter : letters) {
        next = text.indexOf(letter, next, Qt::CaseInsensitive) + 1;
        if (next == 0)
            return false;
    }
    return true;
}

} // namespace

FieldFilter::FieldFilter(const QString& text, bool changedOnly)
    : m_words(text.simplified().split(u' ', Qt::SkipEmptyParts))
    , m_changedOnly(changedOnly)
{
}

bool FieldFilter::shows(const FieldRow& row) const
{
    if (m_changedOnly && !row.isChanged())
        return false;
    return std::ranges::all_of(m_words, [&row](const QString& word) {
        return hasLettersInOrder(row.name(), word) || hasLettersInOrder(row.type(), word)
            || hasLettersInOrder(row.text(), word);
    });
}
