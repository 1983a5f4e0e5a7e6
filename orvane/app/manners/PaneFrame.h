#pragma once

#include <QPointer>
#include <QWidget>

/// A frame over a pane that has got the focus by a key, so that one sees where it went. It goes when the focus leaves
/// the pane and at the next click.
class PaneFrame : public QWidget {
    Q_OBJECT

public:
    explicit PaneFrame(QWidget* pane);
    ~PaneFrame() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void focusMoved(const QWidget* focus);
};
