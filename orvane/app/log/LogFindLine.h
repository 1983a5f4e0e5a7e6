#pragma once

#include <QWidget>

class LogDelegate;
class LogSearch;
class LogView;
class QLabel;
class QLineEdit;
class QToolButton;

/// The line that searches the rows of the log: Return and Shift+Return go to the next and the previous hit, Escape
/// closes it. It is hidden until it is asked for.
class LogFindLine : public QWidget {
    Q_OBJECT

public:
    /// All live longer.
    LogFindLine(LogSearch& search, LogDelegate& delegate, LogView& view, QWidget* parent = nullptr);

    /// Shows the line and puts the cursor into it.
    void begin();
    void goToNext();
    void goToPrevious();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* addButton(const char* name, Qt::ArrowType arrow, void (LogFindLine::*run)());
    void setTexts();
    void search(const QString& text);
    void goTo(int row);
    void showCount();
    void end();

    LogSearch& m_search;
    LogDelegate& m_delegate;
    LogView& m_view;
    QLineEdit* m_text;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    QToolButton* m_close = nullptr;
    QLabel* m_count;
};
