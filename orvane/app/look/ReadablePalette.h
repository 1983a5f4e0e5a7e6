#pragma once

#include <QObject>

/// Keeps the texts of empty lines readable: some desktops have a dark palette without a colour for them, and they would
/// be black on black. Follows the palette of the desktop.
class ReadablePalette : public QObject {
    Q_OBJECT

public:
    /// Changes the palette of the application, which owns this.
    explicit ReadablePalette(QObject* application);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void mend();

    bool m_isMending = false;
};
