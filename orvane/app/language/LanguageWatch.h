#pragma once

#include <QObject>

/// Announces that the texts of the application are in another language, whoever installed the translator. It sees that
/// before the windows do, which get the event one after the other later.
class LanguageWatch : public QObject {
    Q_OBJECT

public:
    /// The one of the application object, which owns it. Null without such an object.
    [[nodiscard]] static LanguageWatch* ofApplication();

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    using QObject::QObject;
};
