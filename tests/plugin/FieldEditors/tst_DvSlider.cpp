#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvSlider.h"
#include "FieldEditors/DvUIntSlider.h"
#include "plugin/FieldEditors/RecordingOwner.h"
#include "plugin/SliderDriver.h"

#include <QHBoxLayout>
#include <QMetaMethod>

#include <memory>

/// What the sliders of all types have in common.
class TestDvSlider : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_owner = std::make_unique<RecordingOwner>();
        m_window = std::make_unique<QWidget>();
    }

    void cleanup()
    {
        m_window.reset();
        m_owner.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void frameHoldsBoxSliderAndLine_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("margin");
        QTest::addColumn<int>("spacing");
        QTest::newRow("field editor") << int{DvSlider::FieldEditor} << 2 << 4;
        QTest::newRow("table cell") << int{DvSlider::TableCell} << 0 << 3;
    }

    void frameHoldsBoxSliderAndLine()
    {
        QFETCH(int, mode);
        QFETCH(int, margin);
        QFETCH(int, spacing);
        const DvSlider slider(mode, m_owner.get(), m_window.get());
        QCOMPARE(slider.parentWidget(), m_window.get());
        QCOMPARE(slider.objectName(), QStringLiteral("DvSliderFrame"));
        QCOMPARE(slider.frameShape(), QFrame().frameShape());
        const auto* layout = qobject_cast<QHBoxLayout*>(slider.layout());
        QVERIFY(layout != nullptr);
        QCOMPARE(layout->objectName(), QStringLiteral("orvaneslider"));
        QCOMPARE(layout->contentsMargins(), QMargins(margin, margin, margin, margin));
        QCOMPARE(layout->spacing(), spacing);
        const SliderDriver controls(slider);
        QCOMPARE(layout->count(), 3);
        QCOMPARE(layout->itemAt(0)->widget(), controls.box);
        QCOMPARE(layout->itemAt(1)->widget(), controls.slider);
        QCOMPARE(layout->itemAt(2)->widget(), controls.line);
        QCOMPARE(slider.edit(), controls.line);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(layout->stretch(i), 0);
            QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
            QCOMPARE(layout->itemAt(i)->widget()->objectName(), QString());
        }
        QVERIFY(controls.slider->hasTracking());
        QCOMPARE(controls.slider->orientation(), Qt::Horizontal);
        QVERIFY(controls.box->isChecked());
        QCOMPARE(controls.box->text(), QString());
        QCOMPARE(controls.box->toolTip(), QString());
    }

    void slotsStandInTheirOrder()
    {
        const QMetaObject& meta = DvSlider::staticMetaObject;
        QStringList names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            names << QString::fromLatin1(meta.method(i).methodSignature());
        const QStringList expected{QStringLiteral("changeValueFromEdit()"), QStringLiteral("eventNotify(bool)"),
            QStringLiteral("beginCallback()"), QStringLiteral("finishCallback()"),
            QStringLiteral("valueChangeSlot(int)")};
        QCOMPARE(names, expected);
    }

    void plainSliderIgnoresTexts()
    {
        DvSlider slider(DvSlider::FieldEditor, m_owner.get(), m_window.get());
        slider.setValueText(QStringLiteral("5"));
        QCOMPARE(slider.editText(), QString());
        QVERIFY(slider.commandValue().isNull());
        QVERIFY(!slider.isInDrag());
    }

    void dragTellsOnEachStepAndAtRelease_data() { sliders(); }

    void dragTellsOnEachStepAndAtRelease()
    {
        makeShown();
        const int start = m_driver->slider->value();
        QStringList seen;
        m_owner->onApply = [&] { seen << QStringLiteral("%1 %2").arg(value()).arg(m_slider->editText().toDouble()); };
        m_driver->press();
        QVERIFY(m_slider->isInDrag());
        QVERIFY(seen.isEmpty());
        m_driver->dragTo(start + 1);
        m_driver->dragTo(start + 2);
        m_driver->dragTo(start + 15);
        QVERIFY(!m_slider->isInDrag());
        m_driver->release();
        QCOMPARE(seen,
            (QStringList{
                QStringLiteral("21 21"), QStringLiteral("22 22"), QStringLiteral("35 35"), QStringLiteral("35 35")}));
    }

    void dragWithClearedBoxTellsAtReleaseOnly_data() { sliders(); }

    void dragWithClearedBoxTellsAtReleaseOnly()
    {
        makeShown();
        m_driver->toggleBox();
        QVERIFY(!m_driver->box->isChecked());
        const int start = m_driver->slider->value();
        m_driver->press();
        m_driver->dragTo(start + 1);
        m_driver->dragTo(start + 15);
        QCOMPARE(m_slider->editText().toDouble(), 35.0);
        QVERIFY(m_owner->calls.isEmpty());
        m_driver->release();
        QCOMPARE(m_owner->calls, QStringList{QStringLiteral("apply")});
        QCOMPARE(value(), 35);
    }

    void boxSetAgainTellsOnEachStepAgain_data() { sliders(); }

    void boxSetAgainTellsOnEachStepAgain()
    {
        makeShown();
        m_driver->toggleBox();
        m_driver->toggleBox();
        QVERIFY(m_driver->box->isChecked());
        m_driver->press();
        m_driver->dragTo(m_driver->slider->value() + 1);
        QCOMPARE(m_owner->calls.size(), 1);
    }

    void pressTakesTheCommandValue_data() { sliders(); }

    void pressTakesTheCommandValue()
    {
        makeShown();
        const QString before = m_slider->editText();
        QVERIFY(m_slider->commandValue().isNull());
        m_driver->press();
        QCOMPARE(QString::fromUtf8(m_slider->commandValue().toUtf8()), before);
        m_driver->dragTo(m_driver->slider->value() + 10);
        m_driver->release();
        // Taking it is the owner's affair.
        QCOMPARE(QString::fromUtf8(m_slider->commandValue().toUtf8()), before);
    }

    void keyAndWheelTellLikeOneStep_data() { sliders(); }

    void keyAndWheelTellLikeOneStep()
    {
        makeShown();
        QTest::keyClick(m_driver->slider, Qt::Key_Right);
        QCOMPARE(m_owner->calls.size(), 1);
        QCOMPARE(value(), 21);
        m_driver->turnWheelUp();
        QCOMPARE(m_owner->calls.size(), 2);
        QCOMPARE(m_slider->editText().toDouble(), double(value()));
        QVERIFY(value() > 21);
        QVERIFY(m_slider->commandValue().isNull());
    }

    void keyAndWheelWithClearedBoxTellNobody_data() { sliders(); }

    void keyAndWheelWithClearedBoxTellNobody()
    {
        makeShown();
        m_driver->toggleBox();
        QTest::keyClick(m_driver->slider, Qt::Key_Right);
        QCOMPARE(m_slider->editText().toDouble(), 21.0);
        m_driver->turnWheelUp();
        QVERIFY(m_slider->editText().toDouble() > 21);
        QVERIFY(m_slider->commandValue().isNull());
        QVERIFY(m_owner->calls.isEmpty());
    }

    void typingAloneTellsNobody_data() { sliders(); }

    void typingAloneTellsNobody()
    {
        makeShown();
        QVERIFY(!m_slider->edited());
        m_driver->type(QStringLiteral("50"));
        QVERIFY(m_slider->edited());
        QVERIFY(m_owner->calls.isEmpty());
        QCOMPARE(value(), 20);
    }

    void returnTellsTwiceWhileTheTextStands_data() { sliders(); }

    void returnTellsTwiceWhileTheTextStands()
    {
        makeShown();
        const int start = m_driver->slider->value();
        m_driver->typeAndReturn(QStringLiteral("50"));
        QCOMPARE(m_owner->calls, (QStringList{QStringLiteral("apply"), QStringLiteral("apply")}));
        QCOMPARE(value(), 50);
        QCOMPARE(m_driver->slider->value(), start + 30);
        QVERIFY(m_slider->edited());
    }

    void returnTellsOnceWhenTheTextIsRewritten_data() { sliders(); }

    void returnTellsOnceWhenTheTextIsRewritten()
    {
        makeShown();
        m_owner->onApply = [this] { setValue(value()); };
        m_driver->typeAndReturn(QStringLiteral("50"));
        QCOMPARE(m_owner->calls.size(), 1);
        QCOMPARE(value(), 50);
        QVERIFY(!m_slider->edited());
    }

    void typedTextGoesOutWithTheBoxCleared_data() { sliders(); }

    void typedTextGoesOutWithTheBoxCleared()
    {
        makeShown();
        m_driver->toggleBox();
        m_driver->typeAndLeave(QStringLiteral("50"));
        QCOMPARE(m_owner->calls.size(), 1);
    }

    void leavingTheLineTellsOnce_data() { sliders(); }

    void leavingTheLineTellsOnce()
    {
        makeShown();
        m_driver->typeAndLeave(QStringLiteral("50"));
        QCOMPARE(m_owner->calls.size(), 1);
        QCOMPARE(value(), 50);
    }

    void untouchedLineTellsNobody_data() { sliders(); }

    void untouchedLineTellsNobody()
    {
        makeShown();
        m_driver->line->setFocus();
        m_driver->slider->setFocus();
        m_driver->line->setFocus();
        QTest::keyClick(m_driver->line, Qt::Key_Return);
        QVERIFY(m_owner->calls.isEmpty());
    }

    void ownMovesTellNobody_data() { sliders(); }

    void ownMovesTellNobody()
    {
        makeShown();
        const int start = m_driver->slider->value();
        const QSignalSpy moved(m_driver->slider, &QSlider::valueChanged);
        setValue(40);
        QCOMPARE(m_driver->slider->value(), start + 20);
        if (auto* real = dynamic_cast<DvRealSlider*>(m_slider)) {
            real->setRange(7, 7, true);
            real->setRange(0, 10, false);
            real->setRange(0, 1, true);
        } else if (auto* integer = dynamic_cast<DvIntSlider*>(m_slider)) {
            integer->setRange(50, 60, false);
            integer->setRange(-10, 10, false);
            integer->setRange(3, 5, true);
        } else {
            auto* natural = dynamic_cast<DvUIntSlider*>(m_slider);
            natural->setRange(50, 60, false);
            natural->setRange(0, 10, false);
            natural->setRange(3, 5, true);
        }
        QVERIFY(moved.size() >= 3);
        setValue(90);
        QVERIFY(m_owner->calls.isEmpty());
    }

    void cellTellsItsTextWithRefreshHeldBack_data() { sliders(); }

    void cellTellsItsTextWithRefreshHeldBack()
    {
        makeShown(DvSlider::TableCell, 4, 2);
        m_driver->press();
        m_driver->dragTo(m_driver->slider->value() + 1);
        const QString text
            = QTest::currentDataTag() == QByteArray("real") ? QStringLiteral("21.000000") : QStringLiteral("21");
        QCOMPARE(m_owner->calls,
            (QStringList{
                QStringLiteral("refresh off"), QStringLiteral("cell 4 2 ") + text, QStringLiteral("refresh on")}));
        m_owner->calls.clear();
        m_driver->typeAndLeave(QStringLiteral("7"));
        QCOMPARE(m_owner->calls,
            (QStringList{QStringLiteral("refresh off"), QStringLiteral("cell 4 2 7"), QStringLiteral("refresh on")}));
    }

    void cellWithoutAPlaceIsRowZeroColumnOne()
    {
        DvIntSlider slider(1, DvSlider::TableCell, m_owner.get(), m_window.get());
        slider.setRange(0, 10, false);
        slider.setValueText(QStringLiteral("0x1f"));
        QTest::keyClick(SliderDriver(slider).slider, Qt::Key_Left);
        QCOMPARE(m_owner->calls.at(1), QStringLiteral("cell 0 1 0x1e"));
    }

private:
    enum Type { Real, Signed, Unsigned };

    static void sliders()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("real") << int{Real};
        QTest::newRow("signed") << int{Signed};
        QTest::newRow("unsigned") << int{Unsigned};
    }

    /// A shown slider of the row's type with the unbounded range 0 to 100 and the value 20.
    void makeShown(int mode = DvSlider::FieldEditor, int row = 0, int column = 1)
    {
        QFETCH(int, type);
        if (type == Real) {
            auto* slider = new DvRealSlider(mode, m_owner.get(), m_window.get(), true, row, column);
            slider->setRange(0, 100, false);
            m_slider = slider;
        } else if (type == Signed) {
            auto* slider = new DvIntSlider(1, mode, m_owner.get(), m_window.get(), row, column);
            slider->setRange(0, 100, false);
            m_slider = slider;
        } else {
            auto* slider = new DvUIntSlider(2, mode, m_owner.get(), m_window.get(), row, column);
            slider->setRange(0, 100, false);
            m_slider = slider;
        }
        setValue(20);
        showIn(*m_window, *m_slider);
        m_driver = std::make_unique<SliderDriver>(*m_slider);
        QVERIFY(m_owner->calls.isEmpty());
    }

    void setValue(int value)
    {
        if (auto* real = dynamic_cast<DvRealSlider*>(m_slider))
            real->setValue(value);
        else
            m_slider->setValueText(QString::number(value));
    }

    int value() const
    {
        if (const auto* real = dynamic_cast<const DvRealSlider*>(m_slider))
            return qRound(real->value());
        if (const auto* integer = dynamic_cast<const DvIntSlider*>(m_slider))
            return integer->value();
        return static_cast<int>(dynamic_cast<const DvUIntSlider*>(m_slider)->value());
    }

    std::unique_ptr<RecordingOwner> m_owner;
    std::unique_ptr<QWidget> m_window;
    DvSlider* m_slider = nullptr;
    std::unique_ptr<SliderDriver> m_driver;
};

QTEST_MAIN(TestDvSlider)
#include "tst_DvSlider.moc"
