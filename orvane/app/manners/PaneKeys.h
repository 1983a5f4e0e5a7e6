#pragma once

#include "orvane/app/manners/EditorDocks.h"

#include <QList>
#include <QObject>
#include <QPointer>

class FieldPanel;
class LineWatch;
class PaneFrame;
class QKeyEvent;
class QMainWindow;

/// The keys that lead from pane to pane of the window.
///
/// - F6 goes on to the next pane, Shift+F6 back: scene tree, view, field table, the other docks, those at the bottom
///   last. The widget that had the focus in a pane gets it again, and a frame shows the pane until the next click.
/// - Ctrl+Return in the field table goes to the editor of the field.
/// - Escape in an editor restores a text that hasn't been finished; without one it goes back to the field table.
class PaneKeys : public QObject {
    Q_OBJECT

public:
    PaneKeys(QMainWindow* window, FieldPanel* fields, LineWatch& watch);
    ~PaneKeys() override;

public Q_SLOTS:
    /// Gives the keys to the first control of the field's editor; does nothing if no editor is shown.
    void focusEditor();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] bool keyPressed(QWidget* widget, const QKeyEvent& key);
    [[nodiscard]] bool escape(QWidget* widget);
    [[nodiscard]] QList<QWidget*> panes() const;
    void step(int direction);
    void focusPane(QWidget* pane);

    QMainWindow* m_window;
    FieldPanel* m_fields;
    LineWatch& m_watch;
    EditorDocks m_docks;
    QPointer<PaneFrame> m_frame;
};
