#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

class AppSettings;
class QHeaderView;
class QMainWindow;
class QSplitter;

/// Keeps the widths that the user gave to columns of tree and tables and to the parts of splitters, in the settings.
/// The field table keeps its own.
///
/// Widths that the user hasn't changed aren't kept, so that they still follow the size of the window.
class KeptColumns : public QObject {
    Q_OBJECT

public:
    /// Also for views that the window gets later. Both live longer.
    KeptColumns(QMainWindow* window, AppSettings& settings);
    ~KeptColumns() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void followViews();
    void follow(QHeaderView* header);
    void follow(QSplitter* splitter);
    void store(const QHeaderView& header);
    void restore(QHeaderView& header) const;

    QMainWindow* m_window;
    AppSettings& m_settings;
    QTimer m_followSoon;
    QList<QPointer<QObject>> m_followed;
    QPointer<QHeaderView> m_pressed;
    bool m_isResized = false; // since the mouse was pressed
};
