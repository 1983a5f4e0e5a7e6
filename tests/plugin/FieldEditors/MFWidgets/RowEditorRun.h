#pragma once

#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "Patience.h"
#include "plugin/EditorHarness.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxMField.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

/// A loaded and shown editor of a list, with a list of its type in the gallery.
class RowEditorRun {
public:
    /// The type is a word such as "MFVec2f". Without a value the editor gets no field yet.
    RowEditorRun(std::unique_ptr<DvMFieldWidget> rowEditor, const QString& type, const QString& value = {})
        : editor(std::move(rowEditor))
        , field(fieldOf(*m_harness.node, type))
        , m_run(*editor)
    {
        m_run.window.resize(760, 260);
        [this] { QVERIFY(QTest::qWaitForWindowActive(&m_run.window, testPatience)); }();
        if (!value.isEmpty()) {
            set(value);
            m_run.select(field);
        }
    }

    void select(NxTypedObject* object) { m_run.select(object); }
    template <typename Child>
    [[nodiscard]] Child* find(const char* name) const
    {
        return m_run.find<Child>(name);
    }
    void click(const char* button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }

    [[nodiscard]] DvMFieldTable* table() const { return find<DvMFieldTable>("m_table"); }
    [[nodiscard]] QStringList labels() const
    {
        QStringList texts;
        for (int column = 0; column < table()->columnCount(); ++column) {
            const QTableWidgetItem* const item = table()->horizontalHeaderItem(column);
            texts << (item != nullptr ? item->text() : QString());
        }
        return texts;
    }
    /// The texts of a row's cells, as many as the table has columns.
    [[nodiscard]] QStringList texts(int row) const
    {
        QStringList all;
        for (int column = 0; column < table()->columnCount(); ++column)
            all << editor->getCellValue(row, column);
        return all;
    }

    [[nodiscard]] QRect cell(int row, int column) const { return table()->visualRect(index(row, column)); }
    void clickCell(int row, int column) const
    {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell(row, column).center());
    }
    /// Opens a cell by a double click and gives its line; null when it doesn't open.
    [[nodiscard]] QLineEdit* open(int row, int column) const
    {
        clickCell(row, column); // the table takes a double click only after a press
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, cell(row, column).center());
        return qobject_cast<QLineEdit*>(table()->indexWidget(index(row, column)));
    }
    /// Opens a cell, replaces its text key by key, and presses a key.
    void edit(int row, int column, const QString& text, Qt::Key key = Qt::Key_Return) const
    {
        QLineEdit* const line = open(row, column);
        QVERIFY(line != nullptr);
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
        QTest::keyClick(line, key);
        settle();
    }
    /// Has an open cell closed for good, which comes from the event loop.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// What the table shows.
    [[nodiscard]] QImage picture() const { return table()->viewport()->grab().toImage(); }

    /// Changes the field from outside, without telling the editor yet.
    void set(const QString& value) const { QVERIFY(field->set(value.toUtf8().constData())); }
    [[nodiscard]] QString text() const { return ToolHarness::textOf(*field); }
    [[nodiscard]] int pushed() const { return m_harness.services.pushed; }
    [[nodiscard]] OrvCommand& lastCommand() const { return *m_harness.services.commands.back(); }
    [[nodiscard]] NxFieldGallery& node() const { return *m_harness.node; }

private:
    static NxMField* fieldOf(NxFieldGallery& node, const QString& type)
    {
        const QByteArray name = "mf" + type.mid(2).toLatin1();
        return dynamic_cast<NxMField*>(node.getField(VbName(name.constData())));
    }
    [[nodiscard]] QModelIndex index(int row, int column) const { return table()->model()->index(row, column); }

    ToolHarness m_harness;

public:
    std::unique_ptr<DvMFieldWidget> editor;
    NxMField* field;

private:
    EditorRun m_run;
};
