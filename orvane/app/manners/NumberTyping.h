#pragma once

#include <QObject>

class EditorLine;
class LineWatch;
class OrvServices;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;

/// Lets people write numbers as they are used to in the lines of the editors in docks.
///
/// - A character that a line refuses, such as a comma or a bracket, opens the application's own line over it
///   (`LineCover`), with the text so far and that character. So does a pasted text.
/// - A text that the editor couldn't read, or would limit, isn't passed to it at Return; a message says why.
/// - Such a text is replaced by the value when the line is left, with a message that quotes it.
class NumberTyping : public QObject {
    Q_OBJECT

public:
    NumberTyping(OrvServices& services, LineWatch& watch, QObject* parent);
    ~NumberTyping() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool keyPressed(QLineEdit* line, const QKeyEvent& key);
    bool insert(QLineEdit* line, const QString& text, bool isPasted);
    bool finishLine(QLineEdit* line);
    void leaveLine(QLineEdit* line);
    void remindOfReturn(QLineEdit* line);
    [[nodiscard]] QString refusal(const EditorLine& target) const;

    OrvServices& m_services;
    LineWatch& m_watch;
};
