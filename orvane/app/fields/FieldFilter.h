#pragma once

#include <QString>
#include <QStringList>

class FieldRow;

/// Which rows of the field table are shown.
class FieldFilter {
public:
    /// Rows that contain each word of the text in their name, type or value, with its letters in order; and only rows
    /// with a value that isn't the default if `changedOnly`.
    FieldFilter(const QString& text, bool changedOnly);

    [[nodiscard]] bool shows(const FieldRow& row) const;

private:
    QStringList m_words;
    bool m_changedOnly;
};
