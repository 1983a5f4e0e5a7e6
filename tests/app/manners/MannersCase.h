#pragma once

#include "app/AppScenes.h"
#include "app/WindowCase.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/extender/VbText.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QTableView>
#include <QWheelEvent>
#include <QWindow>

/// A test of what the application does for the editors of the real plug-in: the window on a node that has a field of
/// each class, worked by events of the window system, which go where the focus is.
class MannersCase : public WindowCase {
protected:
    void startWithGallery(bool withManners = true)
    {
        orvane::useProgramLocale();
        NxPreferences::set("ORVANE_MANNERS", withManners ? "1" : "0");
        startTool();
        QVERIFY(m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders())).isEmpty());
        QVERIFY(m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)}).isEmpty());
        QVERIFY(m_session->activateProfile(QString()));
        QCOMPARE(open(QStringLiteral(GALLERY_FILE)), QString());
        m_node = m_window->document().scene()->getChild(0);
    }

    void endWithGallery()
    {
        m_node = nullptr;
        endTool();
        NxPreferences::unset("ORVANE_MANNERS");
    }

    [[nodiscard]] NxField* field(QAnyStringView name) const
    {
        const NxFieldData* const data = m_node->getFieldData();
        return data->getField(m_node, data->getIndex(VbName(name.toString().toLatin1().constData())));
    }

    [[nodiscard]] QString value(QAnyStringView name) const
    {
        VbString text;
        field(name)->get(text);
        return orvane::toQString(text);
    }

    void select(QAnyStringView name)
    {
        m_session->services().select(m_node, field(name));
        settle();
        QVERIFY(dock()->isVisible());
    }

    static void settle()
    {
        AppScenes::runSensors();
        QApplication::processEvents();
        AppScenes::runSensors();
    }

    /// The dock of the field editors.
    [[nodiscard]] QDockWidget* dock() const
    {
        for (QDockWidget* const each : m_window->findChildren<QDockWidget*>()) {
            if (each->windowTitle() == QLatin1String("Field Editor"))
                return each;
        }
        return nullptr;
    }

    /// The lines that can be typed into, without those of tables.
    [[nodiscard]] QList<QLineEdit*> lines() const
    {
        QList<QLineEdit*> lines = dock()->widget()->findChildren<QLineEdit*>();
        lines.removeIf([](const QLineEdit* line) {
            return !line->isEnabled() || line->inherits("NumberLine")
                || qobject_cast<QTableView*>(line->parentWidget()->parentWidget()) != nullptr;
        });
        return lines;
    }

    [[nodiscard]] QTableView* cells() const { return dock()->widget()->findChild<QTableView*>(); }

    /// The application's own line, if it is open.
    [[nodiscard]] static QLineEdit* cover()
    {
        QWidget* const focus = QApplication::focusWidget();
        return focus != nullptr && focus->objectName() == QLatin1String("numberCover") ? qobject_cast<QLineEdit*>(focus)
                                                                                       : nullptr;
    }

    /// A click into a line, which marks its text.
    static void enter(QLineEdit* line)
    {
        QTest::mouseClick(line, Qt::LeftButton);
        line->selectAll();
    }

    void openCell(int row, int column)
    {
        const QModelIndex index = cells()->model()->index(row, column);
        cells()->scrollTo(index);
        const QPoint place = cells()->visualRect(index).center();
        QTest::mouseClick(cells()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(cells()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr);
        static_cast<QLineEdit*>(QApplication::focusWidget())->selectAll();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window->windowHandle(), key, modifiers);
        settle();
    }

    void type(const QString& text)
    {
        for (const QChar character : text)
            QTest::keyClick(m_window->windowHandle(), character.toLatin1());
        settle();
    }

    [[nodiscard]] QString message() const
    {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (const auto* const shown = qobject_cast<InputMessage*>(each); shown != nullptr && shown->isVisible())
                return shown->text();
        }
        return {};
    }

    /// Turns the wheel over the middle of a widget, upwards for more than 0.
    void turnWheel(QWidget* widget, int notches)
    {
        const QPointF place = widget->rect().center();
        QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        event.setTimestamp(++m_time);
        QApplication::sendEvent(widget, &event);
        settle();
    }

    [[nodiscard]] int steps() const { return m_session->services().undoDepth(); }

    NxNode* m_node = nullptr;
    quint64 m_time = 0; // of the last turn of the wheel
};
