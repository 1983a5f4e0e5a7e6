#pragma once

#include "EditorHarness.h"
#include "FieldEditors/MFWidgets/AccessButtonPrivate.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "Patience.h"

#include "meridane/scene/fields/NxMField.h"

#include <QLineEdit>
#include <QPushButton>

/// A multi-value editor in an active window, and what a user does in it.
template <typename Editor>
class ListRun : public ToolHarness {
public:
    explicit ListRun(NxField* shown = nullptr)
        : run(editor)
        , table(run.template find<DvMFieldTable>("m_table"))
        , box(run.template find<AccessButtonPrivate>("m_accessBox"))
    {
        run.window.resize(500, 400);
        run.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&run.window, testPatience))
            qFatal("the window didn't become active");
        if (shown != nullptr)
            show(*shown);
    }

    void show(NxField& field)
    {
        run.select(&field);
        settle();
    }
    /// Events, sensors, deferred deletions: until nothing waits.
    static void settle()
    {
        for (int i = 0; i < 4; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            pump();
        }
    }

    QStringList texts(NxMField& field) const
    {
        QStringList result;
        for (int row = 0; row < field.getNum(); ++row) {
            VbString text;
            field.get1(row, text);
            result << QString::fromUtf8(text.toUtf8());
        }
        return result;
    }
    QPoint at(int row, int column = 0) const { return table->visualRect(table->model()->index(row, column)).center(); }
    void click(int row, int column = 0) { QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, at(row, column)); }
    void doubleClick(int row, int column = 0)
    {
        click(row, column);
        settle();
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, at(row, column));
        QCoreApplication::processEvents();
    }
    /// The editor that is open in a cell, or null.
    QWidget* editorIn(int row, int column = 0) const { return table->indexWidget(table->model()->index(row, column)); }
    /// The line that is open in a cell, or is part of the slider that is; null without one.
    QLineEdit* lineIn(int row, int column = 0) const
    {
        QWidget* const open = editorIn(row, column);
        if (auto* const line = qobject_cast<QLineEdit*>(open))
            return line;
        return open != nullptr ? open->findChild<QLineEdit*>() : nullptr;
    }
    void type(QLineEdit* line, const QString& text) const
    {
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    void press(const char* button)
    {
        QTest::mouseClick(run.template find<QPushButton>(button), Qt::LeftButton);
        settle();
    }
    /// What a cell looks like.
    QImage picture(int row, int column = 0) const
    {
        return table->viewport()
            ->grab(table->visualRect(table->model()->index(row, column)).adjusted(0, 0, -1, -1))
            .toImage();
    }

    Editor editor;
    EditorRun run;
    DvMFieldTable* table;
    AccessButtonPrivate* box;
};
