#pragma once

#include <QLineEdit>

/// The line in which a search is typed, with the keys of a search: Return and Shift+Return go to the next and the
/// previous hit, Alt+Return selects all, Escape clears and leaves, the arrow key down leaves.
class FindEdit : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

Q_SIGNALS:
    void nextWanted();
    void previousWanted();
    void allWanted();
    /// The user wants to end the search.
    void endWanted();
    /// The user goes on in the tree.
    void left();
    /// The line has got the focus.
    void entered();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};
