#pragma once

#include <QIcon>
#include <QList>
#include <QString>

/// A row that the user may choose in a picker.
struct PickerItem {
    quint64 id = 0; ///< another one for each row, the same while the user types
    QIcon icon;
    QString text;
    QList<int> places; ///< the characters of the text that match what was typed, rising
    QString detail; ///< beside the text, less prominent
    QString keys; ///< at the end of the row
    QString reason; ///< why it can't be chosen; empty if it can
};
