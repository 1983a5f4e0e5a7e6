#pragma once

#include <QObject>

class QWidget;

/// Blocks the user's input while a scene is written, which must not change meanwhile: presses of keys and buttons,
/// wheel and drops reach one exempt widget only. Painting, resizing and other events go on.
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
