#pragma once

#include "app/window/RobotWindowCase.h"

#include "orvane/app/actions/PickerModel.h"
#include "orvane/app/actions/PickerPopup.h"

#include <QLineEdit>
#include <QListView>
#include <QPointer>

/// A test of the pickers of a window, by real keys.
class PickerCase : public RobotWindowCase {
protected:
    /// The offscreen platform doesn't do that by itself when a popup closes.
    void activate()
    {
        m_window->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
    }
    PickerPopup* popup() { return qobject_cast<PickerPopup*>(QApplication::activePopupWidget()); }
    QLineEdit* line() { return popup()->findChild<QLineEdit*>(QStringLiteral("pickerLine")); }
    QListView* list() { return popup()->findChild<QListView*>(QStringLiteral("pickerList")); }
    const PickerModel& rows() { return static_cast<const PickerModel&>(*list()->model()); }
    const PickerItem* row(int number) { return rows().item(rows().index(number)); }
    QString textOf(int number) { return row(number) == nullptr ? QString() : row(number)->text; }
    const PickerItem* rowWith(const char* text)
    {
        for (int i = 0; i < rows().rowCount(); ++i) {
            if (textOf(i) == QLatin1String(text))
                return row(i);
        }
        return nullptr;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(popup() != nullptr ? static_cast<QWidget*>(line()) : m_window->focusWidget(), key, modifiers);
    }
    void type(const char* text) { QTest::keyClicks(line(), QLatin1String(text)); }
    void close()
    {
        if (popup() != nullptr)
            press(Qt::Key_Escape);
        QCOMPARE(popup(), nullptr);
    }
};
