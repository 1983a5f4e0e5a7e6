#include "FieldEditors/SFWidgets/DvPopupWidget.h"
#include "Patience.h"
#include "plugin/EditorHarness.h"
#include "plugin/GridValidatorRows.h"

#include <QDoubleValidator>
#include <QGridLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

namespace {

/// An editor of six numbers, in two rows of three, that counts what it is asked for.
class CountingEditor final : public DvPopupWidget {
public:
    explicit CountingEditor(int rows = 2, int columns = 3)
        : DvPopupWidget(rows, columns, "CountingEditor")
    {
    }

    using DvPopupWidget::applyChanges;
    void applyChanges() override { ++applied; }
    void updateFromField() override
    {
        ++refreshed;
        DvPopupWidget::updateFromField();
    }

    [[nodiscard]] const std::vector<QLineEdit*>& lines() const { return m_lines; }
    [[nodiscard]] QFrame* popup() const { return m_popupFrame; }
    [[nodiscard]] QPushButton* button() const { return m_editButton; }
    [[nodiscard]] QLineEdit* text() const { return lineEdit; }

    int applied = 0;
    int refreshed = 0;
};

} // namespace

class TestDvPopupWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_editor = std::make_unique<CountingEditor>();
        m_run = std::make_unique<EditorRun>(*m_editor, m_tool->node->sfBox3s);
        m_run->window.setGeometry(20, 20, 300, 80);
        QVERIFY(QTest::qWaitForWindowActive(&m_run->window, testPatience));
        m_editor->refreshed = 0;
    }

    void cleanup()
    {
        m_run.reset();
        m_editor.reset();
        m_tool.reset();
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorNamesTheEditor()
    {
        QCOMPARE(DvPopupWidget(1, 1, nullptr).objectName(), QStringLiteral("DvPopupWidget"));
        QCOMPARE(DvPopupWidget(1, 1, "mine").objectName(), QStringLiteral("mine"));
        QCOMPARE(DvPopupWidget::staticMetaObject.superClass(), &DvSFLineWidget::staticMetaObject);
    }

    void slotIsTheOnlyMetaMethod()
    {
        const QMetaObject& meta = DvPopupWidget::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("managePopFramePos()"));
        QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    }

    void buttonStandsAheadOfTheOthers()
    {
        QCOMPARE(m_editor->button()->objectName(), QStringLiteral("m_editButton"));
        QCOMPARE(m_editor->button()->parentWidget(), m_editor->getFrame());
        QCOMPARE(m_editor->button()->maximumSize(), QSize(20, 20));
        QCOMPARE(m_editor->button()->icon().availableSizes(), QList<QSize>({QSize(16, 16)}));
        const QLayout* const row = m_editor->getFrame()->layout()->itemAt(2)->layout();
        auto* const buttons = qobject_cast<QBoxLayout*>(row->itemAt(2)->layout());
        QCOMPARE(buttons->count(), 3);
        QCOMPARE(buttons->itemAt(0)->widget(), m_editor->button());
        QCOMPARE(buttons->itemAt(0)->alignment(), Qt::Alignment());
        QCOMPARE(buttons->stretch(0), 0);
        QCOMPARE(buttons->itemAt(1)->widget()->objectName(), QStringLiteral("m_defaultButton"));
    }

    void lineOnlyShowsTheTextForm()
    {
        QVERIFY(!m_editor->text()->isEnabled());
        QCOMPARE(m_editor->text()->text(), QStringLiteral("0 0 0 0 0 0"));
        QVERIFY(m_tool->node->sfBox3s.set("1 2 3 4 5 6"));
        ToolHarness::pump();
        QCOMPARE(m_editor->text()->text(), QStringLiteral("1 2 3 4 5 6"));
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void frameIsAPopup()
    {
        const QFrame* const popup = m_editor->popup();
        QCOMPARE(popup->parentWidget(), m_editor->getFrame());
        QCOMPARE(popup->windowType(), Qt::Popup);
        QVERIFY(!popup->isVisible());
        QCOMPARE(popup->size(), QSize(260, 100));
        QCOMPARE(popup->frameShape(), QFrame::StyledPanel);
        QCOMPARE(popup->frameShadow(), QFrame::Raised);
        const auto* const grid = qobject_cast<const QGridLayout*>(popup->layout());
        QVERIFY(grid != nullptr);
        QCOMPARE(grid->objectName(), QStringLiteral("m_popupFrameLayout"));
        QCOMPARE(grid->contentsMargins(), QMargins(6, 6, 6, 6));
        QCOMPARE(grid->horizontalSpacing(), 8);
        QCOMPARE(grid->verticalSpacing(), 8);
    }

    void linesStandInRows()
    {
        const auto* const grid = qobject_cast<const QGridLayout*>(m_editor->popup()->layout());
        QCOMPARE(m_editor->lines().size(), std::size_t{6});
        for (int index = 0; index < 6; ++index) {
            QLayoutItem* const item = grid->itemAtPosition(index / 3, index % 3);
            const QLineEdit* const shown = line(static_cast<std::size_t>(index));
            QCOMPARE(item->widget(), shown);
            QCOMPARE(item->alignment(), Qt::Alignment());
            QCOMPARE(shown->objectName(), QString());
            QCOMPARE(shown->parentWidget(), m_editor->popup());
            QVERIFY(shown->validator() == nullptr);
        }
    }

    void gridWithoutRowsIsEmpty()
    {
        CountingEditor editor(0, 3);
        const EditorRun run(editor);
        QVERIFY(editor.lines().empty());
        QVERIFY(!editor.edited());
        editor.setLinesValidator(1);
        editor.resetLinesCursor();
        editor.managePopFramePos();
        QVERIFY(editor.popup()->isVisible());
        editor.managePopFramePos();
        QVERIFY(!editor.popup()->isVisible());
    }

    void nothingIsThereBeforeLoad()
    {
        CountingEditor editor;
        QVERIFY(editor.lines().empty());
        QVERIFY(!editor.edited());
    }

    void clickOpensTheFrameAtTheButton()
    {
        click();
        QVERIFY(m_editor->popup()->isVisible());
        QCOMPARE(QApplication::activePopupWidget(), m_editor->popup());
        QCOMPARE(place(), corner());
    }

    void frameStaysOnTheScreen_data()
    {
        // In steps from where the frame and a button beside it would just fit.
        QTest::addColumn<QPoint>("beyond");
        QTest::addColumn<QPoint>("moved");
        QTest::newRow("fits") << QPoint(0, 0) << QPoint(0, 0);
        QTest::newRow("too far right") << QPoint(1, 0) << QPoint(-280, 0);
        QTest::newRow("too far down") << QPoint(0, 1) << QPoint(0, -120);
        QTest::newRow("both") << QPoint(5, 7) << QPoint(-280, -120);
    }

    void frameStaysOnTheScreen()
    {
        QFETCH(QPoint, beyond);
        QFETCH(QPoint, moved);
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint wanted = QPoint(screen.width() - 280, screen.height() - 120) + beyond;
        m_run->window.move(m_run->window.pos() + wanted - corner());
        QCOMPARE(corner(), wanted);
        QCOMPARE(m_editor->button()->size(), QSize(20, 20));
        click();
        QCOMPARE(place(), wanted + moved);
    }

    void openingRefreshesFirst()
    {
        QVERIFY(m_tool->node->sfBox3s.set("1 2 3 4 5 6")); // not heard of yet
        click();
        QCOMPARE(m_editor->refreshed, 1);
        QCOMPARE(m_editor->text()->text(), QStringLiteral("1 2 3 4 5 6"));
    }

    void openingGivesNoLineTheFocus()
    {
        click();
        QVERIFY(m_editor->popup()->focusWidget() == nullptr);
    }

    void slotClosesWithoutRefreshOrMove()
    {
        click();
        const QPoint position = m_editor->popup()->pos();
        m_run->window.move(0, 0);
        m_editor->managePopFramePos();
        QVERIFY(!m_editor->popup()->isVisible());
        QCOMPARE(m_editor->popup()->pos(), position);
        QCOMPARE(m_editor->refreshed, 1);
    }

    void clickOnTheButtonClosesForGood()
    {
        const QPoint centre = m_editor->button()->mapToGlobal(m_editor->button()->rect().center());
        clickAt(centre);
        QVERIFY(m_editor->popup()->isVisible());
        clickAt(centre);
        QVERIFY(!m_editor->popup()->isVisible());
        clickAt(centre);
        QVERIFY(m_editor->popup()->isVisible());
        QCOMPARE(m_editor->refreshed, 2);
    }

    void clickOutsideCloses()
    {
        click();
        const QLineEdit* const text = m_editor->text();
        clickAt(text->mapToGlobal(QPoint(3, 3)));
        QVERIFY(!m_editor->popup()->isVisible());
        QCOMPARE(m_editor->applied, 0);
    }

    void returnAppliesAndLeavesTheFrameOpen()
    {
        click();
        line(3)->setFocus();
        QTest::keyClick(line(3), Qt::Key_Return);
        QCOMPARE(m_editor->applied, 1);
        QTest::keyClicks(line(3), QStringLiteral("7"));
        QCOMPARE(m_editor->applied, 1);
        // Return itself, and then the line counts as finished with typed text in it.
        QTest::keyClick(line(3), Qt::Key_Return);
        QCOMPARE(m_editor->applied, 3);
        QVERIFY(m_editor->popup()->isVisible());
    }

    void leavingALineAppliesWhatWasTyped()
    {
        click();
        line(0)->setFocus();
        QTest::keyClick(line(0), Qt::Key_Tab);
        QVERIFY(line(1)->hasFocus());
        QCOMPARE(m_editor->applied, 0);
        QTest::keyClicks(line(1), QStringLiteral("7"));
        QTest::keyClick(line(1), Qt::Key_Tab);
        QCOMPARE(m_editor->applied, 1);
    }

    void closingAppliesWhatWasTyped_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("by the button") << true;
        QTest::newRow("by a click elsewhere") << false;
    }

    void closingAppliesWhatWasTyped()
    {
        QFETCH(bool, byButton);
        click();
        line(5)->setFocus();
        QTest::keyClicks(line(5), QStringLiteral("7"));
        QCOMPARE(m_editor->applied, 0);
        if (byButton)
            m_editor->managePopFramePos();
        else
            clickAt(m_editor->text()->mapToGlobal(QPoint(3, 3)));
        QVERIFY(!m_editor->popup()->isVisible());
        QVERIFY(!line(5)->hasFocus());
        QCOMPARE(m_editor->applied, 1);
    }

    void onlyTheGridCountsAsEdited()
    {
        QVERIFY(!m_editor->edited());
        m_editor->text()->setModified(true);
        QVERIFY(!m_editor->edited());
        line(4)->setModified(true);
        QVERIFY(m_editor->edited());
    }

    void validators_data() { addGridValidatorRows(); }

    void validators()
    {
        QFETCH(int, kind);
        QFETCH(bool, isReal);
        QFETCH(double, bottom);
        QFETCH(double, top);
        m_editor->setLinesValidator(kind);
        for (const QLineEdit* const each : m_editor->lines()) {
            const QValidator* const validator = each->validator();
            QCOMPARE(validator->parent(), each);
            if (isReal) {
                const auto* const real = qobject_cast<const QDoubleValidator*>(validator);
                QCOMPARE(real->bottom(), bottom);
                QCOMPARE(real->top(), top);
                QCOMPARE(real->decimals(), kind == 3 ? 6 : QDoubleValidator().decimals());
            } else {
                const auto* const integer = qobject_cast<const QIntValidator*>(validator);
                QCOMPARE(double{integer->bottom() * 1.0}, bottom);
                QCOMPARE(double{integer->top() * 1.0}, top);
            }
        }
    }

    void unknownValidatorsChangeNothing()
    {
        m_editor->setLinesValidator(1);
        const QValidator* const validator = line(0)->validator();
        m_editor->setLinesValidator(5);
        m_editor->setLinesValidator(-1);
        QCOMPARE(line(0)->validator(), validator);
        m_editor->setLinesValidator(0);
        QVERIFY(line(0)->validator() == nullptr);
    }

    void cursorsGoToTheBeginning()
    {
        for (QLineEdit* const each : m_editor->lines())
            each->setText(QStringLiteral("123"));
        m_editor->resetLinesCursor();
        for (const QLineEdit* const each : m_editor->lines())
            QCOMPARE(each->cursorPosition(), 0);
    }

private:
    void click() { QTest::mouseClick(m_editor->button(), Qt::LeftButton); }
    // Through the window system, which gives every click to the popup.
    void clickAt(const QPoint& global)
    {
        QWindow* const window = m_run->window.windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(global));
        QCoreApplication::processEvents();
    }
    // The platform without a display gives popups a frame.
    [[nodiscard]] QPoint place() const { return m_editor->popup()->windowHandle()->framePosition(); }
    [[nodiscard]] QPoint corner() const
    {
        return m_editor->button()->mapToGlobal(m_editor->button()->rect().bottomRight());
    }
    [[nodiscard]] QLineEdit* line(std::size_t index) const { return m_editor->lines().at(index); }

    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<CountingEditor> m_editor;
    std::unique_ptr<EditorRun> m_run;
};

QTEST_MAIN(TestDvPopupWidget)
#include "tst_DvPopupWidget.moc"
