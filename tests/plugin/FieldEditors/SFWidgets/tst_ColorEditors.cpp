#include "plugin/ColorDialogDriver.h"
#include "plugin/EditorList.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

#include <QMetaMethod>

/// What the editors of a colour do, the one without and the one with opacity.
class TestColorEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("without opacity") << "SFColor";
        QTest::newRow("with opacity") << "SFColorRGBA";
    }

    void init()
    {
        QFETCH_GLOBAL(QString, type);
        m_type = type;
        m_hasOpacity = type == QLatin1String("SFColorRGBA");
        m_count = m_hasOpacity ? 4 : 3;
        m_start = value("0.5 0.25 0", "0.75");
        make(m_start);
    }

    void cleanup()
    {
        m_run.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void slotsHaveTheirOrder()
    {
        const QMetaObject& meta = *m_run->editor->metaObject();
        QStringList names;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
            names << QString::fromLatin1(meta.method(index).methodSignature());
        QStringList expected{QStringLiteral("changeRValue(QString)"), QStringLiteral("changeGValue(QString)"),
            QStringLiteral("changeBValue(QString)")};
        if (m_hasOpacity)
            expected << QStringLiteral("changeAValue(QString)");
        QCOMPARE(names, expected << QStringLiteral("getColorEditor()"));
    }

    void loadBuildsDisplayAndRows()
    {
        QCOMPARE(m_run->find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(m_type));
        QCOMPARE(m_run->row()->spacing(), 6);
        QCOMPARE(m_run->row()->contentsMargins(), QMargins());
        const auto* const display = m_run->find<QPushButton>("m_colorDisp");
        QCOMPARE(m_run->row()->itemAt(0)->widget(), display);
        QCOMPARE(display->size(), QSize(20, 18));
        QCOMPARE(display->parentWidget(), m_run->frame());
        QCOMPARE(m_run->parts().size(), m_count);
        QStringList labels;
        for (const QChar component : QStringLiteral("RGBA").left(m_count))
            labels << QStringLiteral("<p align=\"right\">%1</p>").arg(component);
        QCOMPARE(m_run->labelTexts(), labels);
        for (const QBoxLayout* const part : m_run->parts()) {
            QCOMPARE(part->direction(), QBoxLayout::LeftToRight);
            QCOMPARE(part->objectName(), m_type + QStringLiteral("Layout"));
            QCOMPARE(part->spacing(), m_hasOpacity ? 0 : 2);
            QCOMPARE(part->sizeConstraint(), QLayout::SetMinimumSize);
        }
        for (const QLabel* const label : m_run->labels()) {
            QCOMPARE(label->objectName(), m_type + QStringLiteral("Label"));
            QCOMPARE(label->height(), 18);
            QCOMPARE(label->parentWidget(), m_run->frame());
        }
        for (const QLineEdit* const line : m_run->controls()) {
            QCOMPARE(line->objectName(), m_type + QStringLiteral("Line"));
            QCOMPARE(line->height(), 18);
            QCOMPARE(line->parentWidget(), m_run->frame());
        }
    }

    void linesHaveNoValidator()
    {
        for (const QLineEdit* const line : m_run->controls())
            QVERIFY(line->validator() == nullptr);
    }

    void loadedEditorShowsBlackAndZeros()
    {
        make({});
        QCOMPARE(shown(), QColor(0, 0, 0, 255));
        QCOMPARE(m_run->texts(), QStringList(m_count, QStringLiteral("0")));
    }

    void fieldIsShownFromTheBeginning()
    {
        QCOMPARE(m_run->texts(), m_start.split(QLatin1Char(' ')));
        QCOMPARE(shown(), startColor());
        for (const QLineEdit* const line : m_run->controls())
            QCOMPARE(line->cursorPosition(), 0);
        QVERIFY(!m_run->editor->edited());
        QCOMPARE(m_run->pushed(), 0);
    }

    void typingChangesTheDisplayAtOnceAndTheFieldOnReturn()
    {
        m_run->type(2, QStringLiteral("1"));
        QCOMPARE(shown().blue(), 255);
        QVERIFY(m_run->editor->edited());
        QCOMPARE(m_run->text(), m_start);
        QCOMPARE(m_run->pushed(), 0);
        m_run->press(2, Qt::Key_Return);
        QCOMPARE(m_run->text(), value("0.5 0.25 1", "0.75"));
        // Return itself, and then the line counts as finished with typed text in it.
        QCOMPARE(m_run->pushed(), 2);
    }

    void leavingALineWritesWhatWasTyped()
    {
        m_run->controls().constFirst()->setFocus();
        m_run->press(0, Qt::Key_Tab);
        QVERIFY(m_run->controls().at(1)->hasFocus());
        QCOMPARE(m_run->pushed(), 0);
        m_run->type(2, QStringLiteral("1"));
        m_run->press(2, Qt::Key_Tab);
        QCOMPARE(m_run->text(), value("0.5 0.25 1", "0.75"));
        QCOMPARE(m_run->pushed(), 1);
    }

    void returnAlwaysPushes()
    {
        m_run->press(0, Qt::Key_Return);
        m_run->press(m_count - 1, Qt::Key_Return);
        QCOMPARE(m_run->pushed(), 2);
        QCOMPARE(m_run->text(), m_start);
    }

    void undoWritesTheValueThatIsThere()
    {
        m_run->type(2, QStringLiteral("1"));
        m_run->press(2, Qt::Key_Tab);
        m_run->lastCommand().undo();
        QCOMPARE(m_run->text(), value("0.5 0.25 1", "0.75"));
        m_run->set(m_start);
        m_run->lastCommand().redo();
        QCOMPARE(m_run->text(), value("0.5 0.25 1", "0.75"));
    }

    void componentOutsideReachesTheFieldAndNotTheDisplay_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("lastRed"); // of the last colour on the way to that text
        QTest::newRow("above") << "1.5" << 255;
        QTest::newRow("below") << "-0.1" << 0;
        QTest::newRow("beyond an int") << "1e30" << 0;
        QTest::newRow("far below") << "-1e30" << 0;
    }

    void componentOutsideReachesTheFieldAndNotTheDisplay()
    {
        QFETCH(QString, typed);
        QFETCH(int, lastRed);
        m_run->set(typed + m_start.mid(m_start.indexOf(QLatin1Char(' '))));
        const QString expected = m_run->text();
        ToolHarness::pump();
        QCOMPARE(m_run->texts().constFirst().toFloat(), typed.toFloat());
        QCOMPARE(shown(), startColor());
        m_run->set(m_start);
        ToolHarness::pump();
        m_run->type(0, typed);
        m_run->press(0, Qt::Key_Tab);
        QCOMPARE(m_run->text(), expected);
        QCOMPARE(shown().red(), lastRed);
        QCOMPARE(m_run->pushed(), 1);
    }

    void textThatIsNoNumberReadsAsZero()
    {
        m_run->type(1, QStringLiteral("green"));
        QCOMPARE(shown().green(), 0);
        m_run->press(1, Qt::Key_Tab);
        QCOMPARE(m_run->text().split(QLatin1Char(' ')).at(1), QStringLiteral("0"));
    }

    void halfComesBackFromTheDialogAs127()
    {
        const ColorDialogDriver dialog = ColorDialogDriver::accepting();
        m_run->click("m_colorDisp");
        QCOMPARE(dialog.answered(), 1);
        QCOMPARE(dialog.first, startColor());
        QCOMPARE(dialog.parent, m_run->editor->getFrame());
        QCOMPARE(dialog.showsAlpha, m_hasOpacity);
        QCOMPARE(dialog.title, QStringLiteral("Select Color")); // its own, as it is given none
        QCOMPARE(m_run->texts().constFirst(), QStringLiteral("0.498039"));
        QCOMPARE(m_run->text().split(QLatin1Char(' ')).constFirst().toFloat(), 0.498039F);
        QCOMPARE(m_run->pushed(), 1);
    }

    void choiceInTheDialogPushesOneCommand()
    {
        const QColor chosen = opaqueOr(102, {255, 0, 255});
        const ColorDialogDriver dialog = ColorDialogDriver::accepting(chosen);
        m_run->click("m_colorDisp");
        QCOMPARE(m_run->text(), value("1 0 1", "0.4"));
        QCOMPARE(shown(), chosen);
        QCOMPARE(m_run->pushed(), 1);
        ToolHarness::pump();
        QCOMPARE(m_run->pushed(), 1);
    }

    void cancelledDialogChangesNothing()
    {
        const ColorDialogDriver dialog = ColorDialogDriver::cancelling(QColor(255, 0, 51));
        m_run->click("m_colorDisp");
        QCOMPARE(dialog.answered(), 1);
        QCOMPARE(m_run->text(), m_start);
        QCOMPARE(m_run->texts(), m_start.split(QLatin1Char(' ')));
        QCOMPARE(shown(), startColor());
        QCOMPARE(m_run->pushed(), 0);
    }

    void everyByteComesBackFromTheDialogUnchanged()
    {
        for (const int byte : {0, 1, 51, 128, 255}) {
            const ColorDialogDriver dialog = ColorDialogDriver::accepting(QColor(byte, 0, 0));
            m_run->click("m_colorDisp");
            QCOMPARE(m_run->texts().constFirst(), QString().setNum(byte / 255.0, 'g', 6));
        }
        QCOMPARE(m_run->pushed(), 5);
    }

    void changeFromOutsideIsFollowedWithoutACommand()
    {
        m_run->set(value("0 0 1", "1"));
        m_run->field->setIgnored(1);
        QCOMPARE(m_run->texts(), m_start.split(QLatin1Char(' ')));
        ToolHarness::pump();
        QCOMPARE(m_run->texts(), value("0 0 1", "1").split(QLatin1Char(' ')));
        QCOMPARE(shown(), QColor(0, 0, 255));
        QVERIFY(m_run->find<QPushButton>("m_ignoreButton")->isChecked());
        QCOMPARE(m_run->pushed(), 0);
    }

    void refreshRoundsTheComponentsToSixDigits()
    {
        m_run->set(value("0.12345678 0 0", "1"));
        ToolHarness::pump();
        QCOMPARE(m_run->texts().constFirst(), QStringLiteral("0.123457"));
        m_run->press(1, Qt::Key_Return);
        QCOMPARE(m_run->text().split(QLatin1Char(' ')).constFirst().toFloat(), 0.123457F);
    }

    void nullFieldIsLeftAlone()
    {
        make({});
        m_run->editor->updateFromField();
        m_run->editor->applyChanges();
        for (int index = 0; index < m_count; ++index)
            m_run->type(index, QStringLiteral("1"));
        m_run->press(0, Qt::Key_Return);
        QCOMPARE(shown(), QColor(255, 255, 255));
        QCOMPARE(m_run->pushed(), 0);
    }

private:
    // Makes a new editor, without a field if there is no value.
    void make(const QString& start)
    {
        m_run.reset();
        m_run = std::make_unique<ComponentRun>(editorEntry(m_type).make(nullptr), m_type, start);
    }
    // The text form of a colour, which has its opacity at the end if there is one.
    [[nodiscard]] QString value(const char* color, const char* opacity) const
    {
        return QLatin1String(color) + (m_hasOpacity ? QStringLiteral(" ") + QLatin1String(opacity) : QString());
    }
    [[nodiscard]] QColor opaqueOr(int opacity, const QColor& color) const
    {
        return {color.red(), color.green(), color.blue(), m_hasOpacity ? opacity : 255};
    }
    [[nodiscard]] QColor startColor() const { return opaqueOr(191, {127, 63, 0}); }
    [[nodiscard]] QColor shown() const
    {
        const QPushButton* const display = m_run->find<QPushButton>("m_colorDisp");
        const QImage image = display->icon().pixmap(display->rect().size()).toImage();
        return QColor::fromRgba(image.convertToFormat(QImage::Format_ARGB32).pixel(9, 9));
    }

    std::unique_ptr<ComponentRun> m_run;
    QString m_type;
    QString m_start;
    bool m_hasOpacity = false;
    int m_count = 0; // of components
};

QTEST_MAIN(TestColorEditors)
#include "tst_ColorEditors.moc"
