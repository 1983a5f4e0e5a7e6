#pragma once

#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A test of the running tool on a scene file. What counts is the file.
class FileSession : public QObject {
protected:
    explicit FileSession(QString name)
        : m_name(std::move(name))
    {
    }

    [[nodiscard]] QString fileName() const { return m_folder.filePath(m_name); }

    /// Starts the tool with a file of that text, on a desktop of that locale, and selects the row of a node.
    void start(const QString& text, const QString& node, int scale, const QString& locale = {})
    {
        writeFile(fileName(), text.toUtf8());
        m_tool = std::make_unique<LiveTool>();
        if (!locale.isEmpty())
            m_tool->useLocale(locale);
        m_tool->useScale(scale);
        QVERIFY(m_tool->start({fileName()}));
        m_tool->click(m_tool->item(QStringLiteral("sceneTree"), node).center());
    }
    void end() { m_tool.reset(); }

    /// Selects the row of a field.
    void select(const QString& field) { m_tool->click(m_tool->item(QStringLiteral("fieldTable"), field).center()); }
    /// Types into a line in place of what it shows.
    void typeInto(const QString& line, const QString& text)
    {
        m_tool->click(m_tool->widget(line).center());
        QTRY_VERIFY(m_tool->property(line, QStringLiteral("focus")) == QLatin1String("true"));
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(text);
    }
    /// The text of the file after it was saved by its key.
    [[nodiscard]] QString saved()
    {
        m_tool->key(QStringLiteral("ctrl+s"));
        const bool isSaved = QTest::qWaitFor(
            [this] {
                return !m_tool->property(QStringLiteral("mainWindow"), QStringLiteral("windowModified"))
                            .startsWith(QLatin1String("true"));
            },
            testPatience);
        return isSaved ? QString::fromUtf8(readFile(fileName())) : QString();
    }

    QTemporaryDir m_folder;
    QString m_name;
    std::unique_ptr<LiveTool> m_tool;
};
