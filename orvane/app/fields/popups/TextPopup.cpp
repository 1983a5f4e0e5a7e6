#include "orvane/app/fields/popups/TextPopup.h"

#include "orvane/app/look/Look.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Characters that no text has, since they mean nothing outside of a program. They replace what the edit would change.
constexpr QChar softBreak(0xFDD2); // a break for the screen only, with the end of line that follows it
constexpr QChar carriageReturn(0xFDD3);
constexpr QChar paragraphSeparator(0xFDD4);

// Without what the edit takes for ends of lines although it isn't `\n`.
QString encoded(QString text)
{
    text.replace(u'\r', carriageReturn);
    text.replace(QChar(QChar::ParagraphSeparator), paragraphSeparator);
    return text;
}

QString decoded(QString text)
{
    text.replace(QChar(QChar::ParagraphSeparator), u'\n');
    text.remove(QString(softBreak) + u'\n');
    text.remove(softBreak); // the user has removed the end of line
    text.replace(carriageReturn, u'\r');
    text.replace(paragraphSeparator, QChar(QChar::ParagraphSeparator));
    return text;
}

QString broken(const QString& text)
{
    QString result;
    result.reserve(text.size() + text.size() / TextPopup::longestLine * 2);
    qsizetype column = 0;
    for (const QChar character : text) {
        if (column >= TextPopup::longestLine && !character.isLowSurrogate() && character != u'\n') {
            result += softBreak;
            result += u'\n';
            column = 0;
        }
        result += character;
        column = character == u'\n' ? 0 : column + 1;
    }
    return result;
}

bool hasLongLine(const QString& text)
{
    qsizetype begin = 0;
    while (text.size() - begin > TextPopup::longestLine) {
        const qsizetype end = text.indexOf(u'\n', begin);
        if (end < 0 || end - begin > TextPopup::longestLine)
            return true;
        begin = end + 1;
    }
    return false;
}

} // namespace

TextPopup::TextPopup(QWidget* parent)
    : PopupFrame(parent)
    , m_edit(new QPlainTextEdit(this))
    , m_hint(new QLabel(this))
{
    setObjectName(QStringLiteral("textPopup"));
    setAccessibleName(tr("Text"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_edit);
    layout->addWidget(m_hint);
    m_edit->setAccessibleName(tr("Text"));
    m_edit->setFrameShape(NoFrame);
    m_edit->setTabChangesFocus(false);
    m_edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_edit->installEventFilter(this);
    m_hint->setText(tr("Ctrl+Return writes the text, Esc restores it."));
    m_hint->setMargin(orvane::look::unit(fontMetrics()));
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    setCellWidth(0);
    setFocusProxy(m_edit);
    m_edit->setFocus();
}

void TextPopup::setText(const QString& text)
{
    const bool isBroken = hasLongLine(text);
    m_edit->setPlainText(isBroken ? broken(encoded(text)) : encoded(text));
    m_edit->document()->setModified(false);
    m_edit->moveCursor(QTextCursor::Start);
    if (isBroken) {
        m_hint->setText(tr("Ctrl+Return writes the text, Esc restores it. Long lines are broken here for the screen; "
                           "the text keeps them whole."));
        m_hint->setWordWrap(true);
    }
}

QString TextPopup::text() const
{
    return decoded(m_edit->document()->toRawText());
}

bool TextPopup::isModified() const
{
    return m_edit->document()->isModified();
}

void TextPopup::setCellWidth(int width)
{
    const int least = 40 * fontMetrics().averageCharWidth();
    m_edit->setFixedSize(std::max(width, least), 10 * fontMetrics().height());
}

bool TextPopup::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_edit && event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if ((isReturn && key->modifiers().testFlag(Qt::ControlModifier)) || key->key() == Qt::Key_Escape) {
            finish(isReturn);
            return true;
        }
    }
    return PopupFrame::eventFilter(object, event);
}
