#include "orvane/app/base/RowTable.h"

#include <QHeaderView>

RowTable::RowTable(QWidget* parent)
    : QTableView(parent)
{
    constexpr int space = 8; // above and below the text
    constexpr int leastCharacters = 5; // in a column
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + space);
    horizontalHeader()->setHighlightSections(false);
    // By itself it would be the width of the widest letter of any script.
    horizontalHeader()->setMinimumSectionSize(leastCharacters * fontMetrics().averageCharWidth());
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
}
