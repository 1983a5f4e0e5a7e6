#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvSliderFactory.h"
#include "FieldEditors/DvUIntSlider.h"
#include "plugin/FieldEditors/RecordingOwner.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QTest>

class TestDvSliderFactory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void realKinds_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("limit");
        QTest::addColumn<int>("decimals");
        QTest::newRow("float") << 1 << 3.4028234663852886e+38 << 6;
        QTest::newRow("double") << 2 << 1.7976931348623157e+308 << 15;
    }

    void realKinds()
    {
        QFETCH(int, kind);
        QFETCH(double, limit);
        QFETCH(int, decimals);
        const auto* slider = dynamic_cast<DvRealSlider*>(makeSlider(kind, &m_owner, &m_parent));
        QVERIFY(slider != nullptr);
        QCOMPARE(slider->parentWidget(), &m_parent);
        const auto* validator = qobject_cast<const QDoubleValidator*>(slider->edit()->validator());
        QVERIFY(validator != nullptr);
        QCOMPARE(validator->bottom(), -limit);
        QCOMPARE(validator->top(), limit);
        QCOMPARE(validator->decimals(), decimals);
        QCOMPARE(validator->parent(), slider->edit());
    }

    void signedKinds_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("bottom");
        QTest::addColumn<int>("top");
        QTest::newRow("32-bit") << 3 << std::numeric_limits<int>::min() << std::numeric_limits<int>::max();
        QTest::newRow("16-bit") << 5 << -32768 << 32767;
    }

    void signedKinds()
    {
        QFETCH(int, kind);
        QFETCH(int, bottom);
        QFETCH(int, top);
        auto* slider = dynamic_cast<DvIntSlider*>(makeSlider(kind, &m_owner, &m_parent));
        QVERIFY(slider != nullptr);
        QCOMPARE(slider->edit()->validator(), nullptr);
        slider->setValueText(QStringLiteral("5"));
        const auto* validator = qobject_cast<const QIntValidator*>(slider->edit()->validator());
        QVERIFY(validator != nullptr);
        QCOMPARE(validator->bottom(), bottom);
        QCOMPARE(validator->top(), top);
        QCOMPARE(validator->parent(), slider->edit());
    }

    void unsignedKinds_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<unsigned>("top");
        QTest::newRow("32-bit") << 4 << 4294967295U;
        QTest::newRow("16-bit") << 6 << 65535U;
    }

    void unsignedKinds()
    {
        QFETCH(int, kind);
        QFETCH(unsigned, top);
        auto* slider = dynamic_cast<DvUIntSlider*>(makeSlider(kind, &m_owner, &m_parent));
        QVERIFY(slider != nullptr);
        slider->setValueText(QStringLiteral("4294967295"));
        QCOMPARE(slider->value(), top);
        QCOMPARE(slider->edit()->validator(), nullptr);
    }

    void anyOtherKindGivesNone_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("none") << 0;
        QTest::newRow("beyond the last") << 7;
        QTest::newRow("negative") << -1;
    }

    void anyOtherKindGivesNone()
    {
        QFETCH(int, kind);
        QCOMPARE(makeSlider(kind, &m_owner, &m_parent), nullptr);
    }

    void sliderReportsToItsOwnerAsAFieldEditor()
    {
        for (int kind = 1; kind <= 6; ++kind) {
            auto* slider = dynamic_cast<DvSlider*>(makeSlider(kind, &m_owner, &m_parent));
            slider->edit()->setText(QStringLiteral("5"));
            slider->edit()->setModified(true);
            m_owner.calls.clear();
            QTest::keyClick(slider->edit(), Qt::Key_Return);
            QVERIFY(m_owner.calls.contains(QStringLiteral("apply")));
        }
    }

private:
    RecordingOwner m_owner;
    QWidget m_parent;
};

QTEST_MAIN(TestDvSliderFactory)
#include "tst_DvSliderFactory.moc"
