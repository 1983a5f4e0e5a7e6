#pragma once

#include "app/AppScenes.h"
#include "app/WindowCase.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/files/SaveQuestion.h"
#include "orvane/app/look/Theme.h"

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QFont>
#include <QPointer>
#include <QTranslator>

#include <algorithm>
#include <functional>

/// Shows each part of the tool: the window with the real plug-in and all of its docks, then each dialog.
class LookCase : public WindowCase {
protected:
    /// Texts that are longer by two fifths, as those of other languages.
    class LongTexts : public QTranslator {
    public:
        QString translate(const char*, const char* source, const char*, int) const override
        {
            const QString text = QString::fromUtf8(source);
            // A language changes no text without letters, and none of the program's own marks.
            if (text.size() < 3 || text.contains(u'<') || text.contains(QStringLiteral("(*")))
                return {};
            const auto more = std::max<qsizetype>(2, text.size() * 2 / 5);
            QString longer = text;
            for (qsizetype i = 0; i < more; ++i)
                longer.insert(text.endsWith(u'…') || text.endsWith(u':') ? longer.size() - 1 : longer.size(),
                    i % 7 == 0 && more > 7 ? u' ' : u'o');
            return longer;
        }
        bool isEmpty() const override { return false; }
    };

    void showAll(int points)
    {
        QFont font = m_usualFont;
        font.setPointSize(points);
        QApplication::setFont(font);
        startTool();
        QVERIFY(m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders())).isEmpty());
        QVERIFY(m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)}).isEmpty());
        QVERIFY(m_session->activateProfile(QString()));
        QCOMPARE(open(QStringLiteral(ROBOT_FILE)), QString());
        m_window->resize(1400, 1000);
        settle();
    }

    void endAll()
    {
        endTool();
        QApplication::setFont(m_usualFont);
        QApplication::setPalette(QPalette());
    }

    static void settle()
    {
        AppScenes::runSensors();
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
        AppScenes::runSensors();
    }

    /// Calls `look` with the window as it is opened, with a selected node and field, with each of its docks in front,
    /// and with each dialog.
    void forEach(const std::function<void(QWidget*, const QString&)>& look)
    {
        look(m_window.get(), QStringLiteral("window"));
        QVERIFY(m_window->selectPath(QStringLiteral("/robot/body.translation")));
        settle();
        look(m_window.get(), QStringLiteral("window with a field"));
        for (QDockWidget* const dock : m_window->findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!dock->toggleViewAction()->isEnabled())
                continue;
            const bool wasShown = dock->isVisible();
            dock->show();
            dock->raise();
            settle();
            look(m_window.get(), dock->objectName());
            dock->setVisible(wasShown);
            settle();
        }
        for (const char* const name : {"node.add", "help.keys", "help.about", "help.plugins", "view.exportPicture",
                 "view.addBookmark", "view.editBookmarks", "window.settings", "find.begin"}) {
            auto* const action = m_window->findChild<QAction*>(QLatin1String(name));
            if (action == nullptr || !action->isEnabled())
                continue;
            action->trigger();
            settle();
            lookAtDialogs(look, QLatin1String(name));
        }
        (new SaveQuestion(QStringLiteral("robot.mrd"), m_window.get()))->open(); // deletes itself
        settle();
        lookAtDialogs(look, QStringLiteral("save question"));
    }

    int m_dialogs = 0; // that were looked at

private:
    void lookAtDialogs(const std::function<void(QWidget*, const QString&)>& look, const QString& name)
    {
        QList<QPointer<QDialog>> dialogs; // closing one may delete others
        for (QWidget* const top : QApplication::topLevelWidgets())
            dialogs.append(qobject_cast<QDialog*>(top));
        for (const QPointer<QDialog>& dialog : dialogs) {
            if (dialog == nullptr || !dialog->isVisible())
                continue;
            ++m_dialogs;
            look(dialog, name);
            if (dialog != nullptr)
                dialog->reject();
            settle();
        }
    }

    QFont m_usualFont = QApplication::font();
};
