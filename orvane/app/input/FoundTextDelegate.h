#pragma once

#include "meridane/query/Query.h"

#include <QStyledItemDelegate>

/// Paints the texts of items, and highlights in them what a query has found.
class FoundTextDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// `kind` is what the texts are.
    explicit FoundTextDelegate(meridane::SearchedText kind, QObject* parent = nullptr);

    /// The view is to be painted again by whoever calls this.
    void setQuery(const meridane::Query& query);
    [[nodiscard]] const meridane::Query& query() const noexcept { return m_query; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    /// The font and the colours of an item as it is painted.
    struct ItemLook {
        QFont font;
        QPalette::ColorGroup group = QPalette::Normal;
        QColor background; ///< behind the text
        QColor text;
    };
    [[nodiscard]] static ItemLook lookOf(const QStyleOptionViewItem& option, const QModelIndex& index);

    /// Whether the query is about the item; all items are.
    [[nodiscard]] virtual bool isSearched(const QModelIndex& index) const;

private:
    void paintLine(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    meridane::SearchedText m_kind;
    meridane::Query m_query;
};
