#pragma once

#include <QPlainTextEdit>

/// A message that can be selected and copied. It takes the width that there is: lines are broken inside a word too if
/// need be, and what doesn't fit in a few lines is reached by a scroll bar.
class MessageText : public QPlainTextEdit {
    Q_OBJECT

public:
    /// The most lines that are seen at a time.
    static constexpr int maxLines = 5;

    explicit MessageText(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitHeight();
};
