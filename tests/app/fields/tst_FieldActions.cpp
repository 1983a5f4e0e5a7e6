#include "app/fields/FieldPanelCase.h"
#include "scene/FieldCatalogue.h"

#include "orvane/app/fields/FieldClipboard.h"
#include "orvane/app/input/InputMessage.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

/// What the keys and the context menu of the field table do.
class TestFieldActions : public FieldPanelCase {
    Q_OBJECT

private:
    static constexpr auto control = Qt::ControlModifier;
    static constexpr auto controlAlt = Qt::ControlModifier | Qt::AltModifier;

    void openGalleries(int count)
    {
        std::vector<NxRef<NxNode>> nodes;
        for (int i = 0; i < count; ++i)
            nodes.emplace_back(new NxFieldGallery);
        open(nodes);
    }
    void showNode(std::size_t node) { m_panel->setNode((*m_many->nodes())[node].get()); }
    [[nodiscard]] QModelIndex rowOf(std::size_t node, const char* name) { return model()->indexOf(&field(name, node)); }
    [[nodiscard]] static QString clipboardText() { return QGuiApplication::clipboard()->text(); }
    static void setClipboardText(const QString& text) { QGuiApplication::clipboard()->setText(text); }
    /// What the message beside the row says; empty for none.
    [[nodiscard]] QString message()
    {
        const InputMessage* const shown = InputMessage::shownIn(m_panel.get());
        return shown != nullptr ? shown->text() : QString();
    }

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<std::vector<NxNode*>>(); }
    void cleanup()
    {
        close();
        QGuiApplication::clipboard()->clear();
    }

    void aValueOfEachClassIsCopiedAndPasted_data() { addFieldKindRows(); }
    void aValueOfEachClassIsCopiedAndPasted()
    {
        QFETCH(const FieldKind*, kind);
        std::vector<NxRef<NxNode>> nodes;
        for (int i = 0; i < 2; ++i) {
            const NxRef<NxFieldContainer> made = kind->makeNode();
            nodes.emplace_back(dynamic_cast<NxNode*>(made.get()));
        }
        open(nodes);
        RandomValues random(3);
        for (int i = 0; i < 10; ++i) {
            kind->setRandom(field("field"), random);
            ManyNodes::finish();
            const int steps = m_many->services().undoDepth();
            const bool isSame = field("field").isSame(field("field", 1));
            showNode(0);
            click(rowOf(0, "field"));
            press(Qt::Key_C, control);
            showNode(1);
            click(rowOf(1, "field"));
            press(Qt::Key_V, control);
            QVERIFY2(field("field", 1).isSame(field("field")), qPrintable(message()));
            QCOMPARE(m_many->services().undoDepth(), isSame ? steps : steps + 1);
        }
        // The same as plain text from another program.
        const bool isText = dynamic_cast<NxSFString*>(&field("field")) != nullptr;
        setClipboardText(isText ? u"some \"plain\"\nwords"_s : QString::fromStdString(kind->accepted.front().text));
        press(Qt::Key_V, control);
        QCOMPARE(text("field", 1),
            isText ? std::string("\"some \\\"plain\\\"\\nwords\"") : kind->accepted.front().canonical);
    }

    void aLongValueIsCopiedWhole()
    {
        openGalleries(1);
        const std::string long_(10'000'000, 'x');
        QVERIFY(field("sfString").set(long_.c_str()));
        click(row("sfString"));
        press(Qt::Key_C, control);
        QCOMPARE(clipboardText().size(), qsizetype{10'000'000});
        QVERIFY(field("sfString").set(""));
        ManyNodes::finish();
        press(Qt::Key_V, control);
        QCOMPARE(text("sfString").size(), std::size_t{10'000'002});
        const std::string list = "[\"" + std::string(300'000, '7') + "\"]";
        QVERIFY(field("mfString").set(list.c_str()));
        click(row("mfString"));
        press(Qt::Key_C, control);
        QCOMPARE(clipboardText().toStdString(), text("mfString"));
    }

    void aTextOfAnotherTypeSaysWhyNot()
    {
        openGalleries(1);
        QVERIFY(field("sfString").set("hello"));
        ManyNodes::finish();
        const int steps = m_many->services().undoDepth();
        click(row("sfString"));
        press(Qt::Key_C, control);
        click(row("sfVec3f"));
        press(Qt::Key_V, control);
        QVERIFY2(
            message().contains(u"SFString"_s) && message().contains(u"SFVec3f"_s) && message().contains(u"hello"_s),
            qPrintable(message()));
        setClipboardText(u"1, 2"_s);
        press(Qt::Key_V, control);
        QVERIFY2(message().contains(u"3 numbers"_s), qPrintable(message()));
        QGuiApplication::clipboard()->clear();
        press(Qt::Key_V, control);
        QVERIFY2(message().contains(u"no text"_s), qPrintable(message()));
        QCOMPARE(m_many->services().undoDepth(), steps);
    }

    void aValueOfAnotherClassIsTakenIfItFits()
    {
        openGalleries(1);
        QVERIFY(field("sfVec3f").set("1 0.5 0"));
        click(row("sfVec3f"));
        press(Qt::Key_C, control);
        click(row("sfColor"));
        press(Qt::Key_V, control);
        QCOMPARE(text("sfColor"), std::string("1 0.5 0"));
    }

    void formattedTextIsTakenAsPlainText()
    {
        openGalleries(1);
        auto* const data = new QMimeData;
        data->setHtml(u"<table><tr><td>1</td><td>2</td><td>3</td></tr></table><img src='file:///none.png'>"_s);
        QGuiApplication::clipboard()->setMimeData(data);
        click(row("sfVec3f"));
        press(Qt::Key_V, control);
        QVERIFY2(text("sfVec3f") == "1 2 3" || message().contains(u"sfVec3f"_s), qPrintable(message()));
    }

    void aValueIsPastedToAllNodesAsOneStep()
    {
        openGalleries(3);
        setClipboardText(u"(1; 2; 3)"_s);
        showAll();
        click(row("sfVec3f"));
        press(Qt::Key_V, control);
        for (std::size_t node = 0; node < 3; ++node)
            QCOMPARE(text("sfVec3f", node), std::string("1 2 3"));
        QCOMPARE(m_many->services().undoDepth(), 1);
        QVERIFY(field("sfFloat", 1).set("7"));
        AppScenes::runSensors();
        ManyNodes::finish();
        click(row("sfFloat"));
        press(Qt::Key_C, control);
        QVERIFY2(message().contains(u"different values"_s), qPrintable(message()));
    }

    void allFieldsOfANodeAreCopiedAsOneStep()
    {
        open({new NxSpotLight, new NxPointLight, new NxMaterial});
        QVERIFY(field("intensity").set("0.25") && field("location").set("4 5 6"));
        field("color").setIgnored(1);
        ManyNodes::finish();
        click(row("intensity"));
        press(Qt::Key_C, controlAlt);
        const QString copied = clipboardText();
        QVERIFY2(copied.contains(u"intensity = 0.25\n"_s) && copied.contains(u"ignored color = 1 1 1\n"_s),
            qPrintable(copied));
        const int steps = m_many->services().undoDepth();
        const std::string before = m_many->text();
        showNode(1);
        click(rowOf(1, "intensity"));
        press(Qt::Key_V, controlAlt);
        QCOMPARE(text("intensity", 1), std::string("0.25"));
        QCOMPARE(text("location", 1), std::string("4 5 6"));
        QVERIFY(field("color", 1).isIgnored());
        QCOMPARE(m_many->services().undoDepth(), steps + 1);
        QVERIFY2(message().contains(u"cutOffAngle"_s), qPrintable(message()));
        QVERIFY2(m_many->labels().back().startsWith(u"Paste "_s), qPrintable(m_many->labels().back()));
        m_many->services().undo();
        QCOMPARE(m_many->text(), before);
        // The same from the lines of plain text.
        setClipboardText(copied);
        press(Qt::Key_V, controlAlt);
        QCOMPARE(text("intensity", 1), std::string("0.25"));
        QVERIFY(field("color", 1).isIgnored());
        ManyNodes::finish();
        const int after = m_many->services().undoDepth();
        showNode(2);
        click(rowOf(2, "transparency"));
        press(Qt::Key_V, controlAlt);
        QVERIFY2(message().contains(u"None of the fields"_s), qPrintable(message()));
        setClipboardText(u"intensity = 0.5\nlocation = here"_s);
        showNode(1);
        press(Qt::Key_V, controlAlt);
        QVERIFY2(message().contains(u"here"_s), qPrintable(message()));
        QCOMPARE(text("intensity", 1), std::string("0.25"));
        QCOMPARE(m_many->services().undoDepth(), after);
    }

    void theFieldsOfAGroupAreCopied()
    {
        open({new NxSpotLight});
        click(row("intensity"));
        press(Qt::Key_G, controlAlt);
        QVERIFY(clipboardText().contains(u"intensity = "_s));
        QVERIFY(!clipboardText().contains(u"cutOffAngle"_s));
    }

    void pathsAndArgumentsAreCopied()
    {
        open({new NxSpotLight, new NxPointLight});
        (*m_many->nodes())[0]->setName("it's a lamp");
        QVERIFY(field("color").set("1 0.5 0"));
        click(row("color"));
        press(Qt::Key_C, control | Qt::ShiftModifier);
        const QString path = clipboardText();
        QVERIFY2(
            path.startsWith(u'/') && path.endsWith(u".color"_s) && path.contains(u"it's a lamp"_s), qPrintable(path));
        press(Qt::Key_S, controlAlt);
        QString quoted = path;
        quoted.replace(u'\'', u"'\\''"_s);
        QCOMPARE(clipboardText(), u"--set '%1=1 0.5 0'"_s.arg(quoted));
        showAll();
        click(row("color"));
        press(Qt::Key_C, control | Qt::ShiftModifier);
        QCOMPARE(clipboardText().split(u'\n').size(), 2);
    }

    void keysResetIgnoreAndMakeFavorites()
    {
        open({new NxSpotLight});
        QVERIFY(field("intensity").set("0.25"));
        click(row("intensity"));
        press(Qt::Key_Backspace, control);
        QCOMPARE(text("intensity"), std::string("1"));
        press(Qt::Key_I, controlAlt);
        QVERIFY(field("intensity").isIgnored());
        press(Qt::Key_I, controlAlt);
        QVERIFY(!field("intensity").isIgnored());
        press(Qt::Key_B, control);
        QCOMPARE(groups().front(), u"Favorites"_s);
        press(Qt::Key_B, control);
        QCOMPARE(groups().front(), u"SpotLight"_s);
    }

    void nodesWithTheSameValueAreFound()
    {
        open({new NxSpotLight, new NxPointLight, new NxSpotLight, new NxMaterial});
        QVERIFY(field("intensity", 0).set("0.25") && field("intensity", 1).set("0.25"));
        click(row("intensity"));
        const QSignalSpy found(m_panel.get(), &FieldPanel::nodesFound);
        press(Qt::Key_F, controlAlt);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.front().front().value<std::vector<NxNode*>>().size(), std::size_t{2});
        QVERIFY(field("intensity", 0).set("0.75"));
        press(Qt::Key_F, controlAlt);
        QCOMPARE(found.size(), 1);
        QVERIFY2(message().contains(u"No other node"_s), qPrintable(message()));
    }

    void theContextMenuOffersThemAll()
    {
        open({new NxSpotLight});
        const QModelIndex index = row("intensity");
        view()->scrollTo(index);
        QStringList entries;
        QTimer::singleShot(0, this, [&entries] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            for (const QAction* const action : menu->actions())
                entries += action->text().remove(u'&') + (action->isEnabled() ? QString() : u" (off)"_s);
            for (QAction* const action : menu->actions()) {
                if (action->text().remove(u'&') == u"Ignore"_s)
                    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            }
        });
        const QPoint place = view()->visualRect(index).center();
        QTest::mouseClick(view()->viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view()->viewport(), &event);
        // What doesn't apply, such as a reset of a field that has its default, isn't there.
        QVERIFY2(entries.filter(u"Reset"_s).isEmpty(), qPrintable(entries.join(u", "_s)));
        QVERIFY2(entries.filter(u"(off)"_s).isEmpty(), qPrintable(entries.join(u", "_s)));
        QVERIFY(entries.contains(u"Copy as --set Argument"_s));
        QVERIFY(field("intensity").isIgnored());
    }
};

QTEST_MAIN(TestFieldActions)
#include "tst_FieldActions.moc"
