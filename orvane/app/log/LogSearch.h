#pragma once

#include <QObject>
#include <QString>

#include <cstddef>
#include <deque>

class LogModel;

/// Finds a text in the rows of the log that are shown, whatever its case. The rows around the hits stay.
class LogSearch : public QObject {
    Q_OBJECT

public:
    /// The model lives longer.
    explicit LogSearch(const LogModel& model, QObject* parent = nullptr);

    /// The empty text finds nothing.
    void setText(const QString& text);
    [[nodiscard]] const QString& text() const noexcept { return m_text; }

    /// How many rows contain the text.
    [[nodiscard]] std::size_t hitCount() const noexcept { return m_count; }
    [[nodiscard]] bool isHit(int row) const;
    /// How many hits there are up to that row, with it.
    [[nodiscard]] std::size_t hitsUpTo(int row) const;
    /// The next hit behind a row, or before it, and from the other end when there is none; -1 for none at all. A row
    /// of -1 is none.
    [[nodiscard]] int next(int row) const;
    [[nodiscard]] int previous(int row) const;

Q_SIGNALS:
    /// Rows with the text came or went.
    void changed();

private:
    void refill();
    void insert(int first, int last);
    void remove(int first, int last);
    [[nodiscard]] bool contains(int row) const;

    const LogModel& m_model;
    QString m_text;
    std::deque<bool> m_hits; // for each row; empty without a text
    std::size_t m_count = 0;
};
