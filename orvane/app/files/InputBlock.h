#pragma once

#include <QObject>

class QWidget;

/// Keeps the user from changing anything, while a scene that must not change is being written: presses of keys and
/// buttons, wheel and drops reach nobody but one widget. Painting, resizing and the rest go on.
class InputBlock : public QObject {
    Q_OBJECT

public:
    /// Blocks as long as it lives; `exempt` and what is in it stay usable.
    explicit InputBlock(QWidget* exempt);
    ~InputBlock() override;

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// The user pressed Escape.
    void escapePressed();

private:
    QWidget* m_exempt;
};
