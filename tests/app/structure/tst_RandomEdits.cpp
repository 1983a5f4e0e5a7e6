#include "app/structure/EditCase.h"
#include "app/structure/ReferenceScene.h"

#include "orvane/app/structure/NodeUses.h"

/// Random changes of the structure against a reference that is changed node by node.
class TestRandomEdits : public EditCase {
    Q_OBJECT

private:
    using Kind = RandomStructure::Kind;

    /// The scene with each place written out.
    static void expand(const NxNode& node, std::string& text)
    {
        for (const NxNode* const child : node.getChildren()) {
            text += child->getClassName();
            text += child->getName().view();
            text += '{';
            expand(*child, text);
            text += '}';
        }
    }
    [[nodiscard]] std::string expanded()
    {
        std::string result;
        expand(scene(), result);
        return result;
    }

    /// Makes the change in the reference, too, where that can be done before the scene has changed.
    static void foresee(ReferenceScene& reference, const RandomStructure::Change& change)
    {
        switch (change.kind) {
        case Kind::Remove:
        case Kind::Group:
        case Kind::GroupInPlace:
            reference.remove(change.set);
            break;
        case Kind::Move:
            reference.move(change.set, change.spot);
            break;
        case Kind::Up:
        case Kind::Down:
            reference.shift(change.set, change.kind == Kind::Up ? -1 : 1);
            break;
        case Kind::Out:
            reference.moveOut(change.set);
            break;
        case Kind::In:
            reference.moveIn(change.set);
            break;
        case Kind::Ungroup:
            reference.ungroup(change.set);
            break;
        case Kind::Share:
            reference.share(change.set, change.spot);
            break;
        case Kind::Duplicate:
        case Kind::Copy:
        case Kind::Paste:
        case Kind::MoveInPlace:
        case Kind::UngroupInPlace:
        case Kind::MakeOwn:
            break;
        }
    }
    /// Nodes that keep their places may get others above them, and their own copies have other groups above them: the
    /// tests of these have their own reference.
    static bool isForeseen(Kind kind)
    {
        return kind != Kind::MoveInPlace && kind != Kind::UngroupInPlace && kind != Kind::MakeOwn
            && kind != Kind::GroupInPlace;
    }

    /// Whether each selected node, and each group above it, is in that place alone.
    bool areOwn(const meridane::NodeSet& set)
    {
        NodeUses uses(scene());
        for (const meridane::NodeRows& rows : set) {
            for (std::size_t i = 1; i < rows.path.size(); ++i) {
                if (uses.count(*rows.path[i]) != 1)
                    return false;
            }
            for (const int row : rows.rows) {
                if (uses.count(*rows.group().getChild(row)) != 1)
                    return false;
            }
        }
        return true;
    }

    /// The change is what the reference says, and undo and redo lead exactly there and back.
    void checkChange(RandomStructure::Change& change)
    {
        ReferenceScene reference(scene());
        const ReferenceScene::Nodes originals = ReferenceScene::nodesOf(change.set);
        std::vector<ReferenceScene::Nodes> originalsOfGroups;
        for (const meridane::NodeRows& rows : change.set)
            originalsOfGroups.push_back(ReferenceScene::nodesOf({rows}));
        CopyCheck copies(change.set, reference);
        const std::string before = text();
        const std::string places = expanded();
        foresee(reference, change);
        QCOMPARE(apply(std::move(change.edit)), QString());
        switch (change.kind) {
        case Kind::Group:
            QCOMPARE(m_selection.size(), std::size_t(1));
            reference.insert(m_selection);
            QVERIFY(std::ranges::equal(m_selection.front().first().getChildren(), originals));
            break;
        case Kind::Duplicate:
            reference.insert(m_selection);
            QCOMPARE(m_selection.size(), originalsOfGroups.size());
            for (std::size_t i = 0; i < m_selection.size(); ++i)
                QVERIFY(copies.areCopies(originalsOfGroups[i], ReferenceScene::nodesOf({m_selection[i]})));
            break;
        case Kind::Copy:
            reference.insert(m_selection);
            QVERIFY(copies.areCopies(originals, ReferenceScene::nodesOf(m_selection)));
            break;
        case Kind::Paste:
            reference.insert(m_selection);
            break;
        case Kind::MakeOwn:
            QCOMPARE(QString::fromStdString(expanded()), QString::fromStdString(places));
            QVERIFY(areOwn(m_selection));
            break;
        default:
            break;
        }
        if (isForeseen(change.kind))
            QVERIFY(reference.isSameAs(scene()));
        const std::string after = text();
        m_session->services().undo();
        QCOMPARE(QString::fromStdString(text()), QString::fromStdString(before));
        m_session->services().redo();
        QCOMPARE(QString::fromStdString(text()), QString::fromStdString(after));
    }

private Q_SLOTS:
    void cleanup() { endSession(); }

    void changesAreThoseOfTheReferenceAndAreUndoneExactly()
    {
        constexpr std::size_t longest = 30'000; // of a text: sharing makes scenes grow fast
        std::array<int, RandomStructure::kindCount> done{};
        for (unsigned int seed = 0; seed < 60; ++seed) {
            RandomStructure random(seed);
            startSession();
            open(random.statements());
            std::vector<std::string> states{text()};
            for (int i = 0; i < 25 && scene().getNumChildren() > 0; ++i) {
                RandomStructure::Change change = random.change(scene());
                if (!change.edit || change.edit.value().changes.isEmpty())
                    continue;
                const int kind = static_cast<int>(change.kind);
                checkChange(change);
                QVERIFY2(!QTest::currentTestFailed(),
                    qPrintable(QStringLiteral("seed %1, change %2: %3").arg(seed).arg(i).arg(m_label)));
                AppScenes::runSensors();
                if (text() != states.back())
                    states.push_back(text());
                ++done.at(static_cast<std::size_t>(kind));
                // What is written can be read, so references and shared nodes are in order.
                QCOMPARE(QString::fromStdString(textOf(text().substr(text().find('\n') + 1))),
                    QString::fromStdString(text()));
                if (expanded().size() > longest)
                    break;
            }
            for (std::size_t i = states.size(); i-- > 1;) {
                QCOMPARE(QString::fromStdString(text()), QString::fromStdString(states[i]));
                while (text() == states[i] && m_session->services().canUndo())
                    m_session->services().undo();
            }
            QCOMPARE(QString::fromStdString(text()), QString::fromStdString(states.front()));
            while (m_session->services().canRedo())
                m_session->services().redo();
            QCOMPARE(QString::fromStdString(text()), QString::fromStdString(states.back()));
            endSession();
        }
        for (const int count : done)
            QVERIFY(count > 3);
    }
};

QTEST_MAIN(TestRandomEdits)
#include "tst_RandomEdits.moc"
