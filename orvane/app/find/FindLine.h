#pragma once

#include <QWidget>

#include <cstdint>

class FindEdit;
class QAction;
class QLabel;
class QMenu;
class QToolButton;

/// The line over the scene tree in which nodes are searched for, with the number of hits and what there is to say about
/// the search.
class FindLine : public QWidget {
    Q_OBJECT

public:
    /// How a note is meant, and looks.
    enum class Tone : std::uint8_t { Quiet, Error };

    explicit FindLine(QWidget* parent = nullptr);

    [[nodiscard]] FindEdit* edit() const noexcept { return m_edit; }
    /// The menu with the searches that are kept.
    [[nodiscard]] QMenu* menu() const noexcept { return m_menu; }
    /// Adds the buttons of two actions beside the line, which show while there is a search.
    void setActions(QAction* previous, QAction* next);

    /// Shows how many hits there are, such as "3 of 120".
    void setCount(const QString& text);
    /// Shows what there is to say, below the line; empty for nothing. The tool tip has it whole.
    void setNote(const QString& text, Tone tone);
    [[nodiscard]] const QString& note() const noexcept { return m_noteText; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QToolButton* addButton(const char* name);
    void showParts();
    void showNote();

    FindEdit* m_edit;
    QToolButton* m_previous;
    QToolButton* m_next;
    QToolButton* m_menuButton;
    QMenu* m_menu;
    QWidget* m_status;
    QLabel* m_count;
    QLabel* m_note;
    QString m_noteText;
    Tone m_tone = Tone::Quiet;
    bool m_isColoring = false;
};
