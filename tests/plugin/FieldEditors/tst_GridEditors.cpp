#include "Patience.h"
#include "plugin/EditorHarness.h"
#include "plugin/EditorList.h"
#include "plugin/WriteCounter.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>

/// What the editors of boxes and matrices make of their grid.
class TestGridEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_type = *static_cast<QString*>(QTest::qData("type", qMetaTypeId<QString>()));
        QVERIFY(field().set(editorEntry(m_type).value));
        m_editor = editorEntry(m_type).make(nullptr);
        m_run = std::make_unique<EditorRun>(*m_editor, field());
        QVERIFY(QTest::qWaitForWindowActive(&m_run->window, testPatience));
    }

    void cleanup()
    {
        m_run.reset();
        m_editor.reset();
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void slotsOfTheClass_data() { editors(); }

    void slotsOfTheClass()
    {
        const QMetaObject* const meta = m_editor->metaObject();
        if (m_type == QLatin1String("SFMatrix")) {
            QCOMPARE(meta, &DvPopupWidget::staticMetaObject);
            return;
        }
        QCOMPARE(meta->superClass(), &DvPopupWidget::staticMetaObject);
        QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
        QCOMPARE(meta->method(meta->methodOffset()).methodSignature(), QByteArray("applyChanges()"));
        QVERIFY(QMetaObject::invokeMethod(m_editor.get(), "applyChanges"));
        QCOMPARE(pushed(), 1);
    }

    void gridHasTheFieldsSize_data() { editors(); }

    void gridHasTheFieldsSize()
    {
        QFETCH(int, rows);
        QFETCH(int, columns);
        const auto* const grid = qobject_cast<QGridLayout*>(popup()->layout());
        QCOMPARE(grid->rowCount(), rows);
        QCOMPARE(grid->columnCount(), columns);
        QCOMPARE(lines().size(), qsizetype{rows} * columns);
        for (int index = 0; index < rows * columns; ++index)
            QCOMPARE(grid->itemAtPosition(index / columns, index % columns)->widget(), lines().at(index));
    }

    void linesShowTheFieldFromTheirBeginning_data() { editors(); }

    void linesShowTheFieldFromTheirBeginning()
    {
        QCOMPARE(texts(), value().split(u' '));
        for (const QLineEdit* const line : lines()) {
            QCOMPARE(line->cursorPosition(), 0);
            QVERIFY(!line->isModified());
        }
    }

    void textFormIsShownBesides_data() { editors(); }

    void textFormIsShownBesides()
    {
        QCOMPARE(textLine()->text(), value());
        QVERIFY(!textLine()->isEnabled());
    }

    void returnWritesEveryLine_data() { editors(); }

    void returnWritesEveryLine()
    {
        open();
        const WriteCounter counter(field());
        QStringList expected;
        for (QLineEdit* const line : lines()) {
            expected << QString::number(-3 * line->text().toInt());
            line->setText(expected.constLast());
        }
        lines().at(1)->setFocus();
        QTest::keyClick(lines().at(1), Qt::Key_Return);
        QCOMPARE(text(), expected.join(u' '));
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
        QCOMPARE(textLine()->text(), text());
    }

    void leavingALineWritesWhatWasTyped_data() { editors(); }

    void leavingALineWritesWhatWasTyped()
    {
        open();
        QLineEdit* const line = lines().constLast();
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("77"));
        QCOMPARE(text(), value());
        QVERIFY(m_editor->edited());
        lines().constFirst()->setFocus();
        QStringList expected = value().split(u' ');
        expected.back() = QStringLiteral("77");
        QCOMPARE(text(), expected.join(u' '));
        QCOMPARE(pushed(), 1);
    }

    void writingLeavesTheGridUntilTheSensorFires_data() { editors(); }

    void writingLeavesTheGridUntilTheSensorFires()
    {
        lines().at(2)->setText(QStringLiteral("+5"));
        lines().at(2)->setModified(true);
        m_editor->applyChanges();
        QCOMPARE(texts().at(2), QStringLiteral("+5"));
        QVERIFY(m_editor->edited());
        QCOMPARE(text().split(u' ').at(2), QStringLiteral("5"));
        QCOMPARE(textLine()->text(), text());
        ToolHarness::pump();
        QCOMPARE(texts(), text().split(u' '));
        QVERIFY(!m_editor->edited());
        QCOMPARE(pushed(), 1);
    }

    void undoKeepsTheValue_data() { editors(); }

    void undoKeepsTheValue()
    {
        lines().constFirst()->setText(QStringLiteral("-9"));
        m_editor->applyChanges();
        const QString written = text();
        QVERIFY(written != value());
        m_tool->services.undo();
        QCOMPARE(text(), written);
        m_tool->services.redo();
        QCOMPARE(text(), written);
    }

    void outsideChangeIsFollowed_data() { editors(); }

    void outsideChangeIsFollowed()
    {
        const QString other = value().replace(u'1', u'8');
        QVERIFY(field().set(other.toLatin1().constData()));
        QCOMPARE(texts(), value().split(u' '));
        ToolHarness::pump();
        QCOMPARE(texts(), other.split(u' '));
        QCOMPARE(textLine()->text(), other);
    }

    void badTextIsWrittenAsZero_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("text");
        for (const char* const type : {"SFBox2f", "SFBox3s", "SFMatrix"}) {
            QTest::addRow("%s, lone minus", type) << QString::fromLatin1(type) << QStringLiteral("-");
            QTest::addRow("%s, nothing", type) << QString::fromLatin1(type) << QString();
        }
        QTest::newRow("more than 16 bits") << QStringLiteral("SFBox3s") << QStringLiteral("40000");
        QTest::newRow("less than 16 bits") << QStringLiteral("SFBox3s") << QStringLiteral("-32769");
        QTest::newRow("fraction") << QStringLiteral("SFBox3s") << QStringLiteral("1.5");
    }

    void badTextIsWrittenAsZero()
    {
        QFETCH(QString, text);
        lines().at(3)->setText(text);
        m_editor->applyChanges();
        QStringList expected = value().split(u' ');
        expected[3] = QStringLiteral("0");
        QCOMPARE(ToolHarness::textOf(field()), expected.join(u' '));
        QCOMPARE(pushed(), 1);
    }

    void numberBeyondAFloatIsWrittenAsInfinity_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("box") << QStringLiteral("SFBox2f");
        QTest::newRow("matrix") << QStringLiteral("SFMatrix");
    }

    void numberBeyondAFloatIsWrittenAsInfinity()
    {
        lines().at(3)->setText(QStringLiteral("1e39"));
        m_editor->applyChanges();
        QStringList expected = value().split(u' ');
        expected[3] = QStringLiteral("inf");
        QCOMPARE(ToolHarness::textOf(field()), expected.join(u' '));
        QCOMPARE(pushed(), 1);
    }

    void linesTakeTheTypesNumbers_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("shown");
        QTest::newRow("floats in a box") << QStringLiteral("SFBox2f") << QStringLiteral("1x.2y5")
                                         << QStringLiteral("1.25");
        QTest::newRow("floats in a matrix")
            << QStringLiteral("SFMatrix") << QStringLiteral("-a.5") << QStringLiteral("-.5");
        QTest::newRow("16-bit integers") << QStringLiteral("SFBox3s") << QStringLiteral("3.276x78")
                                         << QStringLiteral("32767");
    }

    void linesTakeTheTypesNumbers()
    {
        QFETCH(QString, keys);
        QFETCH(QString, shown);
        QLineEdit* const line = lines().constFirst();
        line->clear();
        QTest::keyClicks(line, keys);
        QCOMPARE(line->text(), shown);
    }

    void floatsHaveSixSignificantDigits_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("box") << QStringLiteral("SFBox2f");
        QTest::newRow("matrix") << QStringLiteral("SFMatrix");
    }

    void floatsHaveSixSignificantDigits()
    {
        QStringList numbers = value().split(u' ');
        numbers[0] = QStringLiteral("0.1234567");
        numbers[1] = QStringLiteral("12345678");
        QVERIFY(field().set(numbers.join(u' ').toLatin1().constData()));
        ToolHarness::pump();
        QCOMPARE(texts().mid(0, 2), QStringList({QStringLiteral("0.123457"), QStringLiteral("1.23457e+07")}));
    }

    void nullFieldLeavesTheGrid_data() { editors(); }

    void nullFieldLeavesTheGrid()
    {
        m_editor->setField(nullptr);
        open();
        QCOMPARE(texts(), value().split(u' '));
        lines().constFirst()->setFocus();
        QTest::keyClicks(lines().constFirst(), QStringLiteral("7"));
        QVERIFY(m_editor->edited());
        QTest::keyClick(lines().constFirst(), Qt::Key_Return);
        QCOMPARE(text(), value());
        QCOMPARE(textLine()->text(), value());
        QCOMPARE(pushed(), 0);
    }

private:
    static void addRow(const char* type, int rows, int columns)
    {
        QTest::newRow(type) << QString::fromLatin1(type) << rows << columns;
    }
    static void editors()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        addRow("SFBox2f", 2, 2);
        addRow("SFBox3s", 2, 3);
        addRow("SFMatrix", 4, 4);
    }
    [[nodiscard]] NxField& field() const { return fieldFor(*m_tool->node, m_type); }
    [[nodiscard]] QString text() const { return ToolHarness::textOf(field()); }
    [[nodiscard]] int pushed() const { return m_tool->services.pushed; }
    [[nodiscard]] QString value() const { return QString::fromLatin1(editorEntry(m_type).value); }
    [[nodiscard]] QFrame* popup() const
    {
        QFrame* found = nullptr;
        for (QFrame* const frame : m_editor->getFrame()->findChildren<QFrame*>())
            found = frame->windowType() == Qt::Popup ? frame : found;
        return found;
    }
    [[nodiscard]] QList<QLineEdit*> lines() const
    {
        return popup()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList all;
        for (const QLineEdit* const line : lines())
            all << line->text();
        return all;
    }
    [[nodiscard]] QLineEdit* textLine() const { return m_run->find<QLineEdit>("lineEdit"); }
    void open() const { QTest::mouseClick(m_run->find<QPushButton>("m_editButton"), Qt::LeftButton); }

    QString m_type;
    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<DvSFieldWidget> m_editor;
    std::unique_ptr<EditorRun> m_run;
};

QTEST_MAIN(TestGridEditors)
#include "tst_GridEditors.moc"
