#pragma once

#include <QObject>

/// Shows at most 200 characters of the tool tips of editors, which may quote a whole value.
class ShortTips : public QObject {
    Q_OBJECT

public:
    static constexpr int mostCharacters = 200;

    explicit ShortTips(QObject* parent);
    ~ShortTips() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};
