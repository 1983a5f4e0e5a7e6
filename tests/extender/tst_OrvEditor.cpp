#include "orvane/extender/OrvEditor.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

#include <QTest>
#include <QWidget>

namespace {

class FloatEditor : public OrvEditor {
public:
    explicit FloatEditor(QWidget* widget)
    {
        m_handledType = NxSFFloat::getClassTypeId();
        m_widget = widget;
    }
    void load() override { }
    void unload() override { }
};

class EmptyEditor : public OrvEditor {
public:
    void load() override { }
    void unload() override { }
};

} // namespace

class TestOrvEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itAnswersWhatItsConstructorSet()
    {
        QWidget widget;
        FloatEditor editor(&widget);
        QVERIFY(editor.getHandledType() == NxSFFloat::getClassTypeId());
        QCOMPARE(editor.getWidget(), &widget);
        QVERIFY(editor.getEditedObject() == nullptr);
    }

    void itKeepsTheObjectUntilNull()
    {
        FloatEditor editor(nullptr);
        NxSFFloat field(nullptr, "field", 1);
        editor.setEditedObject(&field);
        QCOMPARE(editor.getEditedObject(), static_cast<NxTypedObject*>(&field));
        editor.setEditedObject(nullptr);
        QVERIFY(editor.getEditedObject() == nullptr);
    }

    void anEditorThatSetsNothingHandlesNothing()
    {
        EmptyEditor editor;
        QVERIFY(editor.getHandledType().isBad());
        QVERIFY(!NxSFFloat::getClassTypeId().isDerivedFrom(editor.getHandledType()));
        QVERIFY(editor.getWidget() == nullptr);
    }
};

QTEST_MAIN(TestOrvEditor)
#include "tst_OrvEditor.moc"
