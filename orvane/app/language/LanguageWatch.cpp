#include "orvane/app/language/LanguageWatch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPointer>

#include <array>

namespace {

/// Buttons that Qt names once, with the texts of their names.
struct QtButton {
    const char* objectName;
    const char* context;
    const char* name;
    const char* description; // or null
};

constexpr std::array qtButtons{
    QtButton{"qt_dockwidget_floatbutton", "QDockWidget", "Float", "Undocks and re-attaches the dock widget"},
    QtButton{"qt_dockwidget_closebutton", "QDockWidget", "Close", "Closes the dock widget"},
    QtButton{"ScrollLeftButton", "QTabBar", "Scroll Left", nullptr},
    QtButton{"ScrollRightButton", "QTabBar", "Scroll Right", nullptr},
};

void nameQtButton(QWidget& button)
{
    for (const QtButton& known : qtButtons) {
        if (button.objectName() != QLatin1String(known.objectName))
            continue;
        button.setAccessibleName(QCoreApplication::translate(known.context, known.name));
        if (known.description != nullptr)
            button.setAccessibleDescription(QCoreApplication::translate(known.context, known.description));
    }
}

} // namespace

LanguageWatch* LanguageWatch::ofApplication()
{
    static QPointer<LanguageWatch> watch;
    QCoreApplication* const application = QCoreApplication::instance();
    if (watch.isNull() && application != nullptr) {
        watch = new LanguageWatch(application);
        application->installEventFilter(watch);
    }
    return watch;
}

bool LanguageWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::LanguageChange || object != QCoreApplication::instance())
        return false;
    Q_EMIT changed();
    // Texts that are asked for when they are shown.
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (auto* const header = qobject_cast<QHeaderView*>(widget); header != nullptr && header->count() > 0)
            header->headerDataChanged(header->orientation(), 0, header->count() - 1);
        if (qobject_cast<QAbstractButton*>(widget) != nullptr)
            nameQtButton(*widget);
        widget->update();
    }
    return false;
}
