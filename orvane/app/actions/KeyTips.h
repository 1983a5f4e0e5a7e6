#pragma once

#include <QObject>

/// Adds the present keys of an action to the tool tips of its buttons.
class KeyTips : public QObject {
    Q_OBJECT

public:
    explicit KeyTips(QObject* parent);
    ~KeyTips() override;

    bool eventFilter(QObject* object, QEvent* event) override;
};
