#pragma once

#include <QHash>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The real tool in a window of its own X server, with a window manager, worked by real mouse and key events. Each
/// operation fails the test with a message when it can't be done in time, and gives false or nothing.
class LiveTool {
public:
    LiveTool() = default;
    ~LiveTool();
    LiveTool(const LiveTool&) = delete;
    LiveTool& operator=(const LiveTool&) = delete;

    /// Lets the tool read and write settings, in a folder that the test owns. Without, it has none.
    void keepSettingsIn(const QString& folder) { m_settingsFolder = folder; }
    /// Lets the tool keep recovery files in a folder that the test owns. Without, it has one of its own.
    void keepStateIn(const QString& folder) { m_stateFolder = folder; }
    /// The locale of the desktop, such as "de_DE.UTF-8".
    void useLocale(const QString& locale) { m_locale = locale; }
    /// How many pixels of the screen are one of the tool's. The screen has as many more.
    void useScale(int scale) { m_scale = scale; }
    /// A variable of the tool's environment; taken away if the value is null. To be set before the start.
    void setVariable(const QString& name, const QString& value) { m_variables.insert(name, value); }
    /// What a shell does before it becomes the tool, such as "ulimit -f 0;".
    void prepareBy(const QString& command) { m_preparation = command; }
    /// Starts server and tool and waits until the window has its place.
    [[nodiscard]] bool start(const QStringList& arguments);
    /// The same on the screen of another one, which lives longer. They share mouse, keyboard and clipboard; the window
    /// that was activated last has the focus.
    [[nodiscard]] bool startBeside(const LiveTool& other, const QStringList& arguments);
    /// Brings the window to the front and waits until it has the focus.
    [[nodiscard]] bool activate();
    /// Closes the window as Ctrl+Q does and gives the exit status, or -1.
    [[nodiscard]] int quit();
    /// What the tool was started with, for another program on its screen.
    [[nodiscard]] const QProcessEnvironment& environment() const noexcept { return m_environment; }
    [[nodiscard]] qint64 processId() const { return m_tool.processId(); }
    /// Kills the tool, which can do nothing about it.
    void kill();

    /// The centre and extent of a widget, or of a row of a view, in pixels of the screen; waits for it to appear.
    [[nodiscard]] QRect widget(const QString& name);
    [[nodiscard]] QRect item(const QString& view, const QString& text);
    [[nodiscard]] QString property(const QString& name, const QString& key);
    /// A property of all visible widgets of that name, with bars between them; empty if there is none.
    [[nodiscard]] QString properties(const QString& name, const QString& key);
    /// Waits until a property is true.
    [[nodiscard]] bool becomes(const QString& name, const QString& key);
    /// Whether a widget of that name is seen now.
    [[nodiscard]] bool isShown(const QString& name);
    [[nodiscard]] QString action(const QString& text);

    void click(const QPoint& position);
    void doubleClick(const QPoint& position);
    /// Presses at the first point, moves to the second in steps, and releases.
    void drag(const QPoint& from, const QPoint& to);
    /// The same without the release.
    void dragAndHold(const QPoint& from, const QPoint& to);
    void moveTo(const QPoint& position);
    void release();
    /// Turns the wheel by so many notches at that point, upwards for more than 0.
    void turnWheel(const QPoint& position, int notches);
    /// A key or chord as X names it, such as "ctrl+z" or "Return".
    void key(const QString& name);
    void type(const QString& text);
    /// Waits until the line of a file dialog has the focus, types the name, and waits until the dialog shows it.
    [[nodiscard]] bool typeFileName(const QString& fileName);
    /// Writes a picture of the screen.
    void saveScreen(const QString& fileName);
    /// What the screen shows now.
    [[nodiscard]] QImage screen();

private:
    [[nodiscard]] QStringList settingsArguments() const;
    [[nodiscard]] QRect onScreen(const QString& reply) const;
    [[nodiscard]] QString ask(const QString& request);
    /// Asks until the answer isn't empty.
    [[nodiscard]] QString await(const QString& request);
    void xdotool(const QStringList& arguments);
    [[nodiscard]] bool startServer();
    [[nodiscard]] bool startTool(const QStringList& arguments);
    [[nodiscard]] bool startWindowManager();
    [[nodiscard]] bool windowManagerAnswers() const;
    [[nodiscard]] bool acceptProbe(int listener);

    QTemporaryDir m_folder;
    QString m_settingsFolder;
    QString m_stateFolder;
    QString m_locale;
    QHash<QString, QString> m_variables;
    QString m_preparation;
    int m_scale = 1;
    QProcess m_server;
    QProcess m_windowManager;
    QProcess m_tool;
    QProcessEnvironment m_environment;
    int m_probe = -1;
};
