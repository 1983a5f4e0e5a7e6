#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/popups/ChoicePopup.h"
#include "orvane/app/fields/popups/MaskPopup.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

/// Flags, choices and bits in the field table.
class TestChoiceCells : public CellCase {
    Q_OBJECT

private:
    // The popup of a part, opened by a click.
    template <typename Popup>
    Popup* openPopup(const char* name, int number = 0)
    {
        clickPart(name, number);
        return popup<Popup>();
    }
    NxFieldGallery& gallery(std::size_t node = 0) { return dynamic_cast<NxFieldGallery&>(*(*m_many->nodes())[node]); }

private Q_SLOTS:
    void init() { openGalleries(1); }
    void cleanup() { close(); }

    // Flags.

    void aClickOnTheBoxToggles()
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, part("sfBool", 0).topLeft() + QPoint(6, 8));
        QCOMPARE(text("sfBool"), std::string("true"));
        QCOMPARE(steps(), 1);
        undo();
        QCOMPARE(text("sfBool"), std::string("false"));
        clickPart("sfBool", 0); // beside the box
        QCOMPARE(text("sfBool"), std::string("false"));
    }

    void returnToggles()
    {
        click(row("sfBool"));
        press(Qt::Key_Return);
        QCOMPARE(text("sfBool"), std::string("true"));
        QVERIFY(editor() == nullptr);
        press(Qt::Key_Return);
        QCOMPARE(text("sfBool"), std::string("false"));
        QCOMPARE(steps(), 2);
    }

    void tabReachesAFlagAndEscapeRestores()
    {
        clickPart("sfBitMask", 0);
        key(popup<MaskPopup>()->findChild<QListWidget*>(), Qt::Key_Escape);
        delegate().edit(cell("sfBitMask"), 0, CellEdit::Reason::Tab);
        key(editor(), Qt::Key_Tab);
        QVERIFY(editor() != nullptr);
        QCOMPARE(view()->currentIndex().row(), row("sfBool").row());
        key(editor(), Qt::Key_Space);
        QCOMPARE(text("sfBool"), std::string("true"));
        key(editor(), Qt::Key_Escape);
        QCOMPARE(text("sfBool"), std::string("false"));
        QCOMPARE(steps(), 0);
    }

    void mixedFlagsBecomeTrue()
    {
        openGalleries(2);
        gallery(1).sfBool.setValue(true);
        ManyNodes::finish();
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, part("sfBool", 0).topLeft() + QPoint(6, 8));
        QCOMPARE(text("sfBool", 0), std::string("true"));
        QCOMPARE(text("sfBool", 1), std::string("true"));
    }

    // Choices.

    void aChoiceIsFilteredAndTaken()
    {
        auto* const choices = openPopup<ChoicePopup>("sfEnum");
        QVERIFY(choices != nullptr);
        QCOMPARE(choices->current(), 0);
        auto* const filter = choices->findChild<QLineEdit*>();
        QTest::keyClicks(filter, u"ulr"_s); // letters in order
        QCOMPARE(choices->current(), 3);
        key(filter, Qt::Key_Return);
        QCOMPARE(text("sfEnum"), std::string("ULTRA"));
        QVERIFY(editor() == nullptr);
        QVERIFY(view()->hasFocus());
        QCOMPARE(steps(), 1);
        undo();
        QCOMPARE(text("sfEnum"), std::string("LOW"));
    }

    void arrowsMoveInTheChoicesAndEscapeLeaves()
    {
        auto* const choices = openPopup<ChoicePopup>("sfEnum");
        auto* const filter = choices->findChild<QLineEdit*>();
        key(filter, Qt::Key_Down);
        QCOMPARE(choices->current(), 1);
        key(filter, Qt::Key_Escape);
        QCOMPARE(text("sfEnum"), std::string("LOW"));
        QVERIFY(editor() == nullptr);
        QCOMPARE(steps(), 0);
    }

    void aValueWithoutANameIsKeptUntilOneIsChosen()
    {
        gallery().sfEnum.setValue(77);
        ManyNodes::finish();
        auto* const choices = openPopup<ChoicePopup>("sfEnum");
        QCOMPARE(choices->current(), -1);
        key(choices->findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(gallery().sfEnum.getValue(), 77);
        auto* const list = choices->findChild<QListWidget*>();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
        QCOMPARE(text("sfEnum"), std::string("HIGH"));
    }

    // Masks.

    void theMenuOfBitsStaysOpen()
    {
        gallery().sfBitMask.setValue(64 | 1);
        ManyNodes::finish();
        const int before = steps();
        auto* const menu = openPopup<MaskPopup>("sfBitMask");
        QVERIFY(menu != nullptr);
        auto* const list = menu->findChild<QListWidget*>();
        QCOMPARE(list->count(), 6); // five names, and the bit without one
        const auto clickRow = [list](int number) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(number)).center());
            ManyNodes::finish();
        };
        clickRow(1);
        clickRow(4);
        QVERIFY(menu->isVisible());
        QCOMPARE(gallery().sfBitMask.getValue(), 64 | 32 | 2 | 1);
        list->setCurrentRow(0);
        key(list, Qt::Key_Space);
        QCOMPARE(gallery().sfBitMask.getValue(), 64 | 32 | 2);
        key(list, Qt::Key_Return);
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(gallery().sfBitMask.getValue(), 64 | 1);
    }

    void aBitOfSeveralNodesLeavesTheOthers()
    {
        openGalleries(2);
        gallery(0).sfBitMask.setValue(1);
        gallery(1).sfBitMask.setValue(4);
        ManyNodes::finish();
        auto* const menu = openPopup<MaskPopup>("sfBitMask");
        auto* const list = menu->findChild<QListWidget*>();
        QCOMPARE(list->item(0)->checkState(), Qt::PartiallyChecked);
        QCOMPARE(list->item(1)->checkState(), Qt::Unchecked);
        list->setCurrentRow(1);
        key(list, Qt::Key_Space);
        QCOMPARE(gallery(0).sfBitMask.getValue(), 3);
        QCOMPARE(gallery(1).sfBitMask.getValue(), 6);
        key(list, Qt::Key_Escape);
        QCOMPARE(gallery(0).sfBitMask.getValue(), 1);
        QCOMPARE(gallery(1).sfBitMask.getValue(), 4);
    }
};

QTEST_MAIN(TestChoiceCells)
#include "tst_ChoiceCells.moc"
