#pragma once

#include <QObject>

class FieldPanel;
class OrvServices;
class QMainWindow;

/// The manners that the editors of plug-ins lack, given to them from outside by event filters; their classes stay as
/// they are. docs/editing.md describes them.
///
/// The preference `ORVANE_MANNERS`, which is on by default, is read when the window is first shown: the file of
/// preferences has been read by then. If it is off, nothing is filtered.
class EditorManners : public QObject {
    Q_OBJECT

public:
    /// `fields` is the panel to which Escape leads back. All live as long as the window.
    EditorManners(QMainWindow* window, OrvServices& services, FieldPanel* fields);
    ~EditorManners() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void begin();

    QMainWindow* m_window;
    OrvServices& m_services;
    FieldPanel* m_fields;
};
