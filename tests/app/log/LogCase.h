#pragma once

#include "app/window/RobotWindowCase.h"

#include "orvane/app/docks/LogDock.h"
#include "orvane/app/log/LogBook.h"
#include "orvane/app/log/LogModel.h"
#include "orvane/app/log/LogPanel.h"
#include "orvane/app/log/LogView.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// A test of the dock of the log in the window.
class LogCase : public RobotWindowCase {
protected:
    [[nodiscard]] LogDock* dock() { return m_window->findChild<LogDock*>(); }
    [[nodiscard]] LogPanel* panel() { return m_window->findChild<LogPanel*>(); }
    [[nodiscard]] LogModel* model() { return panel()->model(); }
    [[nodiscard]] LogView* view() { return panel()->view(); }
    [[nodiscard]] QLineEdit* line(const char* name) { return panel()->findChild<QLineEdit*>(QLatin1String(name)); }
    [[nodiscard]] QToolButton* button(const char* name)
    {
        return panel()->findChild<QToolButton*>(QLatin1String(name));
    }
    [[nodiscard]] QString label(const char* name) { return panel()->findChild<QLabel*>(QLatin1String(name))->text(); }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    void pressKey() { QTest::keyClick(m_window.get(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier); }
    void show()
    {
        m_window->resize(1300, 900);
        pressKey();
        QVERIFY(dock()->isVisible());
        dock()->book().clear();
    }
    void add(const QString& text, NxSeverity severity = NxSeverity::Information)
    {
        dock()->book().add(severity, u"test"_s, text);
    }
    void addLines(int count)
    {
        const std::size_t before = dock()->book().lineCount();
        for (int i = 0; i < count; ++i)
            add(u"line %1"_s.arg(i));
        QTRY_COMPARE(dock()->book().lineCount(), before + static_cast<std::size_t>(count));
    }
    [[nodiscard]] QString textOf(int row) { return model()->index(row, LogModel::TextColumn).data().toString(); }
    /// Clicks on a part of the text of a row.
    void clickText(int row, const QString& part)
    {
        const QModelIndex index = model()->index(row, LogModel::TextColumn);
        const QRect area = view()->visualRect(index);
        const QFontMetrics metrics(view()->font());
        const QString text = textOf(row);
        const int before = metrics.horizontalAdvance(text.left(text.indexOf(part)));
        const int margin = view()->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view()) + 1;
        const QPoint place(area.left() + margin + before + metrics.horizontalAdvance(part) / 2, area.center().y());
        QTest::mouseMove(view()->viewport(), place);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place);
    }
};
