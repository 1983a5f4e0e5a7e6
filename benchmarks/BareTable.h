#pragma once

#include <QItemDelegate>
#include <QTableWidget>

#include <functional>

namespace bench {

/// A plain table without code of this project: a given number of rows, and texts from a function when they are painted.
class BareTable : public QTableWidget {
public:
    using TextOfRow = std::function<QString(int row)>;

    explicit BareTable(TextOfRow textOfRow);

private:
    class Painter;
};

} // namespace bench
