#pragma once

#include "orvane/app/fields/values/FieldSet.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QPointer>

#include <optional>

class QAbstractItemView;
class QHelpEvent;
class QMouseEvent;
class QWidget;
class ValueDelegate;

/// Lets the user drag on the name of a number, or on the letter of a component, to change it.
///
/// A drag begins when the pointer has moved as far as a drag of the desktop, and changes the value live: one step of
/// the number for each pixel, with Shift ten, with Ctrl a tenth. All of it is one step of the history. Escape and the
/// right button restore the value exactly and leave no step. The pointer is never moved or hidden. User-interface
/// thread only.
class NameScrub : public QObject {
    Q_OBJECT

public:
    /// The view, which owns it, shows the names and the values of fields in these columns; the delegate those of the
    /// values.
    NameScrub(QAbstractItemView* view, ValueDelegate* delegate, int nameColumn, int valueColumn);
    ~NameScrub() override;

    [[nodiscard]] bool isDragging() const noexcept { return m_state == State::Dragging; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    enum class State {
        Idle,
        Pressed, ///< on a name, not far enough for a drag
        Dragging,
        Ended, ///< by Escape, the right button or because the field has vanished; the left button is still down
    };
    /// What is under the pointer.
    struct Target {
        FieldSet fields;
        QPersistentModelIndex index; // of the name
        int part = 0;
    };

    [[nodiscard]] std::optional<Target> targetAt(const QPoint& position) const;
    [[nodiscard]] std::optional<Target> letterAt(const QModelIndex& index, const QPoint& position) const;
    bool handleViewport(QEvent* event);
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    void begin();
    void end(bool keep);
    bool showToolTip(const QHelpEvent& event) const;
    void showCursor(const QPoint& position);

    QAbstractItemView* m_view;
    QWidget* m_viewport; // its own; events still come while the view is being destroyed
    QPointer<ValueDelegate> m_delegate;
    int m_nameColumn;
    int m_valueColumn;
    State m_state = State::Idle;
    Target m_target;
    QPoint m_last; // position of the pointer
    double m_step = 1;
    double m_lowest = 0; // of the change, so that the value stays in its hard range
    double m_highest = 0;
    double m_change = 0;
};
