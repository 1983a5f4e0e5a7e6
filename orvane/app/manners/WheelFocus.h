#pragma once

#include <QObject>

/// The wheel changes a value only in a control that has the focus. Over any other it scrolls what the control is in.
/// A turn of the wheel doesn't give the focus either.
class WheelFocus : public QObject {
    Q_OBJECT

public:
    explicit WheelFocus(QObject* parent);
    ~WheelFocus() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};
