#pragma once

#include "orvane/app/manners/EditorLine.h"

#include <QObject>
#include <QPointer>

class NumberLine;

/// The application's own line over a line of an editor, for a text that the editor wouldn't take, such as a formula.
///
/// At Return, or when it is left, the number goes into the editor's line as a text of the C locale, and then the key
/// Return goes to it, so that the editor does what it does with a typed number. Escape closes it and leaves the value
/// as it was. It belongs to the editor's line and goes with it.
class LineCover : public QObject {
    Q_OBJECT

public:
    /// Opens over the line, which shows its value again, and gets the focus with `text`, its cursor at `position`.
    LineCover(const EditorLine& target, OrvServices& services, const QString& text, int position);
    ~LineCover() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void finish();
    void enter(const QString& text);
    void sendKey(int key);
    void reportOther(double number);
    void close();

    EditorLine m_target;
    OrvServices& m_services;
    QPointer<QLineEdit> m_line;
    NumberLine* m_input;
    bool m_isLeft = false; // the focus has gone elsewhere
    bool m_isTab = false;
    bool m_isBackwards = false;
    bool m_isWriting = false; // a key that ends the editing of a cell follows
    bool m_isClosed = false;
};
