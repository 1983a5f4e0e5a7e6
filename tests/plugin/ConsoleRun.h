#pragma once

#include "Console/OrvConsole.h"
#include "ToolHarness.h"

#include <QColor>
#include <QCoreApplication>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

/// The console in a window.
class ConsoleRun : public ToolHarness {
public:
    ConsoleRun()
    {
        console.load();
        console.activate();
        shell.window.resize(900, 500);
        shell.window.show();
    }
    ~ConsoleRun()
    {
        if (console.isActive())
            console.deactivate();
        console.unload();
    }

    [[nodiscard]] QTextEdit& output() const { return *console.m_consoleOutput; }
    [[nodiscard]] QStringList lines() const
    {
        // Errors come through the event loop.
        QCoreApplication::sendPostedEvents();
        return output().toPlainText().split(QLatin1Char('\n'));
    }
    [[nodiscard]] QColor colorOfLine(int line) const
    {
        return output().document()->findBlockByNumber(line).begin().fragment().charFormat().foreground().color();
    }
    void click(QPushButton* button) const { QTest::mouseClick(button, Qt::LeftButton); }

    OrvConsole console;
};
