#include "BareTable.h"

#include <QPainter>

#include <utility>

namespace bench {

class BareTable::Painter final : public QItemDelegate {
public:
    Painter(TextOfRow textOfRow, QObject* parent)
        : QItemDelegate(parent)
        , m_textOfRow(std::move(textOfRow))
    {
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->drawText(option.rect, Qt::AlignCenter, m_textOfRow(index.row()));
    }

private:
    TextOfRow m_textOfRow;
};

BareTable::BareTable(TextOfRow textOfRow)
{
    setItemDelegate(new Painter(std::move(textOfRow), this));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setColumnCount(1);
}

} // namespace bench
