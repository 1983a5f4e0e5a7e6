#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QAbstractSpinBox;
class QLineEdit;
class QWidget;

/// Knows what the line with the focus showed before the user typed into it, so that it can be restored.
///
/// Some editors write at every key, others at Return or when the line is left; a line that is restored reports the text
/// to its editor as if it had been typed, so both have the former value again.
///
/// A line that is reached by a key has its text marked, so that a number that is typed replaces it. It stays marked
/// when the editor shows the value again.
class LineWatch : public QObject {
    Q_OBJECT

public:
    explicit LineWatch(QObject* parent);
    ~LineWatch() override;

    /// The line that a widget with the focus types into: itself, or the one of a spin box. Null for other widgets.
    [[nodiscard]] static QLineEdit* lineOf(QObject* widget);
    /// The widget that takes the keys of a line: itself, or its spin box.
    [[nodiscard]] static QWidget* keyTargetOf(QLineEdit* line);

    /// What the line shows without the text that is being typed.
    [[nodiscard]] QString before(const QLineEdit* line) const;
    /// Whether the user has typed into the line since it got the focus and since the last Return, and that text is
    /// still there.
    [[nodiscard]] bool isTyped(const QLineEdit* line) const;
    /// Puts the text from before back.
    void restore(QLineEdit* line);
    /// What is shown now is the present value.
    void settle(const QLineEdit* line);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void watch(QLineEdit* line);
    void keepMarked();

    QPointer<QLineEdit> m_line;
    QPointer<QLineEdit> m_marked; // reached by a key, and not used since
    QString m_before;
    QString m_typed;
    bool m_isTyped = false;
};
