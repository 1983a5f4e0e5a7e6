#include "orvane/app/manners/ConsoleGround.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPalette>
#include <QTextEdit>

namespace {

const QString consoleName = QStringLiteral("m_consoleOutput");

void setGround(QTextEdit* console)
{
    QPalette palette; // what isn't set here follows the theme
    palette.setColor(QPalette::Base, ConsoleGround::ground());
    palette.setColor(QPalette::Text, ConsoleGround::ink());
    console->setPalette(palette);
}

} // namespace

ConsoleGround::ConsoleGround(QWidget* window)
    : QObject(window)
{
    for (QTextEdit* const console : window->findChildren<QTextEdit*>(consoleName))
        setGround(console);
    QCoreApplication::instance()->installEventFilter(this);
}

bool ConsoleGround::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Polish || object->objectName() != consoleName)
        return false;
    if (auto* const console = qobject_cast<QTextEdit*>(object); console != nullptr)
        setGround(console);
    return false;
}
