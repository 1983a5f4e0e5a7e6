#pragma once

#include <QObject>
#include <QUrl>
#include <QVariant>

class QTextEdit;

/// Keeps HTML from reading files where widgets of plug-ins and of Qt take a text for HTML that the tool didn't write,
/// such as the message of an error that quotes a scene. What the tool itself shows is plain text.
///
/// Pictures and style sheets are empty in text edits, unless they are resources of the program or of a plug-in.
/// Questions of a file dialog are plain text.
class TextGuard : public QObject {
    Q_OBJECT

public:
    /// Guards from now on each widget that is about to be seen for the first time.
    explicit TextGuard(QObject* parent);

    /// Guards the text edits in a widget at once. A text can be laid out, with its pictures, before it is seen.
    static void guard(const QWidget* widget);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

/// The parent of a text edit's document, which the document asks for what its text refers to. Lives as long as the
/// edit.
class TextResources : public QObject {
    Q_OBJECT

public:
    explicit TextResources(QTextEdit* edit);

    /// The name, the arguments and their types are those that `QTextDocument` calls.
    [[nodiscard]] Q_INVOKABLE QVariant loadResource(int type, const QUrl& url) const;
};
