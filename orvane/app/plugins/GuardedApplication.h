#pragma once

#include <QApplication>

/// The application object of the tool. An exception that a plug-in throws while it handles an event ends with the
/// event, and the plug-in is put to rest; other exceptions end the program, as everywhere.
class GuardedApplication : public QApplication {
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};
