#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

class QLabel;
class QPlainTextEdit;

/// Edits a text of several lines. Ctrl+Return writes it, and so does a click outside; Escape restores.
class TextPopup : public PopupFrame {
    Q_OBJECT

public:
    /// A line beyond this many characters would take seconds to be laid out, so it is broken for the screen. The text
    /// itself keeps its lines.
    static constexpr qsizetype longestLine = 10'000;

    explicit TextPopup(QWidget* parent);

    void setText(const QString& text);
    [[nodiscard]] QString text() const;
    /// Whether the user has changed the text.
    [[nodiscard]] bool isModified() const;

    /// As wide as the cell, at least 40 characters.
    void setCellWidth(int width);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPlainTextEdit* m_edit;
    QLabel* m_hint;
};
