#pragma once

#include <QStringList>

#include <vector>

/// The cells of a table that is to be pasted into a list, checked and converted.
struct PastedRows {
    int rows = 0;
    int columns = 0;
    std::vector<std::vector<double>> numbers; ///< of a numeric list, by column
    QStringList texts; ///< of the only column of other lists
};
