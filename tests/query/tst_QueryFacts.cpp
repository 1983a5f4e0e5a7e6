#include "scene/TestNodes.h"

#include "meridane/query/Query.h"
#include "meridane/query/QueryFacts.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

using meridane::Query;
using meridane::QueryError;

namespace {

Query parsed(const std::string& text)
{
    auto result = Query::parse(text);
    if (const auto* const error = std::get_if<QueryError>(&result)) {
        QTest::qFail((text + ": " + error->message).c_str(), __FILE__, __LINE__);
        return {};
    }
    return std::get<Query>(std::move(result));
}

} // namespace

/// Names with accents, what the caller of a query knows, and the fields that a query is about.
class TestQueryFacts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void accentsAreFolded_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("query");
        QTest::addColumn<bool>("isMatch");
        const auto row = [](const char* name, const char* query, bool isMatch) {
            QTest::addRow("%s, %s", name, query) << QByteArray(name) << QByteArray(query) << isMatch;
        };
        row("Ca\u0301mara", "\"camara\"", true); // a letter and its accent
        row("C\u00C1MARA", "\"ca\u0301mara\"", true);
        row("camera", "\"c\u00E1mera\"", true);
        row("Stra\u00DFe", "STRASSE", true);
        row("\u00C5ngstr\u00F6m", "\"angstrom\"", true);
        row("\u0394\u03AF\u03C3\u03BA\u03BF\u03C2", "\"\u03B4\u03B9\u03C3\u03BA\u03BF\u03C3\"",
            true); // the final sigma
        row("\u0419\u043E\u0434", "\"\u0438\u043E\u0434\"", true);
        row("\uFF21\uFF22\uFF23", "abc", true); // full width
        row("\uFB01n", "fin", true); // a ligature
        row("\u0130zmir", "izmir", true);
        row("\u304C", "\"\u304B\"", false); // other letters, not accents
        row("\u0915\u093F", "\"\u0915\u0940\"", false);
        row("\u00F8re", "ore", false);
        row("\u00E4\u00F6", "\u00F6\u00E4", false);
        row("x\u03A9y\u0416z", "x\u03C9\u0436", true); // letters in their order
        row("\u0451\u044A", "\u0449", false); // which has bytes of both
    }

    void accentsAreFolded()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, query);
        const NxRef<NxMesh> mesh(new NxMesh);
        mesh->setName(name.constData());
        QTEST(parsed(query.toStdString()).matches(*mesh), "isMatch");
    }

    void onlyLettersAreFolded()
    {
        std::string all;
        for (char character = ' '; character <= '~'; ++character)
            all += character;
        const NxRef<NxMesh> mesh(new NxMesh);
        mesh->setName(all.c_str());
        QVERIFY(parsed("\"?@abcdefghijklmnopqrstuvwxyz[\"").matches(*mesh));
        QVERIFY(parsed("\"_`ABCDEFGHIJKLMNOPQRSTUVWXYZ{\"").matches(*mesh));
        QVERIFY(!parsed("\"`abc\" \"xyz[\" not \"@abc\"").matches(*mesh));
        QVERIFY(!parsed("\"?`\" or \"@[\" or \"z{|}~ \"").matches(*mesh));
    }

    void foundPartsAreThoseOfTheOriginal_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("query");
        QTest::addColumn<QByteArray>("part");
        const auto row = [](const char* text, const char* query, const char* part) {
            QTest::addRow("%s, %s", text, query) << QByteArray(text) << QByteArray(query) << QByteArray(part);
        };
        row("my \u00C1RM", "arm", "\u00C1RM");
        row("x a\u0301rm y", "arm", "a\u0301rm");
        row("ca\u0301", "ca", "ca\u0301");
        row("Stra\u00DFe", "asse", "a\u00DFe");
        row("Stra\u00DFe", "tras", "tra\u00DF");
        row("\u304C\u304B", "\u304B", "\u304B");
    }

    void foundPartsAreThoseOfTheOriginal()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, query);
        const auto parts = parsed(query.toStdString()).foundIn(text.toStdString(), meridane::SearchedText::Value);
        QCOMPARE(parts.size(), std::size_t{1});
        QTEST(text.mid(static_cast<qsizetype>(parts[0].start), static_cast<qsizetype>(parts[0].length)), "part");
    }

    void factsComeFromTheCaller()
    {
        const NxRef<NxMaterial> material(new NxMaterial);
        const NxRef<NxTexture> texture(new NxTexture);
        meridane::QueryFacts facts;
        NxSceneProblem problem;
        problem.kind = NxProblemKind::UnusedMaterial;
        problem.node = material.get();
        QVERIFY(!facts.add(problem));
        problem = {};
        problem.kind = NxProblemKind::MissingFile;
        problem.node = texture.get();
        problem.field = texture->getFields().front();
        QVERIFY(!facts.add(problem));
        const Query unused = parsed("Unused");
        QVERIFY(unused.needsFacts() && !unused.isAboutFields());
        QVERIFY(unused.matches(*material, &facts));
        QVERIFY(unused.matches(*material->getFields().front(), &facts));
        QVERIFY(!unused.matches(*texture, &facts));
        QVERIFY(!unused.matches(*material));
        const Query missing = parsed("missing");
        QVERIFY(missing.needsFacts() && missing.isAboutFields());
        QVERIFY(missing.matches(*texture, &facts));
        QVERIFY(!missing.matches(*material, &facts));
        QVERIFY(missing.matches(*problem.field, &facts));
        QVERIFY(!missing.matches(*texture->getFields().back(), &facts));
        QVERIFY(!missing.matches(*texture));
        QVERIFY(parsed("not missing").needsFacts());
        QVERIFY(!parsed("\"unused\" changed").needsFacts());
    }

    void manySiblingsAreFactsInParts()
    {
        const NxRef<NxGroup> group(new NxGroup);
        for (int i = 0; i < 10; ++i)
            group->addChild(new NxMaterial);
        NxSceneProblem problem;
        problem.kind = NxProblemKind::UnusedMaterial;
        problem.group = group.get();
        problem.places = std::make_shared<const std::vector<int>>(std::vector<int>{1, 3, 5, 20});
        meridane::QueryFacts facts;
        QVERIFY(facts.add(problem, 0, 2));
        QVERIFY(facts.isUnused(*group->getChild(3)));
        QVERIFY(!facts.isUnused(*group->getChild(5)));
        QVERIFY(!facts.add(problem, 2, 2));
        QVERIFY(facts.isUnused(*group->getChild(5)));
        QVERIFY(!facts.isUnused(*group->getChild(0)));
    }

    void theFirstFieldThatMatchesIsKnown_data()
    {
        // size 1.5, title "My Robot", weights 1 2 3; size is at its default, title is changed.
        QTest::addColumn<QByteArray>("query");
        QTest::addColumn<QByteArray>("expected");
        const auto addRows = [](std::initializer_list<std::pair<const char*, const char*>> rows) {
            for (const auto& [query, expected] : rows)
                QTest::newRow(query) << QByteArray(query) << QByteArray(expected);
        };
        addRows({
            {"arm", ""},
            {"f:s", "size"},
            {"f:weights", "weights"},
            {"arm changed", "title"},
            {"t:Probe >2", "weights"},
            {"f:s >2", "weights"},
            {"leg or =3", "weights"},
            {"(arm changed) t:Probe", "title"},
            {"arm not changed", "size"},
            {"f:radius", ""},
            {"not changed", ""},
        });
    }

    void theFirstFieldThatMatchesIsKnown()
    {
        QFETCH(QByteArray, query);
        QFETCH(QByteArray, expected);
        const NxRef<ProbeNode> node(new ProbeNode);
        node->setName("arm");
        node->title.setValue("My Robot");
        const NxField* const field = parsed(query.toStdString()).firstField(*node);
        QCOMPARE(field != nullptr ? QByteArray(node->getFieldName(field).getString()) : QByteArray(), expected);
    }
};

QTEST_APPLESS_MAIN(TestQueryFacts)
#include "tst_QueryFacts.moc"
