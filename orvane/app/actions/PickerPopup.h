#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

#include <QBasicTimer>
#include <QElapsedTimer>

#include <optional>

class PickerModel;
class PickerSource;
class QLabel;
class QLineEdit;
class QListView;

/// A popup with a line and the rows that match it, at the top of the window. Return or a click chooses a row, Escape
/// and a click outside close it; then the widget that had the focus before has it again.
class PickerPopup : public PopupFrame {
    Q_OBJECT

public:
    /// The parent is in the window that the popup belongs to.
    explicit PickerPopup(QWidget* parent);
    ~PickerPopup() override;

    /// Opens it with an empty line, to search this. The source lives longer.
    void open(PickerSource& source);

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void search();
    void work();
    void showItems();
    void place();
    void describe();
    void choose(const QModelIndex& index);
    [[nodiscard]] quint64 currentId() const;

    PickerSource* m_source = nullptr; // since it was opened first
    PickerModel* m_model;
    QLineEdit* m_line;
    QListView* m_list;
    QLabel* m_message; // in place of rows, or why a row can't be chosen
    QBasicTimer m_slices;
    QElapsedTimer m_shown; // since rows were shown; invalid for a new search
    bool m_isChoosing = false;
    bool m_hasMoved = false; // to a row that the user wants, whatever else is found
};
