#pragma once

#include "meridane/query/Query.h"

#include <QBasicTimer>
#include <QLineEdit>

#include <optional>

/// A line for the query that filters a list: the words of docs/query.md.
///
/// The query follows each key. While the text is wrong, the last query that made sense stays, the text has the colour
/// of an error, and after a pause or at Return a message below the line says why. Escape clears the line; Escape in an
/// empty line, Return and the arrow key down leave it. User-interface thread only.
class FilterLine : public QLineEdit {
    Q_OBJECT

public:
    explicit FilterLine(meridane::Query::Subject subject, QWidget* parent = nullptr);
    ~FilterLine() override;

    /// The query of the text, or the one before while the text is wrong.
    [[nodiscard]] const meridane::Query& query() const noexcept { return m_query; }
    /// Why the text is no query; nothing if it is one.
    [[nodiscard]] const std::optional<meridane::QueryError>& error() const noexcept { return m_error; }
    /// Clears the line without a signal.
    void reset();

Q_SIGNALS:
    /// The text has been changed and is a query.
    void queryChanged(const meridane::Query& query);
    /// The user is done with the line and wants to go on in the list.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void follow(const QString& text);
    void showState();
    void showError();

    meridane::Query::Subject m_subject;
    meridane::Query m_query;
    std::optional<meridane::QueryError> m_error;
    QBasicTimer m_pause;
    bool m_coloring = false;
};
