#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"
#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"
#include "plugin/GridValidatorRows.h"

#include <QDoubleValidator>
#include <QGridLayout>
#include <QIntValidator>
#include <QMetaMethod>
#include <QWindow>

namespace {

/// An editor with a grid of two rows and three columns that writes down what is asked of it.
class RecordingPopup final : public DvTablePopupWidget {
public:
    RecordingPopup()
        : DvTablePopupWidget(2, 3, "RecordingPopup")
    {
    }

    void load() override
    {
        setElementTypeLabel(QStringLiteral("Recording"));
        DvTablePopupWidget::load();
    }
    bool prepareForField(NxField* field) override { return field != nullptr; }
    void setCellValue(int row, int column, QString value) override
    {
        QStringList held;
        for (const QLineEdit* const line : lines())
            held << line->text();
        writes << QStringLiteral("%1 %2 '%3': %4").arg(row).arg(column).arg(value, held.join(QLatin1Char(',')));
    }
    QString getPopupCellValue(int row, int index) override
    {
        asked << QStringLiteral("%1/%2").arg(row).arg(index);
        return texts.value(index);
    }

    [[nodiscard]] const std::vector<DvTablePopupLineEdit*>& lines() const { return m_popupEdits; }
    [[nodiscard]] QFrame* popup() const { return m_popupFrame; }
    [[nodiscard]] QSpacerItem* gap() const { return m_accessMoveSpacer; }
    [[nodiscard]] QHBoxLayout* strip() const { return m_buttonsLayout; }

    QStringList texts;
    QStringList asked;
    QStringList writes;
};

/// Only what the base gives.
class PlainPopup final : public DvTablePopupWidget {
public:
    explicit PlainPopup(const char* name)
        : DvTablePopupWidget(4, 4, name)
    {
    }
};

} // namespace

class TestDvTablePopupWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<RowEditorRun>(
            std::make_unique<RecordingPopup>(), QStringLiteral("MFFloat"), QStringLiteral("[1, 2, 3]"));
        m_run->table()->setCurrentCell(1, 0);
    }

    void cleanup()
    {
        m_run.reset();
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorNamesTheEditor()
    {
        QCOMPARE(PlainPopup(nullptr).objectName(), QStringLiteral("DvTablePopupWidget"));
        QCOMPARE(PlainPopup("mine").objectName(), QStringLiteral("mine"));
        QCOMPARE(DvTablePopupWidget::staticMetaObject.superClass(), &DvMFieldWidget::staticMetaObject);
    }

    void baseHasNoTexts()
    {
        PlainPopup plain(nullptr);
        QCOMPARE(plain.getPopupCellValue(0, 0), QString());
        QCOMPARE(plain.getCellValue(0, 0), QString());
    }

    void slotIsTheOnlyMetaMethod()
    {
        const QMetaObject& meta = DvTablePopupWidget::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("setEditFrame()"));
        const QMetaObject& line = DvTablePopupLineEdit::staticMetaObject;
        QCOMPARE(line.methodCount() - line.methodOffset(), 1);
        QCOMPARE(line.method(line.methodOffset()).methodSignature(), QByteArray("setCurrentValue(QString)"));
    }

    void buttonStandsBehindTheGap()
    {
        auto* const button = m_run->find<QPushButton>("m_editButton");
        QCOMPARE(button->parentWidget(), m_run->editor->getFrame());
        QCOMPARE(button->maximumSize(), QSize(20, 20));
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(button->icon().availableSizes(), QList<QSize>({QSize(16, 16)}));
        QCOMPARE(popup().strip()->itemAt(4)->widget(), button);
        QCOMPARE(popup().strip()->itemAt(3)->spacerItem(), popup().gap());
        QCOMPARE(popup().gap()->sizeHint(), QSize(-20, 0));
        QCOMPARE(popup().gap()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }

    void tableIsDisabled()
    {
        QVERIFY(!m_run->table()->isEnabled());
        QCOMPARE(m_run->table()->columnCount(), 1);
        QCOMPARE(m_run->table()->rowCount(), 3);
        QVERIFY(m_run->open(0, 0) == nullptr);
        QCOMPARE(m_run->table()->currentRow(), 1);
    }

    void frameIsAPopup()
    {
        const QFrame* const frame = popup().popup();
        QCOMPARE(frame->parentWidget(), m_run->editor->getFrame());
        QCOMPARE(frame->windowType(), Qt::Popup);
        QVERIFY(!frame->isVisible());
        QCOMPARE(frame->size(), QSize(260, 100));
        QCOMPARE(frame->frameShape(), QFrame::StyledPanel);
        QCOMPARE(frame->frameShadow(), QFrame::Raised);
        QCOMPARE(frame->layout()->objectName(), QStringLiteral("m_popupFrameLayout"));
        QCOMPARE(frame->layout()->contentsMargins(), QMargins(6, 6, 6, 6));
        QCOMPARE(frame->layout()->spacing(), 8);
    }

    void linesStandInColumns()
    {
        const auto* const grid = qobject_cast<const QGridLayout*>(popup().popup()->layout());
        QCOMPARE(popup().lines().size(), std::size_t{6});
        for (int index = 0; index < 6; ++index) {
            DvTablePopupLineEdit* const line = popup().lines().at(static_cast<std::size_t>(index));
            QCOMPARE(grid->itemAtPosition(index % 2, index / 2)->widget(), line);
            QCOMPARE(line->objectName(), QString());
            QCOMPARE(line->alignment(), Qt::AlignLeft);
            QCOMPARE(line->parentWidget(), popup().popup());
            QVERIFY(line->validator() == nullptr);
        }
    }

    void openingFillsTheLinesInOrder()
    {
        open();
        QVERIFY(popup().popup()->isVisible());
        const QStringList expected{QStringLiteral("1/0"), QStringLiteral("1/1"), QStringLiteral("1/2"),
            QStringLiteral("1/3"), QStringLiteral("1/4"), QStringLiteral("1/5")};
        QCOMPARE(popup().asked, expected);
        QVERIFY(popup().writes.isEmpty()); // no line changed
    }

    void openingShowsTheBeginningOfEachText()
    {
        popup().texts = QStringList(6, QStringLiteral("-0.123456"));
        open();
        for (const DvTablePopupLineEdit* const line : popup().lines())
            QCOMPARE(line->cursorPosition(), 0);
    }

    void openingWritesEachChangedLine()
    {
        popup().texts = QStringList{QStringLiteral("a"), QString(), QStringLiteral("c")};
        open();
        const QStringList expected{QStringLiteral("1 -1 '': a,,,,,"), QStringLiteral("1 -1 '': a,,c,,,")};
        QCOMPARE(popup().writes, expected);
    }

    void secondOpeningWritesNothing()
    {
        popup().texts = QStringList{QStringLiteral("a")};
        open();
        QCOMPARE(popup().writes.size(), 1);
        popup().setEditFrame();
        QVERIFY(!popup().popup()->isVisible());
        QCOMPARE(popup().asked.size(), 12); // the lines are filled when it closes, too
        QCOMPARE(popup().writes.size(), 1);
    }

    void typedCharacterWritesTheRow()
    {
        open();
        DvTablePopupLineEdit* const line = popup().lines().at(5);
        line->setFocus();
        QTest::keyClicks(line, QStringLiteral("12"));
        const QStringList expected{QStringLiteral("1 -1 '': ,,,,,1"), QStringLiteral("1 -1 '': ,,,,,12")};
        QCOMPARE(popup().writes, expected);
    }

    void popupOpensLeftOfTheFrame()
    {
        const QWidget* const frame = m_run->editor->getFrame();
        open();
        // The platform without a display gives popups a frame.
        const QPoint place = popup().popup()->windowHandle()->framePosition();
        QCOMPARE(place, frame->mapToGlobal(QPoint(0, 0)) - QPoint(260, 0));
    }

    void buttonClosesForGood()
    {
        const auto* const button = m_run->find<QPushButton>("m_editButton");
        const QPoint centre = button->mapToGlobal(button->rect().center());
        clickAt(centre);
        QVERIFY(popup().popup()->isVisible());
        clickAt(centre);
        QVERIFY(!popup().popup()->isVisible());
        clickAt(centre);
        QVERIFY(popup().popup()->isVisible());
    }

    void clickElsewhereCloses()
    {
        open();
        clickAt(m_run->table()->mapToGlobal(m_run->table()->rect().center()));
        QVERIFY(!popup().popup()->isVisible());
        QVERIFY(popup().writes.isEmpty());
    }

    void noCurrentRowOpensAllTheSame()
    {
        m_run->set(QStringLiteral("[]"));
        ToolHarness::pump();
        QCOMPARE(popup().currentRow(), -1);
        open();
        QVERIFY(popup().popup()->isVisible());
        QCOMPARE(popup().asked.constFirst(), QStringLiteral("-1/0"));
    }

    void validators_data() { addGridValidatorRows(); }

    void validators()
    {
        QFETCH(int, kind);
        QFETCH(bool, isReal);
        QFETCH(double, bottom);
        QFETCH(double, top);
        popup().setPopupValidators(kind);
        for (const QLineEdit* const line : popup().lines()) {
            QCOMPARE(line->validator()->parent(), line);
            if (isReal) {
                const auto* const real = qobject_cast<const QDoubleValidator*>(line->validator());
                QCOMPARE(real->bottom(), bottom);
                QCOMPARE(real->top(), top);
                QCOMPARE(real->decimals(), kind == 3 ? 6 : QDoubleValidator().decimals());
            } else {
                const auto* const integer = qobject_cast<const QIntValidator*>(line->validator());
                QCOMPARE(integer->bottom() * 1.0, bottom);
                QCOMPARE(integer->top() * 1.0, top);
            }
        }
    }

    void unknownValidatorsChangeNothing()
    {
        popup().setPopupValidators(1);
        const QValidator* const validator = popup().lines().front()->validator();
        popup().setPopupValidators(5);
        popup().setPopupValidators(-1);
        QCOMPARE(popup().lines().front()->validator(), validator);
        popup().setPopupValidators(0);
        QVERIFY(popup().lines().front()->validator() == nullptr);
    }

private:
    [[nodiscard]] RecordingPopup& popup() const { return static_cast<RecordingPopup&>(*m_run->editor); }
    void open() const { m_run->click("m_editButton"); }
    void clickAt(const QPoint& global) const
    {
        QWindow* const window = m_run->table()->window()->windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(global));
        QCoreApplication::processEvents();
    }

    std::unique_ptr<RowEditorRun> m_run;
};

QTEST_MAIN(TestDvTablePopupWidget)
#include "tst_DvTablePopupWidget.moc"
