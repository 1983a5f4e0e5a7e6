#include "endtoend/LiveTool.h"

#include "Patience.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <cstdlib>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

bool waitReadable(int descriptor)
{
    pollfd entry{descriptor, POLLIN, 0};
    return ::poll(&entry, 1, testPatience) == 1;
}

QRect toRect(const QString& text)
{
    const QStringList numbers = text.split(u' ');
    if (numbers.size() != 4)
        return {};
    return {numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt()};
}

} // namespace

LiveTool::~LiveTool()
{
    if (m_probe >= 0)
        ::close(m_probe);
    for (QProcess* const process : {&m_tool, &m_windowManager, &m_server}) {
        if (process->state() == QProcess::NotRunning)
            continue;
        process->terminate();
        if (!process->waitForFinished(5000))
            process->kill();
        process->waitForFinished(testPatience);
    }
}

bool LiveTool::startServer()
{
    // The server picks a free display and reports its number.
    m_server.setProgram(QStringLiteral("Xvfb"));
    // Without key repetition: on a busy machine a key seems to be held for long.
    m_server.setArguments(
        {QStringLiteral("-r"), QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
            QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(1280 * m_scale).arg(800 * m_scale),
            QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    m_server.start();
    if (!m_server.waitForReadyRead(testPatience))
        return false;
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(
        QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(m_server.readAllStandardOutput().trimmed()));
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    if (m_scale > 1)
        m_environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(m_scale));
    if (!m_locale.isEmpty())
        m_environment.insert(QStringLiteral("LC_ALL"), m_locale);
    // The texts that tests look for, whatever the numbers of the desktop look like.
    m_environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    return startWindowManager();
}

// Without a window manager the window wouldn't get the keyboard focus, and until it answers no window is activated.
// Now and then one doesn't come up, and another one does.
bool LiveTool::startWindowManager()
{
    constexpr int attempts = 6;
    m_windowManager.setProcessEnvironment(m_environment);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        m_windowManager.start(
            QStringLiteral("openbox"), {QStringLiteral("--config-file"), QStringLiteral("/dev/null")});
        if (QTest::qWaitFor([this] { return windowManagerAnswers(); }, testPatience / attempts))
            return true;
        qWarning("openbox doesn't answer: %s", m_windowManager.readAllStandardError().constData());
        m_windowManager.kill();
        m_windowManager.waitForFinished(testPatience);
    }
    return false;
}

bool LiveTool::windowManagerAnswers() const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(QStringLiteral("xdotool"), {QStringLiteral("get_desktop")});
    return process.waitForFinished(testPatience) && process.exitCode() == 0;
}

bool LiveTool::acceptProbe(int listener)
{
    if (!waitReadable(listener))
        return false;
    m_probe = ::accept(listener, nullptr, nullptr);
    return m_probe >= 0;
}

bool LiveTool::start(const QStringList& arguments)
{
    if (!startServer()) {
        qWarning("Xvfb or openbox doesn't start.");
        return false;
    }
    return startTool(arguments);
}

bool LiveTool::startBeside(const LiveTool& other, const QStringList& arguments)
{
    m_scale = other.m_scale;
    m_environment = other.m_environment;
    return startTool(arguments);
}

bool LiveTool::startTool(const QStringList& arguments)
{
    const QByteArray path = m_folder.filePath(QStringLiteral("probe")).toLocal8Bit();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
        || ::listen(listener, 1) != 0) {
        ::close(listener);
        return false;
    }
    m_environment.insert(QStringLiteral("ORVANE_PROBE_SOCKET"), QString::fromLocal8Bit(path));
    // The thread that would talk to the session's bus ends when it likes, which a leak check takes for a leak.
    m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    if (!m_settingsFolder.isEmpty())
        m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_settingsFolder);
    m_environment.insert(QStringLiteral("XDG_STATE_HOME"),
        m_stateFolder.isEmpty() ? m_folder.filePath(QStringLiteral("state")) : m_stateFolder);
    for (auto variable = m_variables.constBegin(); variable != m_variables.constEnd(); ++variable) {
        if (variable->isNull())
            m_environment.remove(variable.key());
        else
            m_environment.insert(variable.key(), *variable);
    }
    m_tool.setProcessEnvironment(m_environment);
    m_tool.setProcessChannelMode(QProcess::ForwardedChannels);
    const QStringList all = settingsArguments()
        + QStringList{QStringLiteral("--plugin"), QStringLiteral(PROBE_PLUGIN), QStringLiteral("--size"),
            QStringLiteral("1200x760")}
        + arguments;
    if (m_preparation.isEmpty()) {
        m_tool.setProgram(QStringLiteral(ORVANE_PROGRAM));
        m_tool.setArguments(all);
    } else {
        m_tool.setProgram(QStringLiteral("/bin/sh"));
        m_tool.setArguments(QStringList{QStringLiteral("-c"), m_preparation + QStringLiteral(" exec \"$0\" \"$@\""),
                                QStringLiteral(ORVANE_PROGRAM)}
            + all);
    }
    m_tool.start();
    const bool connected = m_tool.waitForStarted(testPatience) && acceptProbe(listener);
    ::close(listener);
    if (!connected) {
        qWarning("The tool doesn't start.");
        return false;
    }
    if (widget(QStringLiteral("sceneTree")).isEmpty())
        return false;
    return activate();
}

bool LiveTool::activate()
{
    xdotool({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
        QStringLiteral("--all"), QStringLiteral("--pid"), QString::number(m_tool.processId()), QStringLiteral("--name"),
        QStringLiteral("Orvane"), QStringLiteral("windowactivate"), QStringLiteral("--sync")});
    // By then it knows where the window manager put it, so its coordinates are right.
    return becomes(QStringLiteral("mainWindow"), QStringLiteral("isActiveWindow"));
}

QStringList LiveTool::settingsArguments() const
{
    return m_settingsFolder.isEmpty() ? QStringList(QStringLiteral("--no-settings")) : QStringList();
}

int LiveTool::quit()
{
    key(QStringLiteral("ctrl+q"));
    return m_tool.waitForFinished(testPatience) && m_tool.exitStatus() == QProcess::NormalExit ? m_tool.exitCode() : -1;
}

void LiveTool::kill()
{
    m_tool.kill();
    m_tool.waitForFinished(testPatience);
}

QString LiveTool::ask(const QString& request)
{
    const QByteArray line = request.toUtf8() + '\n';
    if (::write(m_probe, line.constData(), static_cast<std::size_t>(line.size())) != line.size())
        return {};
    QByteArray reply;
    char byte = 0;
    while (waitReadable(m_probe) && ::read(m_probe, &byte, 1) == 1 && byte != '\n')
        reply.append(byte);
    return QString::fromUtf8(reply);
}

QString LiveTool::await(const QString& request)
{
    const QDeadlineTimer deadline(testPatience);
    QString reply = ask(request);
    while (reply.isEmpty() && !deadline.hasExpired() && m_tool.state() == QProcess::Running) {
        QTest::qWait(20);
        reply = ask(request);
    }
    if (reply.isEmpty())
        qWarning("No answer to '%s'.", qPrintable(request));
    return reply;
}

QRect LiveTool::onScreen(const QString& reply) const
{
    const QRect rect = toRect(reply);
    return {rect.topLeft() * m_scale, rect.size() * m_scale};
}

QRect LiveTool::widget(const QString& name)
{
    return onScreen(await(QStringLiteral("widget ") + name));
}

QRect LiveTool::item(const QString& view, const QString& text)
{
    return onScreen(await(QStringLiteral("item %1 %2").arg(view, text)));
}

QString LiveTool::properties(const QString& name, const QString& key)
{
    return ask(QStringLiteral("properties %1 %2").arg(name, key));
}

QString LiveTool::property(const QString& name, const QString& key)
{
    return ask(QStringLiteral("property %1 %2").arg(name, key));
}

bool LiveTool::becomes(const QString& name, const QString& key)
{
    const bool became = QTest::qWaitFor([&] { return property(name, key) == QLatin1String("true"); }, testPatience);
    if (!became)
        qWarning("'%s' of '%s' isn't true.", qPrintable(key), qPrintable(name));
    return became;
}

bool LiveTool::isShown(const QString& name)
{
    return !ask(QStringLiteral("widget ") + name).isEmpty();
}

QString LiveTool::action(const QString& text)
{
    return ask(QStringLiteral("action ") + text);
}

void LiveTool::click(const QPoint& position)
{
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
        QStringLiteral("click"), QStringLiteral("1")});
}

void LiveTool::doubleClick(const QPoint& position)
{
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
        QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"),
        QStringLiteral("50"), QStringLiteral("1")});
}

void LiveTool::drag(const QPoint& from, const QPoint& to)
{
    dragAndHold(from, to);
    release();
}

void LiveTool::dragAndHold(const QPoint& from, const QPoint& to)
{
    constexpr int steps = 8;
    QStringList commands{QStringLiteral("mousemove"), QString::number(from.x()), QString::number(from.y()),
        QStringLiteral("mousedown"), QStringLiteral("1")};
    for (int step = 1; step <= steps; ++step) {
        const QPoint point = from + (to - from) * step / steps;
        commands << QStringLiteral("mousemove") << QString::number(point.x()) << QString::number(point.y())
                 << QStringLiteral("sleep") << QStringLiteral("0.02");
    }
    xdotool(commands);
}

void LiveTool::moveTo(const QPoint& position)
{
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y())});
}

void LiveTool::release()
{
    xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

void LiveTool::turnWheel(const QPoint& position, int notches)
{
    xdotool({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
        QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(std::abs(notches)),
        notches > 0 ? QStringLiteral("4") : QStringLiteral("5")});
}

void LiveTool::key(const QString& name)
{
    xdotool({QStringLiteral("key"), name});
}

void LiveTool::type(const QString& text)
{
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("5"), QStringLiteral("--"), text});
}

bool LiveTool::typeFileName(const QString& fileName)
{
    const QString line = QStringLiteral("fileNameEdit");
    if (!becomes(line, QStringLiteral("focus")))
        return false;
    type(fileName);
    // The dialog may find the file in its list meanwhile, and show its name without the folder.
    const auto text = [&] { return property(line, QStringLiteral("text")); };
    const bool arrived
        = QTest::qWaitFor([&] { return text() == fileName || text() == QFileInfo(fileName).fileName(); }, testPatience);
    if (!arrived)
        qWarning("The file dialog has '%s'.", qPrintable(text()));
    return arrived;
}

void LiveTool::saveScreen(const QString& fileName)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), fileName});
    process.waitForFinished(testPatience);
}

QImage LiveTool::screen()
{
    const QString fileName = m_folder.filePath(QStringLiteral("screen.png"));
    saveScreen(fileName);
    return QImage(fileName);
}

void LiveTool::xdotool(const QStringList& arguments)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral("xdotool"), arguments);
    if (!process.waitForFinished(testPatience) || process.exitCode() != 0)
        qWarning("xdotool %s failed.", qPrintable(arguments.join(u' ')));
}
