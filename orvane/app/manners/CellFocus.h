#pragma once

#include <QObject>
#include <QPointer>

class QAbstractSpinBox;

/// Gives the keys to what an editor opens: the first line of a popup such as the grid of a matrix, and the line in the
/// editor of a cell. When Escape closes such a popup, the focus goes back to the editor.
///
/// Tab in the line of a cell writes the cell and goes on to the next one, Shift+Tab to the one before.
///
/// It also makes the line of a cell show the cell's own value, and spin boxes of single values write a typed number
/// once it is finished.
class CellFocus : public QObject {
    Q_OBJECT

public:
    explicit CellFocus(QObject* parent);
    ~CellFocus() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void widgetShown(QWidget* widget);
    void keyPressed(QWidget* widget, int key);
    void popupHidden(QWidget* popup);
    static void popupShown(QWidget* popup);
    static void cellEditorShown(QWidget* editor);
    static void boxFocused(QAbstractSpinBox* box);
    static void tabPressed(QWidget* widget, bool backwards);

    QPointer<QWidget> m_escaped; // the popup to which the last key, Escape, went
};
