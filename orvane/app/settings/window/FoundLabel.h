#pragma once

#include "orvane/app/input/FoundText.h"

#include "meridane/query/Query.h"

#include <QLabel>

/// A label of plain text in which the parts that a query has found are highlighted.
class FoundLabel : public QLabel {
    Q_OBJECT

public:
    explicit FoundLabel(QWidget* parent = nullptr);

    void setQuery(const meridane::Query& query);
    /// Less prominent, for what is beside the point.
    void setQuiet(bool isQuiet);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    meridane::Query m_query;
    bool m_isQuiet = false;
};
