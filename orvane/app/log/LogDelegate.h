#pragma once

#include "orvane/app/input/FoundText.h"
#include "orvane/app/log/LogLinks.h"

#include <QStyledItemDelegate>

#include <optional>

/// Paints the texts of the log: with links, and with the hits of the search highlighted.
class LogDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// The links live longer.
    explicit LogDelegate(LogLinks& links, QObject* parent = nullptr);

    /// What is searched for; empty for nothing. The view is to be painted again by whoever calls this.
    void setSearch(const QString& text);
    [[nodiscard]] const QString& search() const noexcept { return m_search; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// The link at a place of the view, whose item has that option.
    [[nodiscard]] std::optional<LogLink> linkAt(
        const QStyleOptionViewItem& option, const QModelIndex& index, const QPoint& place) const;

private:
    [[nodiscard]] orvane::FoundFormats formatsOf(const QString& text, const QColor& background) const;

    LogLinks& m_links;
    QString m_search;
};
