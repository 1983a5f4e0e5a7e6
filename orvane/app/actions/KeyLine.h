#pragma once

#include <QKeySequence>
#include <QLineEdit>

/// A line that takes the next key as it is pressed, with Ctrl, Shift and Alt. Tab and Escape leave it.
class KeyLine : public QLineEdit {
    Q_OBJECT

public:
    explicit KeyLine(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user pressed a key.
    void pressed(const QKeySequence& key);
    /// The user doesn't want to press one.
    void left();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
