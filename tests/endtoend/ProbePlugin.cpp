// A plug-in for tests of the running tool: it reports to a test, over a local socket, where things are on the screen
// and what they show. It changes nothing; mouse and keyboard reach the tool through the X server like a user's.
//
// Requests are lines, answers too:
//   widget NAME           x y width height of the visible widget of that object name, in pixels of the screen
//   item VIEW TEXT        the same for the row of an item view whose first column shows that text
//   property NAME KEY     a property of the visible widget of that object name, as text
//   properties NAME KEY   the same of all visible widgets of that name, with bars between them
//   action TEXT           "enabled" or "disabled" for the menu entry of that text
// NAME is an object name, or "name/Class" for the first widget of that class inside the one of that name. A thing that
// isn't there is answered with an empty line. Blanks in NAME are written %20, line ends in an answer come as blanks.

#include "extender/plugins/LoadedPlugin.h"
#include "extender/plugins/OneExtensionPlugin.h"

#include "orvane/extender/OrvExtension.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QSocketNotifier>
#include <QUrl>
#include <QWidget>

#include <memory>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// The visible widget of that object name; "name/Class" is the first visible widget of that class inside it.
QWidget* findWidget(const QString& name)
{
    const QString objectName = name.section(u'/', 0, 0);
    const QByteArray inner = name.section(u'/', 1).toLatin1();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->objectName() != objectName || !widget->isVisible())
            continue;
        if (inner.isEmpty())
            return widget;
        const auto descendants = widget->findChildren<QWidget*>();
        for (QWidget* const descendant : descendants) {
            if (descendant->inherits(inner.constData()) && descendant->isVisible())
                return descendant;
        }
    }
    return nullptr;
}

QString rectangle(const QWidget* widget, const QRect& local)
{
    const QPoint corner = widget->mapToGlobal(local.topLeft());
    return QStringLiteral("%1 %2 %3 %4").arg(corner.x()).arg(corner.y()).arg(local.width()).arg(local.height());
}

QModelIndex findRow(const QAbstractItemModel* model, const QString& text, const QModelIndex& parent)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
        if (const QModelIndex inner = findRow(model, text, index); inner.isValid())
            return inner;
    }
    return {};
}

QString answerItem(const QString& name, const QString& text)
{
    const auto* const view = qobject_cast<QAbstractItemView*>(findWidget(name));
    if (view == nullptr || view->model() == nullptr)
        return {};
    const QRect rect = view->visualRect(findRow(view->model(), text, view->rootIndex()));
    return rect.isEmpty() ? QString() : rectangle(view->viewport(), rect);
}

QString answerAction(const QString& text)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* const window : windows) {
        const auto actions = window->findChildren<QAction*>();
        for (const QAction* const action : actions) {
            if (action->text().remove(u'&') == text)
                return action->isEnabled() ? QStringLiteral("enabled") : QStringLiteral("disabled");
        }
    }
    return {};
}

QString answerProperties(const QString& name, const QByteArray& key)
{
    QStringList values;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* const widget : widgets) {
        if (widget->objectName() == name && widget->isVisible())
            values.append(widget->property(key.constData()).toString().replace(u'\n', u' '));
    }
    return values.join(QStringLiteral(" | "));
}

QString answer(const QString& request)
{
    const QString verb = request.section(u' ', 0, 0);
    const QString name = QUrl::fromPercentEncoding(request.section(u' ', 1, 1).toUtf8());
    const QString rest = request.section(u' ', 2);
    if (verb == QLatin1String("action"))
        return answerAction(request.section(u' ', 1));
    if (verb == QLatin1String("item"))
        return answerItem(name, rest);
    if (verb == QLatin1String("properties"))
        return answerProperties(name, rest.toLatin1());
    const QWidget* const widget = findWidget(name);
    if (widget == nullptr)
        return {};
    if (verb == QLatin1String("widget"))
        return rectangle(widget, widget->rect());
    return widget->property(rest.toLatin1().constData()).toString().replace(u'\n', u' ');
}

// Connects to the test's socket, whose path is in the environment, and answers from the event loop.
class Probe : public OrvExtension {
public:
    Probe() { m_name = "Probe"; }

    void load() override
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = qgetenv("ORVANE_PROBE_SOCKET");
        if (path.isEmpty() || path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
            return;
        std::copy(path.begin(), path.end(), address.sun_path);
        m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            return;
        m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &Probe::readRequests);
    }

    void unload() override
    {
        m_notifier.reset();
        if (m_socket >= 0)
            ::close(m_socket);
        m_socket = -1;
    }

private:
    void readRequests()
    {
        char bytes[1024];
        const ssize_t count = ::read(m_socket, bytes, sizeof bytes);
        if (count <= 0) {
            m_notifier->setEnabled(false);
            return;
        }
        m_pending.append(bytes, count);
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
            const QByteArray reply = answer(QString::fromUtf8(m_pending.left(end))).toUtf8() + '\n';
            m_pending.remove(0, end + 1);
            if (::write(m_socket, reply.constData(), static_cast<std::size_t>(reply.size())) != reply.size())
                m_notifier->setEnabled(false);
        }
    }

    int m_socket = -1;
    QByteArray m_pending;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

using Plugin = LoadedPlugin<OneExtensionPlugin<Probe>>;

} // namespace

OrvPlugin* loadPlugin()
{
    return Plugin::make();
}

void unloadPlugin()
{
    Plugin::destroy();
}
