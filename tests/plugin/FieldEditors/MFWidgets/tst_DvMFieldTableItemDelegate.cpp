#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/MFWidgets/DvMFieldTableItemDelegate.h"
#include "FieldEditors/MFWidgets/QUIntValidator.h"
#include "FieldEditors/MFWidgets/QULongValidator.h"
#include "plugin/ListRun.h"

#include <QDoubleValidator>
#include <QPainter>

#include <limits>

namespace {

/// An editor whose cells are what the test says, and that writes down what is written to them.
class StubEditor final : public DvMFieldWidget {
public:
    StubEditor()
        : DvMFieldWidget(nullptr)
    {
    }
    QString getCellValue(int row, int column) override
    {
        asked << QPoint(row, column);
        return cellText;
    }
    void setCellValue(int row, int column, QString value) override
    {
        written << QStringLiteral("%1 %2 %3").arg(row).arg(column).arg(value);
    }
    DvMFieldTable& rows() { return *m_table; }

    QString cellText = QStringLiteral("25");
    QStringList written;
    QList<QPoint> asked;
};

struct Fixture : ToolHarness {
    explicit Fixture(int columns = 1)
    {
        table.setColumnCount(columns);
        table.setRowCount(3);
    }
    /// The editor of a cell; the viewport owns it.
    QWidget* edit(int kind, int row = 1, int column = 0)
    {
        table.setValueKind(kind);
        return table.itemDelegate()->createEditor(
            table.viewport(), QStyleOptionViewItem(), table.model()->index(row, column));
    }
    QImage painted(const QSize& size, QStyle::State state = QStyle::State_Enabled)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.state = state;
        option.palette.setColor(QPalette::Highlight, Qt::red);
        table.itemDelegate()->paint(&painter, option, table.model()->index(1, 0));
        return image;
    }

    StubEditor editor;
    DvMFieldTable& table = editor.rows();
};

/// The columns from the first to the last with something other than white in them.
QPair<int, int> inkedColumns(const QImage& image)
{
    QPair<int, int> columns(-1, -1);
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                columns.first = columns.first < 0 ? x : columns.first;
                columns.second = x;
            }
    return columns;
}

} // namespace

class TestDvMFieldTableItemDelegate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void validators_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("validator");
        QTest::addColumn<double>("bottom");
        QTest::addColumn<double>("top");
        QTest::newRow("0") << 0 << QString() << 0.0 << 0.0;
        QTest::newRow("1") << 1 << QStringLiteral("QIntValidator") << -32767.0 << 32767.0;
        QTest::newRow("2") << 2 << QStringLiteral("QIntValidator") << 0.0 << 65535.0;
        QTest::newRow("3") << 3 << QStringLiteral("QIntValidator") << -2147483648.0 << 2147483647.0;
        QTest::newRow("4") << 4 << QStringLiteral("QUIntValidator") << 0.0 << 0.0;
        QTest::newRow("5") << 5 << QStringLiteral("QIntValidator") << -2147483647.0 << 2147483647.0;
        QTest::newRow("6") << 6 << QStringLiteral("QULongValidator") << 0.0 << 0.0;
        QTest::newRow("7") << 7 << QStringLiteral("QDoubleValidator") << -3.4028234663852886e38
                           << 3.4028234663852886e38;
        QTest::newRow("8") << 8 << QStringLiteral("QDoubleValidator") << -std::numeric_limits<double>::infinity()
                           << std::numeric_limits<double>::infinity();
        QTest::newRow("9") << 9 << QString() << 0.0 << 0.0;
    }

    void validators()
    {
        QFETCH(const int, kind);
        QFETCH(const QString, validator);
        QFETCH(const double, bottom);
        QFETCH(const double, top);
        Fixture fixture(2);
        auto* const line = qobject_cast<QLineEdit*>(fixture.edit(kind));
        QVERIFY(line != nullptr);
        QCOMPARE(line->validator() != nullptr, !validator.isEmpty());
        if (line->validator() == nullptr)
            return;
        QCOMPARE(QString::fromLatin1(line->validator()->metaObject()->className()), validator);
        if (const auto* const whole = qobject_cast<const QIntValidator*>(line->validator())) {
            QCOMPARE(static_cast<double>(whole->bottom()), bottom);
            QCOMPARE(static_cast<double>(whole->top()), top);
        } else if (const auto* const real = qobject_cast<const QDoubleValidator*>(line->validator())) {
            QCOMPARE(real->bottom(), bottom);
            QCOMPARE(real->top(), top);
            QCOMPARE(real->decimals(), kind == 7 ? 6 : QDoubleValidator().decimals());
        }
    }

    void lowestNumbersAreHeldBack()
    {
        Fixture fixture(2);
        for (const auto& [kind, number] : {std::pair(1, "-32768"), std::pair(5, "-2147483648")}) {
            auto* const line = qobject_cast<QLineEdit*>(fixture.edit(kind));
            line->setText(QLatin1String(number));
            line->setModified(true);
            QVERIFY(!line->hasAcceptableInput());
            fixture.table.itemDelegate()->setModelData(line, fixture.table.model(), fixture.table.model()->index(0, 0));
            QVERIFY(fixture.editor.written.isEmpty());
        }
    }

    void editorsOfOneColumn_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("editor");
        for (const int kind : {0, 3, 4, 8})
            QTest::addRow("%d", kind) << kind << QByteArray("line");
        for (const int kind : {1, 5})
            QTest::addRow("%d", kind) << kind << QByteArray("signed");
        for (const int kind : {2, 6})
            QTest::addRow("%d", kind) << kind << QByteArray("unsigned");
        QTest::addRow("7") << 7 << QByteArray("real");
    }

    void editorsOfOneColumn()
    {
        QFETCH(const int, kind);
        QFETCH(const QByteArray, editor);
        Fixture fixture;
        QWidget* const made = fixture.edit(kind);
        QCOMPARE(made->parentWidget(), fixture.table.viewport());
        QCOMPARE(made->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(qobject_cast<QLineEdit*>(made) != nullptr, editor == "line");
        QCOMPARE(dynamic_cast<DvIntSlider*>(made) != nullptr, editor == "signed");
        QCOMPARE(dynamic_cast<DvUIntSlider*>(made) != nullptr, editor == "unsigned");
        QCOMPARE(dynamic_cast<DvRealSlider*>(made) != nullptr, editor == "real");
        QVERIFY(fixture.editor.written.isEmpty());
        fixture.editor.cellText = QStringLiteral("7");
        fixture.table.itemDelegate()->setEditorData(made, fixture.table.model()->index(1, 0));
        if (editor == "line")
            QCOMPARE(qobject_cast<QLineEdit*>(made)->text(), QStringLiteral("7"));
        else
            QCOMPARE(made->findChild<QLineEdit*>()->text().toDouble(), 7.0);
        QVERIFY(fixture.editor.written.isEmpty());
    }

    void moreColumnsNeverHaveASlider()
    {
        Fixture fixture(2);
        for (int kind = 0; kind <= 8; ++kind)
            for (int column = 0; column < 2; ++column)
                QVERIFY(qobject_cast<QLineEdit*>(fixture.edit(kind, 0, column)) != nullptr);
    }

    void linesHaveNoFrameAndShowTheCell()
    {
        Fixture fixture;
        const auto* const line = qobject_cast<QLineEdit*>(fixture.edit(0));
        QCOMPARE(line->objectName(), QStringLiteral("qt_lineeditor"));
        QVERIFY(!line->hasFrame());
        QCOMPARE(line->text(), QStringLiteral("25"));
        QVERIFY(!line->isModified());
    }

    void realSlidersHaveTheRangeOfTheTable()
    {
        Fixture fixture;
        fixture.table.setRealRange(-3, 40);
        fixture.table.setRangeBounded(true);
        const auto* const slider = dynamic_cast<DvRealSlider*>(fixture.edit(7));
        QCOMPARE(slider->lowerBound(), -3.0);
        QCOMPARE(slider->upperBound(), 40.0);
        QVERIFY(slider->isBounded());
        QCOMPARE(slider->value(), 25.0);
    }

    void unmodifiedLineWritesNothing()
    {
        Fixture fixture;
        QLineEdit line(QStringLiteral("8"));
        fixture.table.itemDelegate()->setModelData(&line, fixture.table.model(), fixture.table.model()->index(0, 0));
        QVERIFY(fixture.editor.written.isEmpty());
        QVERIFY(fixture.table.item(0, 0) == nullptr);
    }

    void modifiedLineGoesToTheOwnerAndTheItem()
    {
        Fixture fixture(2);
        QLineEdit line(QStringLiteral("8"));
        line.setModified(true);
        fixture.table.itemDelegate()->setModelData(&line, fixture.table.model(), fixture.table.model()->index(2, 1));
        QCOMPARE(fixture.editor.written, QStringList(QStringLiteral("2 1 8")));
        QCOMPARE(fixture.table.item(2, 1)->text(), QStringLiteral("8"));
    }

    void intermediateTextStaysInTheItem()
    {
        Fixture fixture;
        QLineEdit line(QStringLiteral("70000"));
        fixture.table.setValueKind(2);
        qobject_cast<DvMFieldTableItemDelegate*>(fixture.table.itemDelegate())->installValidator(&line);
        line.setModified(true);
        fixture.table.itemDelegate()->setModelData(&line, fixture.table.model(), fixture.table.model()->index(0, 0));
        QVERIFY(fixture.editor.written.isEmpty());
        QCOMPARE(fixture.table.item(0, 0)->text(), QStringLiteral("70000"));
    }

    void nullEditorWritesNothing()
    {
        Fixture fixture;
        fixture.table.itemDelegate()->setModelData(nullptr, fixture.table.model(), fixture.table.model()->index(0, 0));
        QVERIFY(fixture.editor.written.isEmpty());
    }

    void editorFillsTheCell()
    {
        Fixture fixture;
        QWidget* const editor = fixture.edit(5);
        QStyleOptionViewItem option;
        option.rect = QRect(7, 9, 90, 31);
        fixture.table.itemDelegate()->updateEditorGeometry(editor, option, {});
        QCOMPARE(editor->geometry(), option.rect);
    }

    void textIsPaintedInTheMiddle()
    {
        Fixture fixture;
        const auto [first, last] = inkedColumns(fixture.painted(QSize(200, 30)));
        QVERIFY(first > 80 && last < 120);
        QVERIFY(std::abs((200 - 1 - last) - first) <= 2);
        QCOMPARE(fixture.editor.asked, QList<QPoint>(1, QPoint(1, 0))); // once a cell
    }

    void selectedCellIsFilled()
    {
        Fixture fixture;
        const QImage plain = fixture.painted(QSize(200, 30));
        const QImage selected = fixture.painted(QSize(200, 30), QStyle::State_Enabled | QStyle::State_Selected);
        QCOMPARE(selected.pixelColor(2, 2), QColor(Qt::red));
        // The text keeps its colour.
        for (int x = 0; x < 200; ++x)
            for (int y = 0; y < 30; ++y)
                if (plain.pixelColor(x, y) == QColor(Qt::black))
                    QCOMPARE(selected.pixelColor(x, y), QColor(Qt::black));
    }

    void wideTextEndsInDots()
    {
        Fixture fixture;
        fixture.editor.cellText = QString(500, QLatin1Char('m'));
        const QSize size(120, 30);
        const QImage wide = fixture.painted(size);
        const int count = [&] {
            QImage image(size, QImage::Format_RGB32);
            const QPainter painter(&image);
            int fitting = 0;
            while (
                painter.fontMetrics().horizontalAdvance(QStringLiteral("...") + QString(fitting + 1, QLatin1Char('m')))
                < size.width() - 4)
                ++fitting;
            return fitting;
        }();
        fixture.editor.cellText = QString(count, QLatin1Char('m')) + QStringLiteral("...");
        QCOMPARE(wide, fixture.painted(size));
    }

    void itemsAreNotPainted()
    {
        Fixture fixture;
        const QImage before = fixture.painted(QSize(200, 30));
        fixture.table.setPlaceholder(1, 0);
        fixture.table.item(1, 0)->setText(QStringLiteral("99999"));
        QCOMPARE(fixture.painted(QSize(200, 30)), before);
    }

    void longTextIsEditedWhole()
    {
        Fixture fixture;
        fixture.editor.cellText = QString(100'000, QLatin1Char('x'));
        auto* const line = qobject_cast<QLineEdit*>(fixture.edit(0));
        fixture.table.itemDelegate()->setEditorData(line, fixture.table.model()->index(1, 0));
        line->setCursorPosition(0);
        line->insert(QStringLiteral("y"));
        fixture.table.itemDelegate()->setModelData(line, fixture.table.model(), fixture.table.model()->index(1, 0));
        QCOMPARE(fixture.editor.written.constFirst(), QStringLiteral("1 0 y") + QString(100'000, QLatin1Char('x')));
    }
};

QTEST_MAIN(TestDvMFieldTableItemDelegate)
#include "tst_DvMFieldTableItemDelegate.moc"
