#pragma once

#include "Patience.h"
#include "app/ItemClicks.h"
#include "app/history/HistoryScene.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/lists/ListPanel.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/ShownRows.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/extender/OrvStepList.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <memory>
#include <numeric>

/// A test of the list panel on the lists of a field gallery.
class ListCase : public QObject {
protected:
    void openPanel()
    {
        m_open = std::make_unique<HistoryScene>();
        m_settings = std::make_unique<AppSettings>(AppSettings::Mode::None);
        m_panel = std::make_unique<ListPanel>(m_open->services(), *m_settings);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_panel->resize(900, 500);
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get(), testPatience));
    }
    void closePanel()
    {
        m_tester.reset();
        m_panel.reset();
        m_settings.reset();
        m_open.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    [[nodiscard]] ListModel* model() { return m_panel->model(); }
    [[nodiscard]] ListView* view() { return m_panel->view(); }
    [[nodiscard]] NxFieldGallery& node() { return m_open->hand(); }
    [[nodiscard]] NxMFInt32& numbers() { return node().mfInt32; }
    [[nodiscard]] NxMFVec3f& vectors() { return node().mfVec3f; }
    [[nodiscard]] OrvStepList& steps() { return m_open->services().steps(); }
    [[nodiscard]] QString lastStep() { return steps().count() > 0 ? steps().label(steps().count() - 1) : QString(); }
    [[nodiscard]] QStringList messages() { return m_panel->findChild<MessageBar*>()->texts(); }
    [[nodiscard]] QLineEdit* line(const char* name) { return m_panel->findChild<QLineEdit*>(QLatin1String(name)); }
    /// The editor of the cell that is being edited, or null.
    [[nodiscard]] QLineEdit* cellEditor()
    {
        return view()->viewport()->findChild<QLineEdit*>(QStringLiteral("listCellEditor"));
    }

    /// Selects a list as the user does in the field table, with the values from before the first step.
    void show(NxMField& list, const char* text = nullptr)
    {
        if (text != nullptr)
            QVERIFY(list.set(text));
        m_open->finish();
        m_open->services().clearHistory();
        m_open->services().select(list.getContainer(), &list);
        m_open->finish();
    }
    /// The same with the numbers from 0 on.
    void showNumbers(int count)
    {
        std::vector<int> values(static_cast<std::size_t>(count));
        std::iota(values.begin(), values.end(), 0);
        numbers().setValues(std::move(values));
        show(numbers());
    }
    [[nodiscard]] static QString textOf(const NxField& field)
    {
        VbString text;
        field.get(text);
        return orvane::toQString(text);
    }

    [[nodiscard]] QPoint cellCenter(int row, int column)
    {
        view()->scrollTo(model()->index(row, column));
        return view()->visualRect(model()->index(row, column)).center();
    }
    void clickCell(int row, int column, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        ItemClicks::click(view(), model()->index(row, column), keys);
    }
    void doubleClickCell(int row, int column)
    {
        clickCell(row, column);
        const QPoint center = cellCenter(row, column);
        QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, center);
        QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, center);
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        view()->scrollTo(model()->index(row, 0));
        QTest::mouseClick(view()->verticalHeader()->viewport(), Qt::LeftButton, keys, headerPoint(row));
    }
    [[nodiscard]] QPoint headerPoint(int row)
    {
        return {view()->verticalHeader()->width() / 2, view()->rowViewportPosition(row) + view()->rowHeight(row) / 2};
    }
    void press(int key, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QTest::keyClick(view(), static_cast<Qt::Key>(key), keys);
        m_open->finish();
    }
    /// Types into the line that has the focus.
    void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void enter(const char* name, const QString& text)
    {
        QLineEdit* const edit = line(name);
        QTest::mouseClick(edit, Qt::LeftButton);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        settle();
    }
    /// Waits until rows are found and steps have ended.
    void settle()
    {
        QTRY_VERIFY(!m_panel->shownRows()->isBusy());
        m_open->finish();
    }
    /// The numbers of the rows that are shown.
    [[nodiscard]] QList<int> shownRows()
    {
        QList<int> rows;
        for (int place = 0; place < model()->rowCount(); ++place)
            rows += model()->headerData(place, Qt::Vertical, Qt::DisplayRole).toInt();
        return rows;
    }
    [[nodiscard]] QList<int> selectedRows()
    {
        QList<int> rows;
        for (const int row : orvane::rowsOf(view()->selectedListRows()))
            rows += row;
        return rows;
    }

    std::unique_ptr<HistoryScene> m_open;
    std::unique_ptr<AppSettings> m_settings;
    std::unique_ptr<ListPanel> m_panel;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};
