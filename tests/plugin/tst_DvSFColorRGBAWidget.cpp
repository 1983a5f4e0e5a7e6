#include "FieldEditors/SFWidgets/DvSFColorRGBAWidget.h"
#include "plugin/ColorDialogDriver.h"
#include "plugin/ComponentRun.h"

#include <QMetaMethod>

class tst_DvSFColorRGBAWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructorNamesTheEditor();
    void slotsHaveTheirOrder();
    void loadBuildsDisplayAndRows();
    void linesHaveNoValidator();
    void loadedEditorShowsBlackAndZeros();
    void fieldIsShownFromTheBeginning();
    void typingChangesTheDisplayAtOnceAndTheFieldOnReturn();
    void leavingALineWritesWhatWasTyped();
    void returnAlwaysPushes();
    void undoWritesTheValueThatIsThere();
    void componentOutsideReachesTheFieldAndNotTheDisplay_data();
    void componentOutsideReachesTheFieldAndNotTheDisplay();
    void textThatIsNoNumberReadsAsZero();
    void halfComesBackFromTheDialogAs127();
    void choiceInTheDialogPushesOneCommand();
    void cancelledDialogChangesNothing();
    void everyByteComesBackFromTheDialogUnchanged();
    void changeFromOutsideIsFollowedWithoutACommand();
    void refreshRoundsTheComponentsToSixDigits();
    void nullFieldIsLeftAlone();
    void buttonsPushTheirCommands();

private:
    [[nodiscard]] QColor shown() const
    {
        const QPushButton* const display = m_run->find<QPushButton>("m_colorDisp");
        const QImage image = display->icon().pixmap(display->rect().size()).toImage();
        return QColor::fromRgba(image.convertToFormat(QImage::Format_ARGB32).pixel(9, 9));
    }

    std::unique_ptr<ComponentRun> m_run;
    const QString m_start = QStringLiteral("0.5 0.25 0 0.75");
};

void tst_DvSFColorRGBAWidget::init()
{
    m_run = std::make_unique<ComponentRun>(
        std::make_unique<DvSFColorRGBAWidget>(), QStringLiteral("SFColorRGBA"), m_start);
}

void tst_DvSFColorRGBAWidget::cleanup()
{
    m_run.reset();
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_DvSFColorRGBAWidget::constructorNamesTheEditor()
{
    DvSFColorRGBAWidget plain;
    QCOMPARE(plain.objectName(), QStringLiteral("DvSFColorRGBAWidget"));
    QCOMPARE(plain.getName(), VbString("SFColorRGBA"));
    QCOMPARE(QString::fromLatin1(plain.getHandledType().getName().getString()), QStringLiteral("SFColorRGBA"));
    QCOMPARE(DvSFColorRGBAWidget("mine").objectName(), QStringLiteral("mine"));
}

void tst_DvSFColorRGBAWidget::slotsHaveTheirOrder()
{
    const QMetaObject& meta = DvSFColorRGBAWidget::staticMetaObject;
    QStringList names;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        names << QString::fromLatin1(meta.method(index).methodSignature());
    const QStringList expected{QStringLiteral("changeRValue(QString)"), QStringLiteral("changeGValue(QString)"),
        QStringLiteral("changeBValue(QString)"), QStringLiteral("changeAValue(QString)"),
        QStringLiteral("getColorEditor()")};
    QCOMPARE(names, expected);
}

void tst_DvSFColorRGBAWidget::loadBuildsDisplayAndRows()
{
    QCOMPARE(m_run->find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">SFColorRGBA</p>"));
    QCOMPARE(m_run->row()->spacing(), 6);
    QCOMPARE(m_run->row()->contentsMargins(), QMargins());
    const auto* const display = m_run->find<QPushButton>("m_colorDisp");
    QCOMPARE(m_run->row()->itemAt(0)->widget(), display);
    QCOMPARE(display->size(), QSize(20, 18));
    QCOMPARE(display->parentWidget(), m_run->frame());
    QCOMPARE(m_run->parts().size(), 4);
    QStringList labels;
    for (const char* const component : {"R", "G", "B", "A"})
        labels << QStringLiteral("<p align=\"right\">%1</p>").arg(QLatin1String(component));
    QCOMPARE(m_run->labelTexts(), labels);
    for (const QBoxLayout* const part : m_run->parts()) {
        QCOMPARE(part->direction(), QBoxLayout::LeftToRight);
        QCOMPARE(part->objectName(), QStringLiteral("SFColorRGBALayout"));
        QCOMPARE(part->spacing(), 0);
        QCOMPARE(part->sizeConstraint(), QLayout::SetMinimumSize);
    }
    for (const QLabel* const label : m_run->labels()) {
        QCOMPARE(label->objectName(), QStringLiteral("SFColorRGBALabel"));
        QCOMPARE(label->height(), 18);
        QCOMPARE(label->parentWidget(), m_run->frame());
    }
    for (const QLineEdit* const line : m_run->controls()) {
        QCOMPARE(line->objectName(), QStringLiteral("SFColorRGBALine"));
        QCOMPARE(line->height(), 18);
        QCOMPARE(line->parentWidget(), m_run->frame());
    }
}

void tst_DvSFColorRGBAWidget::linesHaveNoValidator()
{
    for (const QLineEdit* const line : m_run->controls())
        QVERIFY(line->validator() == nullptr);
}

void tst_DvSFColorRGBAWidget::loadedEditorShowsBlackAndZeros()
{
    m_run.reset();
    m_run = std::make_unique<ComponentRun>(std::make_unique<DvSFColorRGBAWidget>(), QStringLiteral("SFColorRGBA"));
    QCOMPARE(shown(), QColor(0, 0, 0, 255));
    QCOMPARE(m_run->texts(), QStringList(4, QStringLiteral("0")));
}

void tst_DvSFColorRGBAWidget::fieldIsShownFromTheBeginning()
{
    QCOMPARE(m_run->texts(), m_start.split(QLatin1Char(' ')));
    QCOMPARE(shown(), QColor(127, 63, 0, 191));
    for (const QLineEdit* const line : m_run->controls())
        QCOMPARE(line->cursorPosition(), 0);
    QVERIFY(!m_run->editor->edited());
    QCOMPARE(m_run->pushed(), 0);
}

void tst_DvSFColorRGBAWidget::typingChangesTheDisplayAtOnceAndTheFieldOnReturn()
{
    m_run->type(2, QStringLiteral("1"));
    QCOMPARE(shown().blue(), 255);
    QVERIFY(m_run->editor->edited());
    QCOMPARE(m_run->text(), m_start);
    QCOMPARE(m_run->pushed(), 0);
    m_run->press(2, Qt::Key_Return);
    QCOMPARE(m_run->text(), QStringLiteral("0.5 0.25 1 0.75"));
    // Return itself, and then the line counts as finished with typed text in it.
    QCOMPARE(m_run->pushed(), 2);
}

void tst_DvSFColorRGBAWidget::leavingALineWritesWhatWasTyped()
{
    m_run->controls().constFirst()->setFocus();
    m_run->press(0, Qt::Key_Tab);
    QVERIFY(m_run->controls().at(1)->hasFocus());
    QCOMPARE(m_run->pushed(), 0);
    m_run->type(2, QStringLiteral("1"));
    m_run->press(2, Qt::Key_Tab);
    QCOMPARE(m_run->text(), QStringLiteral("0.5 0.25 1 0.75"));
    QCOMPARE(m_run->pushed(), 1);
}

void tst_DvSFColorRGBAWidget::returnAlwaysPushes()
{
    m_run->press(0, Qt::Key_Return);
    m_run->press(4 - 1, Qt::Key_Return);
    QCOMPARE(m_run->pushed(), 2);
    QCOMPARE(m_run->text(), m_start);
}

void tst_DvSFColorRGBAWidget::undoWritesTheValueThatIsThere()
{
    m_run->type(2, QStringLiteral("1"));
    m_run->press(2, Qt::Key_Tab);
    m_run->lastCommand().undo();
    QCOMPARE(m_run->text(), QStringLiteral("0.5 0.25 1 0.75"));
    m_run->set(m_start);
    m_run->lastCommand().redo();
    QCOMPARE(m_run->text(), QStringLiteral("0.5 0.25 1 0.75"));
}

void tst_DvSFColorRGBAWidget::componentOutsideReachesTheFieldAndNotTheDisplay_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("lastRed"); // of the last colour on the way to that text
    QTest::newRow("above") << "1.5" << 255;
    QTest::newRow("below") << "-0.1" << 0;
    QTest::newRow("beyond an int") << "1e30" << 0;
    QTest::newRow("far below") << "-1e30" << 0;
}

void tst_DvSFColorRGBAWidget::componentOutsideReachesTheFieldAndNotTheDisplay()
{
    QFETCH(QString, typed);
    QFETCH(int, lastRed);
    m_run->set(typed + m_start.mid(m_start.indexOf(QLatin1Char(' '))));
    const QString expected = m_run->text();
    ToolHarness::pump();
    QCOMPARE(m_run->texts().constFirst().toFloat(), typed.toFloat());
    QCOMPARE(shown(), QColor(127, 63, 0, 191));
    m_run->set(m_start);
    ToolHarness::pump();
    m_run->type(0, typed);
    m_run->press(0, Qt::Key_Tab);
    QCOMPARE(m_run->text(), expected);
    QCOMPARE(shown().red(), lastRed);
    QCOMPARE(m_run->pushed(), 1);
}

void tst_DvSFColorRGBAWidget::textThatIsNoNumberReadsAsZero()
{
    m_run->type(1, QStringLiteral("green"));
    QCOMPARE(shown().green(), 0);
    m_run->press(1, Qt::Key_Tab);
    QCOMPARE(m_run->text().split(QLatin1Char(' ')).at(1), QStringLiteral("0"));
}

void tst_DvSFColorRGBAWidget::halfComesBackFromTheDialogAs127()
{
    const ColorDialogDriver dialog = ColorDialogDriver::accepting();
    m_run->click("m_colorDisp");
    QCOMPARE(dialog.answered(), 1);
    QCOMPARE(dialog.first, QColor(127, 63, 0, 191));
    QCOMPARE(dialog.parent, m_run->editor->getFrame());
    QCOMPARE(dialog.showsAlpha, true);
    QCOMPARE(dialog.title, QStringLiteral("Select Color")); // its own, as it is given none
    QCOMPARE(m_run->texts().constFirst(), QStringLiteral("0.498039"));
    QCOMPARE(m_run->text().split(QLatin1Char(' ')).constFirst().toFloat(), 0.498039F);
    QCOMPARE(m_run->pushed(), 1);
}

void tst_DvSFColorRGBAWidget::choiceInTheDialogPushesOneCommand()
{
    const ColorDialogDriver dialog = ColorDialogDriver::accepting(QColor(255, 0, 255, 102));
    m_run->click("m_colorDisp");
    QCOMPARE(m_run->text(), QStringLiteral("1 0 1 0.4"));
    QCOMPARE(shown(), QColor(255, 0, 255, 102));
    QCOMPARE(m_run->pushed(), 1);
    ToolHarness::pump();
    QCOMPARE(m_run->pushed(), 1);
}

void tst_DvSFColorRGBAWidget::cancelledDialogChangesNothing()
{
    const ColorDialogDriver dialog = ColorDialogDriver::cancelling(QColor(255, 0, 51));
    m_run->click("m_colorDisp");
    QCOMPARE(dialog.answered(), 1);
    QCOMPARE(m_run->text(), m_start);
    QCOMPARE(m_run->texts(), m_start.split(QLatin1Char(' ')));
    QCOMPARE(shown(), QColor(127, 63, 0, 191));
    QCOMPARE(m_run->pushed(), 0);
}

void tst_DvSFColorRGBAWidget::everyByteComesBackFromTheDialogUnchanged()
{
    for (const int byte : {0, 1, 51, 128, 255}) {
        const ColorDialogDriver dialog = ColorDialogDriver::accepting(QColor(byte, 0, 0));
        m_run->click("m_colorDisp");
        QCOMPARE(m_run->texts().constFirst(), QString().setNum(byte / 255.0, 'g', 6));
    }
    QCOMPARE(m_run->pushed(), 5);
}

void tst_DvSFColorRGBAWidget::changeFromOutsideIsFollowedWithoutACommand()
{
    m_run->set(QStringLiteral("0 0 1 1"));
    m_run->field->setIgnored(1);
    QCOMPARE(m_run->texts(), m_start.split(QLatin1Char(' ')));
    ToolHarness::pump();
    QCOMPARE(m_run->texts(), QStringLiteral("0 0 1 1").split(QLatin1Char(' ')));
    QCOMPARE(shown(), QColor(0, 0, 255));
    QVERIFY(m_run->find<QPushButton>("m_ignoreButton")->isChecked());
    QCOMPARE(m_run->pushed(), 0);
}

void tst_DvSFColorRGBAWidget::refreshRoundsTheComponentsToSixDigits()
{
    m_run->set(QStringLiteral("0.12345678 0 0 1"));
    ToolHarness::pump();
    QCOMPARE(m_run->texts().constFirst(), QStringLiteral("0.123457"));
    m_run->press(1, Qt::Key_Return);
    QCOMPARE(m_run->text().split(QLatin1Char(' ')).constFirst().toFloat(), 0.123457F);
}

void tst_DvSFColorRGBAWidget::nullFieldIsLeftAlone()
{
    m_run.reset();
    m_run = std::make_unique<ComponentRun>(std::make_unique<DvSFColorRGBAWidget>(), QStringLiteral("SFColorRGBA"));
    m_run->editor->updateFromField();
    m_run->editor->applyChanges();
    for (int index = 0; index < 4; ++index)
        m_run->type(index, QStringLiteral("1"));
    m_run->press(0, Qt::Key_Return);
    QCOMPARE(shown(), QColor(255, 255, 255));
    QCOMPARE(m_run->pushed(), 0);
}

void tst_DvSFColorRGBAWidget::buttonsPushTheirCommands()
{
    m_run->click("m_ignoreButton");
    QVERIFY(m_run->field->isIgnored());
    m_run->click("m_defaultButton");
    QCOMPARE(m_run->text(), QStringLiteral("0 0 0 1"));
    QCOMPARE(m_run->pushed(), 2);
}

QTEST_MAIN(tst_DvSFColorRGBAWidget)
#include "tst_DvSFColorRGBAWidget.moc"
