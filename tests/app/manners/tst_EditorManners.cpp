#include "app/manners/MannersCase.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/manners/PaneFrame.h"
#include "orvane/app/manners/ShortTips.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QToolTip>
#include <QTreeView>

// Wheel, keys, focus and tool tips of the plug-in's editors.
class TestEditorManners : public MannersCase {
    Q_OBJECT

private:
    FieldPanel* fields() const { return m_window->findChild<FieldPanel*>(); }

    /// The title of the dock with the focus; "view" for the middle of the window.
    QString paneWithFocus() const
    {
        for (const QWidget* each = QApplication::focusWidget(); each != nullptr; each = each->parentWidget()) {
            if (const auto* const pane = qobject_cast<const QDockWidget*>(each))
                return pane->windowTitle();
        }
        return QStringLiteral("view");
    }

private Q_SLOTS:
    void init()
    {
        if (qstrcmp(QTest::currentTestFunction(), "withoutManners") == 0)
            startWithGallery(false);
        else
            startWithGallery();
    }
    void cleanup() { endWithGallery(); }

    void theWheelNeedsTheFocus_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::addColumn<QString>("className");
        QTest::newRow("slider") << "sfFloat"
                                << "QSlider";
        QTest::newRow("spin box") << "sfVec2i32"
                                  << "QSpinBox";
        QTest::newRow("combo box") << "sfEnum"
                                   << "QComboBox";
    }
    void theWheelNeedsTheFocus()
    {
        QFETCH(const QString, fieldName);
        QFETCH(const QString, className);
        select(fieldName);
        const QString before = value(fieldName);
        QWidget* control = nullptr;
        for (QWidget* const each : dock()->widget()->findChildren<QWidget*>()) {
            if (each->inherits(className.toLatin1().constData()) && each->isVisible() && control == nullptr)
                control = each;
        }
        QVERIFY(control != nullptr);
        const int stepsBefore = steps(); // spin boxes push a command as they show a value
        turnWheel(control, -1);
        QCOMPARE(value(fieldName), before);
        QVERIFY(!control->hasFocus());
        QCOMPARE(steps(), stepsBefore);
        control->setFocus();
        turnWheel(control, -1);
        QVERIFY(value(fieldName) != before);
        QCOMPARE(steps(), stepsBefore + 1);
        m_session->services().undo();
        QCOMPARE(value(fieldName), before);
    }

    void theWheelScrollsTheListUnderAControl()
    {
        field("mfShort")->set("[1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, "
                              "25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40]");
        select("mfShort");
        openCell(0, 0);
        auto* const slider = cells()->findChild<QSlider*>();
        QVERIFY(slider != nullptr && !slider->hasFocus());
        QVERIFY(cells()->verticalScrollBar()->maximum() > 0);
        const QString before = value("mfShort");
        turnWheel(slider, -1);
        QVERIFY(cells()->verticalScrollBar()->value() > 0);
        QCOMPARE(value("mfShort"), before);
    }

    void linesAreAsHighAsALargeFont_data()
    {
        QTest::addColumn<QString>("fieldName");
        for (const char* const name : {"sfVec4f", "sfPlane", "sfVec2i32", "sfVec3f", "sfColor", "sfColorRGBA"})
            QTest::newRow(name) << name;
    }
    void linesAreAsHighAsALargeFont()
    {
        QFETCH(const QString, fieldName);
        const QFont usual = QApplication::font();
        const auto restore = qScopeGuard([&usual] { QApplication::setFont(usual); });
        QFont large = usual;
        large.setPointSizeF(18);
        QApplication::setFont(large);
        select(fieldName);
        QVERIFY(!lines().isEmpty());
        // The first that is cut, or lies outside of the dock, which has to grow with them.
        const auto cut = [this] {
            for (QWidget* const each : dock()->widget()->findChildren<QWidget*>()) {
                const auto* const label = qobject_cast<QLabel*>(each);
                const bool isText = label != nullptr
                    ? !label->text().isEmpty()
                    : qobject_cast<QLineEdit*>(each) != nullptr || qobject_cast<QSpinBox*>(each) != nullptr;
                const int bottom = each->mapTo(dock(), QPoint(0, each->height())).y();
                if (each->isVisible() && isText
                    && (each->height() < each->fontMetrics().height() || bottom > dock()->height()))
                    return QStringLiteral("%1 %2: %3 of %4, bottom %5 of %6")
                        .arg(QLatin1String(each->metaObject()->className()), each->objectName())
                        .arg(each->height())
                        .arg(each->fontMetrics().height())
                        .arg(bottom)
                        .arg(dock()->height());
            }
            return QString();
        };
        QTRY_COMPARE(cut(), QString());
    }

    void escapeRestoresAnUnfinishedLine_data()
    {
        QTest::addColumn<QString>("fieldName");
        for (const char* const name :
            {"sfFloat", "sfInt32", "sfUShort", "sfVec3f", "sfVec2i32", "sfColor", "sfString", "sfName", "sfTime"})
            QTest::newRow(name) << name;
    }
    void escapeRestoresAnUnfinishedLine()
    {
        QFETCH(const QString, fieldName);
        const QString before = value(fieldName);
        select(fieldName);
        QLineEdit* const line = lines().front();
        const QString shown = line->text();
        enter(line);
        type(QStringLiteral("12"));
        press(Qt::Key_Escape);
        QCOMPARE(line->text(), shown);
        QCOMPARE(value(fieldName), before);
        QVERIFY(dock()->isAncestorOf(QApplication::focusWidget()));
        fields()->setFocus();
        settle();
        QCOMPARE(value(fieldName), before);
    }

    void escapeLeadsBackToTheTable()
    {
        select("sfFloat");
        enter(lines().front());
        press(Qt::Key_Escape);
        QVERIFY(fields()->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(fields()->currentField(), field("sfFloat"));
    }

    void returnWithControlLeadsToTheEditor_data()
    {
        QTest::addColumn<QString>("fieldName");
        for (const char* const name : {"sfFloat", "sfVec3f", "sfEnum", "sfBool", "mfVec2f", "sfString"})
            QTest::newRow(name) << name;
    }
    void returnWithControlLeadsToTheEditor()
    {
        QFETCH(const QString, fieldName);
        select(fieldName);
        fields()->view()->setFocus();
        press(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(QApplication::focusWidget() != nullptr);
        QVERIFY(dock()->isAncestorOf(QApplication::focusWidget()));
    }

    void functionKeyGoesFromPaneToPane()
    {
        select("sfVec3f");
        m_window->findChild<QTreeView*>(QStringLiteral("sceneTree"))->setFocus();
        QStringList panes;
        for (int i = 0; i < 12 && (panes.size() < 2 || panes.constFirst() != panes.constLast()); ++i) {
            panes.append(paneWithFocus());
            press(Qt::Key_F6);
            const auto* const frame = m_window->findChild<PaneFrame*>();
            QVERIFY(frame != nullptr && frame->parentWidget()->isAncestorOf(QApplication::focusWidget()));
        }
        QCOMPARE(panes.constFirst(), panes.constLast());
        QCOMPARE(panes.mid(0, 4),
            QStringList({QStringLiteral("Scene"), QStringLiteral("view"), QStringLiteral("Fields"),
                QStringLiteral("Field Editor")}));
        press(Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(paneWithFocus(), panes.constLast());
        QTest::mouseClick(m_window->findChild<QTreeView*>(QStringLiteral("sceneTree"))->viewport(), Qt::LeftButton);
        QTRY_COMPARE(m_window->findChild<PaneFrame*>(), nullptr);
    }

    void aGridGetsTheKeysAndGivesThemBack_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::newRow("matrix") << "sfMatrix";
        QTest::newRow("box") << "sfBox2f";
        QTest::newRow("list of matrices") << "mfMatrix";
    }
    void aGridGetsTheKeysAndGivesThemBack()
    {
        QFETCH(const QString, fieldName);
        const QString before = value(fieldName);
        select(fieldName);
        QTest::mouseClick(dock()->widget()->findChild<QWidget*>(QStringLiteral("m_editButton")), Qt::LeftButton);
        settle();
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(line != nullptr && line->window() == QApplication::activePopupWidget());
        QCOMPARE(line->selectedText(), line->text());
        press(Qt::Key_Escape);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        QTRY_VERIFY(dock()->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(value(fieldName), before);
    }

    void aGridOfAListChangesWhatIsTyped()
    {
        const QString other = QStringLiteral("[1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1, ");
        field("mfMatrix")->set("[0.33333334 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16, 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1]");
        select("mfMatrix");
        // The buttons that move a row make it the current one.
        QTest::mouseClick(dock()->widget()->findChild<QWidget*>(QStringLiteral("m_downButton")), Qt::LeftButton);
        settle();
        const QString before = value("mfMatrix");
        QCOMPARE(before, other + QStringLiteral("0.33333334 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16]"));
        const int stepsBefore = steps();
        QTest::mouseClick(dock()->widget()->findChild<QWidget*>(QStringLiteral("m_editButton")), Qt::LeftButton);
        settle();
        QCOMPARE(value("mfMatrix"), before);
        QCOMPARE(steps(), stepsBefore);
        const QList<QLineEdit*> grid = QApplication::activePopupWidget()->findChildren<QLineEdit*>();
        enter(grid.at(1));
        type(QStringLiteral("25"));
        QCOMPARE(value("mfMatrix"), other + QStringLiteral("0.33333334 25 3 4 5 6 7 8 9 10 11 12 13 14 15 16]"));
        enter(grid.at(6));
        type(QStringLiteral("x/2"));
        press(Qt::Key_Return);
        QCOMPARE(value("mfMatrix"), other + QStringLiteral("0.33333334 25 3 4 5 6 3.5 8 9 10 11 12 13 14 15 16]"));
        press(Qt::Key_Escape);
    }

    void aCellWithASliderTakesTheKeysInItsLine()
    {
        select("mfInt32");
        openCell(1, 0);
        QVERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr);
        type(QStringLiteral("77"));
        press(Qt::Key_Return);
        QCOMPARE(value("mfInt32"), QStringLiteral("[0, 77, -1, 150, 2147483647, -2147483648]"));
        QCOMPARE(steps(), 1);
    }

    void theSliderOfACellWritesItsOwnRow()
    {
        const QString before = value("mfFloat");
        select("mfFloat");
        openCell(2, 0);
        auto* const slider = cells()->findChild<QSlider*>();
        QVERIFY(slider != nullptr);
        const QPoint middle = slider->rect().center();
        const int width = slider->width();
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(6, middle.y()));
        for (int step = 1; step <= 4; ++step)
            QTest::mouseMove(slider, QPoint(6 + step * width / 6, middle.y()));
        QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, QPoint(6 + 4 * width / 6, middle.y()));
        settle();
        const QStringList rows = value("mfFloat").mid(1).split(QStringLiteral(", "));
        QCOMPARE(rows.at(0), QStringLiteral("0.5"));
        QCOMPARE(rows.at(1), QStringLiteral("1"));
        QVERIFY(rows.at(2).toDouble() > -3.75);
        QCOMPARE(steps(), 1);
        m_session->services().undo();
        QCOMPARE(value("mfFloat"), before);
    }

    void openingTheCellOfAColourLosesNoValue()
    {
        field("mfColor")->set("[0.5 0.5 1, 0.25 0.33333334 0]");
        const QString before = value("mfColor");
        select("mfColor");
        openCell(1, 2);
        QCOMPARE(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("33333334e-8"));
        press(Qt::Key_Return);
        QCOMPARE(value("mfColor"), before);
    }

    void longToolTipsAreCut()
    {
        select("sfFloat");
        QLineEdit* const line = lines().front();
        line->setToolTip(QString(5000, u'f'));
        QHelpEvent event(QEvent::ToolTip, line->rect().center(), line->mapToGlobal(line->rect().center()));
        QApplication::sendEvent(line, &event);
        QTRY_VERIFY(QToolTip::isVisible());
        QVERIFY(QToolTip::text().count(u'f') < ShortTips::mostCharacters);
        QVERIFY(QToolTip::text().count(u'f') > ShortTips::mostCharacters / 2);
        QToolTip::hideText();
    }

    void withoutManners()
    {
        select("sfFloat");
        enter(lines().front());
        type(QStringLiteral("3,5"));
        QCOMPARE(cover(), nullptr);
        const QString typed = lines().front()->text();
        press(Qt::Key_Escape);
        QCOMPARE(lines().front()->text(), typed);
        press(Qt::Key_Return);
        QVERIFY(value("sfFloat") != QStringLiteral("3.5"));
        press(Qt::Key_F6);
        QCOMPARE(m_window->findChild<PaneFrame*>(), nullptr);
        m_session->services().undo();

        select("sfVec2i32");
        auto* const box = dock()->widget()->findChild<QSpinBox*>();
        turnWheel(box, -1);
        QCOMPARE(value("sfVec2i32"), QStringLiteral("1919 -1080"));
        enter(lines().front());
        type(QStringLiteral("12"));
        QCOMPARE(value("sfVec2i32"), QStringLiteral("12 -1080"));
    }
};

QTEST_MAIN(TestEditorManners)
#include "tst_EditorManners.moc"
