#pragma once

#include <QSpinBox>

/// The spin box that names a row of a list, counted from 1.
class AccessButtonPrivate final : public QSpinBox {
    Q_OBJECT

public:
    AccessButtonPrivate(int minimum, int maximum, int step, QWidget* parent, const char* name);
    AccessButtonPrivate(QWidget* parent, const char* name);

public Q_SLOTS:
    /// Shows the number of a row; `value` is counted from 0.
    void setNewValue(int value);

protected:
    /// Return reports the number again, although it hasn't changed.
    void keyPressEvent(QKeyEvent* event) override;
};
