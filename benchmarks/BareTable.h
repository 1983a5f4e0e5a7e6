#pragma once

#include <QItemDelegate>
#include <QTableWidget>

#include <functional>

namespace bench {

/// A table without any of ours: as many rows as it is told, and texts that come from elsewhere when they are painted.
class BareTable : public QTableWidget {
public:
    using TextOfRow = std::function<QString(int row)>;

    explicit BareTable(TextOfRow textOfRow);

private:
    class Painter;
};

} // namespace bench
