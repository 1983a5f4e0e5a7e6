#include "OrvDefaults.h"
#include "plugin/HostHarness.h"
#include "plugin/Monkey.h"
#include "plugin/WriteCounter.h"
#include "scene/SceneText.h"

#include "meridane/base/Files.h"
#include "meridane/scene/fields/NxSField.h"

namespace {

constexpr int steps = 20000;
constexpr unsigned usualSeed = 20260;
constexpr int pokes = 79; // up to this number of a hundred it pokes

/// The gallery in the tool, at random. What a seed found is found again with it in MONKEY_SEED.
class MonkeyRun {
public:
    explicit MonkeyRun(unsigned seed)
        : m_monkey(seed)
        , m_host(m_plugin, QStringLiteral("Field Editor"), {QStringLiteral("*")})
    {
        m_host.shell.window.resize(900, 300);
        std::string text;
        [&text] { QVERIFY(!meridane::readFile(GALLERY_FILE, text)); }();
        m_scene = SceneText::read(text);
        [this] { QVERIFY(m_scene); }();
        for (NxField* const field : dynamic_cast<NxFieldGallery&>(*m_scene->getChild(0)).getFields()) {
            m_fields.push_back(field);
            m_counters.push_back(std::make_unique<WriteCounter>(*field));
        }
        m_edits.resize(m_fields.size());
        m_wasShown.resize(m_fields.size());
    }

    /// Does one thing, and checks that it has changed no field but those at hand.
    void step()
    {
        for (const auto& counter : m_counters)
            counter->writes = 0;
        const NxField* const before = m_host.services.getSelectedField();
        const bool isHistory = act();
        // What the window system reports of a step comes before the next one, as with a user.
        QCoreApplication::processEvents();
        if (isHistory)
            return;
        const NxField* const after = m_host.services.getSelectedField();
        for (std::size_t index = 0; index < m_fields.size(); ++index) {
            const NxField* const field = m_fields[index];
            if (field == before)
                m_edits[index] += m_counters[index]->writes;
            if (field == after && m_host.dock()->isVisible())
                m_wasShown[index] = true;
            if (field != before && field != after && field != m_outside)
                QVERIFY2(m_counters[index]->writes == 0, nameOf(index));
        }
    }

    /// Whatever was done to them, the fields hold values that their texts bring back.
    void checkFields() const
    {
        for (NxField* const field : m_fields) {
            const QString text = ToolHarness::textOf(*field);
            QVERIFY2(field->set(text.toUtf8().constData()), qUtf8Printable(text));
            QCOMPARE(ToolHarness::textOf(*field), text);
        }
    }

    /// Whether every field that has an editor was shown in it and written, without which the rest would say little.
    void checkReach() const
    {
        for (std::size_t index = 0; index < m_fields.size(); ++index) {
            const bool hasEditor = m_wasShown[index] || m_fields[index]->isOfType(NxSField::getClassTypeId());
            QVERIFY2(m_edits[index] > 0 || !hasEditor, nameOf(index));
        }
        QVERIFY(m_host.services.pushed > steps / 10);
    }

private:
    [[nodiscard]] const char* nameOf(std::size_t index) const
    {
        return m_fields[index]->getContainer()->getFieldName(m_fields[index]).getString();
    }
    [[nodiscard]] NxField* anyField() { return m_fields[static_cast<std::size_t>(m_monkey.below(size()))]; }
    [[nodiscard]] int size() const { return static_cast<int>(m_fields.size()); }

    // Whether it was a step of the history, which may change any field.
    bool act()
    {
        m_outside = nullptr;
        int what = m_monkey.below(100);
        // An open popup holds mouse and keyboard, so a user can do nothing else.
        if (QApplication::activePopupWidget() != nullptr)
            what = pokes;
        if (what < 20) {
            m_host.services.selectField(m_monkey.chance(3) ? nullptr : anyField());
        } else if (what <= pokes) {
            m_monkey.poke(m_host.dock());
        } else if (what < 85) {
            m_outside = anyField();
            m_outside->setIgnored(m_monkey.below(2));
        } else if (what < 93) {
            m_host.services.undo();
        } else {
            m_host.services.redo();
        }
        return what >= 85;
    }

    Monkey m_monkey;
    OrvDefaults m_plugin;
    HostHarness m_host;
    NxRef<NxGroup> m_scene;
    std::vector<NxField*> m_fields;
    std::vector<std::unique_ptr<WriteCounter>> m_counters;
    std::vector<int> m_edits; // how often each field was written while its editor was shown
    std::vector<bool> m_wasShown;
    NxField* m_outside = nullptr; // the field that something else has just changed
};

} // namespace

class TestEditorMonkey : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editorsWithstandAnything()
    {
        bool isSet = false;
        const int wanted = qEnvironmentVariableIntValue("MONKEY_SEED", &isSet);
        const unsigned seed = isSet ? static_cast<unsigned>(wanted) : usualSeed;
        qInfo("The seed is %u.", seed);
        {
            MonkeyRun run(seed);
            for (int step = 1; step <= steps; ++step) {
                run.step();
                if (step % 1000 == 0)
                    run.checkFields();
                if (QTest::currentTestFailed())
                    QFAIL(qPrintable(QStringLiteral("That was step %1 of the seed %2.").arg(step).arg(seed)));
            }
            run.checkReach();
        }
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }
};

QTEST_MAIN(TestEditorMonkey)
#include "tst_EditorMonkey.moc"
