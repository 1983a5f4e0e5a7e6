#include "orvane/app/base/TextGuard.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QTextDocument>
#include <QTextEdit>

namespace {

void guardEdit(QTextEdit* edit)
{
    if (edit->findChild<TextResources*>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new TextResources(edit);
}

} // namespace

TextGuard::TextGuard(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void TextGuard::guard(const QWidget* widget)
{
    for (QTextEdit* const edit : widget->findChildren<QTextEdit*>())
        guardEdit(edit);
}

bool TextGuard::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Polish)
        return false;
    if (auto* const edit = qobject_cast<QTextEdit*>(object))
        guardEdit(edit);
    auto* const question = qobject_cast<QMessageBox*>(object);
    if (question != nullptr && qobject_cast<QFileDialog*>(question->parent()) != nullptr)
        question->setTextFormat(Qt::PlainText);
    return false;
}

TextResources::TextResources(QTextEdit* edit)
    : QObject(edit)
{
    edit->document()->setParent(this);
}

QVariant TextResources::loadResource(int type, const QUrl& url) const
{
    // Where the edit has nothing of its own, the document loads it.
    if (url.scheme() == QStringLiteral("qrc"))
        return static_cast<QTextEdit*>(parent())->loadResource(type, url);
    // An empty picture, not null: for null, the document would read the file itself.
    QImage nothing(1, 1, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    return QVariant::fromValue(nothing);
}
