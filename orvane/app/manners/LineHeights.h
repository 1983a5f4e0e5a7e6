#pragma once

#include <QObject>

/// Makes the labels, lines and spin boxes of editors as high as their font needs, where an editor gives them a height
/// for a font of the usual size.
class LineHeights : public QObject {
    Q_OBJECT

public:
    explicit LineHeights(QObject* parent);
    ~LineHeights() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};
