#include "scene/TestNodes.h"

#include "meridane/query/Query.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QTest>

#include <algorithm>
#include <limits>

using meridane::Query;
using meridane::QueryError;

namespace {

Query parsed(const std::string& text, Query::Subject subject = Query::Subject::Scene)
{
    auto result = Query::parse(text, subject);
    if (const auto* const error = std::get_if<QueryError>(&result)) {
        QTest::qFail((text + ": " + error->message).c_str(), __FILE__, __LINE__);
        return {};
    }
    return std::get<Query>(std::move(result));
}

/// The names of a node's fields that match, separated by blanks.
std::string matchingFields(NxNode& node, const std::string& text)
{
    const Query query = parsed(text);
    std::string names;
    for (const NxField* const field : node.getFields()) {
        if (query.matches(*field))
            names.append(names.empty() ? "" : " ").append(node.getFieldName(field).getString());
    }
    return names;
}

} // namespace

/// What queries match.
class TestQuery : public QObject {
    Q_OBJECT

private:
    static void addRows(std::initializer_list<std::pair<const char*, const char*>> rows)
    {
        QTest::addColumn<QByteArray>("query");
        QTest::addColumn<QByteArray>("expected");
        for (const auto& [query, expected] : rows)
            QTest::newRow(query) << QByteArray(query) << QByteArray(expected);
    }

    /// The found parts in brackets: "[ar]m".
    static std::string marked(const std::string& query, std::string_view text, meridane::SearchedText kind)
    {
        std::string result(text);
        meridane::FoundParts parts = parsed(query).foundIn(text, kind);
        std::ranges::reverse(parts);
        for (const meridane::FoundPart& part : parts) {
            result.insert(part.start + part.length, "]");
            result.insert(part.start, "[");
        }
        return result;
    }

private Q_SLOTS:
    void theEmptyQueryMatchesEverything()
    {
        const NxRef<NxMesh> mesh(new NxMesh);
        for (const char* const text : {"", "  ", "\t\u00A0\n"}) {
            const Query query = parsed(text);
            QVERIFY(query.isEmpty());
            QVERIFY(!query.isAboutFields());
            QVERIFY(query.matches(*mesh));
            QVERIFY(query.matches(*mesh->getFields().front()));
            QVERIFY(query.matchesText("row"));
        }
        QVERIFY(Query().isEmpty());
    }

    void fieldsMatch_data()
    {
        // size 1.5, title "My Robot", weights 1 2 3; size is at its default, title is changed, weights are ignored.
        addRows({
            {"size", "size"},
            {"SIZE", "size"},
            {"sz", "size"},
            {"zs", ""},
            {"it", "title weights"},
            {"\"it\"", "title"},
            {"\"tl\"", "title"},
            {"\"te\"", ""},
            {"sffloat", "size"},
            {"float", "size weights"},
            {"my", "title"},
            {"robot", "title"},
            {"mrob", ""},
            {"\"my robot\"", "title"},
            {"/^s/", "size title"},
            {"/^(size|title)$/", "size title"},
            {"f:size", "size"},
            {"f:s", "size weights"},
            {"F:TTL", "title"},
            {"f:\"ei\"", "weights"},
            {"f:/s$/", "weights"},
            {"t:SFFloat", "size"},
            {"t:float", "size weights"},
            {"t:Probe", "size title weights"},
            {"t:node", "size title weights"},
            {"t:Mesh", ""},
            {"=1.5", "size"},
            {"=1,5", "size"},
            {"= 150%", "size"},
            {"= 2", "weights"},
            {"=3/2", "size"},
            {"!=1.5", "title weights"},
            {"!=1", "size title weights"},
            {">1.5", "weights"},
            {">=1.5", "size weights"},
            {"<1.5", "weights"},
            {"<=1.5", "size weights"},
            {">-1e999", ""},
            {"=\"my robot\"", "title"},
            {"=\"my\"", ""},
            {"!=\"my robot\"", ""},
            {"=nan", ""},
            {"~rob", "title"},
            {"~\"my r\"", "title"},
            {"~/^my/", "title"},
            {"~2", "weights"},
            {"~.5", "size"},
            {"changed", "title"},
            {"ignored", "weights"},
            {"not changed", "size weights"},
            {"not not changed", "title"},
            {"changed or ignored", "title weights"},
            {"not (changed or ignored)", "size"},
            {"f:size >1", "size"},
            {"f:size>1", "size"},
            {"f:size and >1", "size"},
            {"f:size>1<2", "size"},
            {"f:size >1 <1.2", ""},
            {"(f:size or f:title) changed", "title"},
            {"f:size or f:title changed", "size title"},
            {"\"changed\"", ""},
            {"size OR title", "size title"},
            {"NOT changed AND not ignored", "size"},
        });
    }

    void fieldsMatch()
    {
        QFETCH(QByteArray, query);
        QFETCH(QByteArray, expected);
        if (query == ">-1e999") {
            QVERIFY(std::holds_alternative<QueryError>(Query::parse(query.toStdString())));
            return;
        }
        const NxRef<ProbeNode> node(new ProbeNode);
        node->title.setValue("My Robot");
        node->weights.setIgnored(1);
        QCOMPARE(QByteArray::fromStdString(matchingFields(*node, query.toStdString())), expected);
    }

    void nodesMatch_data()
    {
        // The node "left arm" of the class ExtendedProbeNode: title is changed.
        addRows({
            {"arm", "yes"},
            {"ARM", "yes"},
            {"lfar", "yes"},
            {"leg", ""},
            {"\"left arm\"", "yes"},
            {"\"lf\"", ""},
            {"left arm", "yes"},
            {"extended", "yes"},
            {"xtnd", ""},
            {"/^left/", "yes"},
            {"/left$/", ""},
            {"t:ExtendedProbe", "yes"},
            {"t:probe", "yes"},
            {"t:Node", "yes"},
            {"t:Extended", "yes"},
            {"t:Mesh", ""},
            {"t:Nothing", ""},
            {"f:size", "yes"},
            {"f:depth", "yes"},
            {"f:radius", ""},
            {"=1.5", "yes"},
            {"=77", ""},
            {"f:depth =1.5", ""},
            {"f:size =1.5", "yes"},
            {"f:depth <0", "yes"},
            {"changed", "yes"},
            {"ignored", ""},
            {"not changed", ""},
            {"not ignored", "yes"},
            {"f:size not changed", "yes"},
            {"f:title not changed", ""},
            {"t:Probe not ignored", "yes"},
            {"t:Probe not changed", ""},
            {"arm f:title changed", "yes"},
            {"arm (f:title or f:radius) changed", "yes"},
            {"arm (f:size or f:radius) changed", ""},
            {"leg or changed", "yes"},
            {"(leg or f:size) ignored", ""},
            {"~robot", "yes"},
        });
    }

    void nodesMatch()
    {
        QFETCH(QByteArray, query);
        QFETCH(QByteArray, expected);
        const NxRef<ExtendedProbeNode> node(new ExtendedProbeNode);
        node->setName("left arm");
        node->title.setValue("My Robot");
        QCOMPARE(parsed(query.toStdString()).matches(*node), !expected.isEmpty());
    }

    void rowsMatch_data()
    {
        addRows({
            {"set", "yes"},
            {"st", ""},
            {"set radius", "yes"},
            {"\"set arm\"", "yes"},
            {"set leg", ""},
            {"set not leg", "yes"},
            {"leg or arm", "yes"},
            {"(leg or arm) set", "yes"},
            {"/arm\\.[a-z]+/", "yes"},
            {"/robot/arm", "yes"},
            {"/robot/leg", ""},
            {"=0.5", "yes"},
            {"to=0.5", ""},
            {"changed", ""},
            {"t:x", ""},
            {"~", ""},
            {"f:", ""},
            {"\u00C4rmel", "yes"},
            {"\u03A9", "yes"},
        });
    }

    void rowsMatch()
    {
        QFETCH(QByteArray, query);
        QFETCH(QByteArray, expected);
        const Query parsedQuery = parsed(query.toStdString(), Query::Subject::Rows);
        QVERIFY(!parsedQuery.isAboutFields());
        QCOMPARE(
            parsedQuery.matchesText("Set arm.radius of /robot/arm to =0.5 \u00E4rmel \u03C9"), !expected.isEmpty());
    }

    void derivedClassesMatchTheirBase()
    {
        const NxRef<NxPointLight> light(new NxPointLight);
        QVERIFY(parsed("t:Light").matches(*light));
        QVERIFY(parsed("t:PointLight").matches(*light));
        QVERIFY(!parsed("t:SpotLight").matches(*light));
        const NxRef<NxMesh> mesh(new NxMesh);
        QVERIFY(!parsed("t:Light").matches(*mesh));
        const NxRef<NxTransform> transform(new NxTransform);
        QVERIFY(parsed("t:Group").matches(*transform));
        QVERIFY(parsed("t:trans").matches(*transform));
    }

    void numbersAreComparedAsTheFieldHasThem()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        node->size.setValue(0.1F);
        QCOMPARE(matchingFields(*node, "f:size =0.1"), std::string("size"));
        QCOMPARE(matchingFields(*node, "f:size >0.1"), std::string());
        QCOMPARE(matchingFields(*node, "f:size !=0.1"), std::string());
        node->size.setValue(std::numeric_limits<float>::quiet_NaN());
        QCOMPARE(matchingFields(*node, "f:size =nan"), std::string("size"));
        QCOMPARE(matchingFields(*node, "f:size >0"), std::string());
        node->size.setValue(-std::numeric_limits<float>::infinity());
        QCOMPARE(matchingFields(*node, "f:size =-inf"), std::string("size"));
        QCOMPARE(matchingFields(*node, "f:size <-1e300"), std::string("size"));
    }

    void enumerationsAndBooleansHaveNames()
    {
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        gallery->sfBool.setValue(1);
        QCOMPARE(matchingFields(*gallery, "f:\"sfbool\" =true"), std::string("sfBool"));
        QCOMPARE(matchingFields(*gallery, "f:\"sfbool\" =1"), std::string("sfBool"));
        QCOMPARE(matchingFields(*gallery, "f:\"sfbool\" =false"), std::string());
        gallery->sfEnum.setValue(0);
        VbString name;
        gallery->sfEnum.get(name);
        QCOMPARE(matchingFields(*gallery, "f:\"sfenum\" =" + std::string(name.view())), std::string("sfEnum"));
        QCOMPARE(matchingFields(*gallery, "f:\"sfenum\" !=" + std::string(name.view())), std::string());
    }

    void allNumbersOfALongListAreSearched()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        std::vector<float> values(1'000'000, 1.0F);
        values.back() = 7;
        node->weights.setValues(std::move(values));
        QCOMPARE(matchingFields(*node, "=7"), std::string("weights"));
        QCOMPARE(matchingFields(*node, "=8"), std::string());
        QCOMPARE(matchingFields(*node, "~1"), std::string("size weights"));
        QCOMPARE(matchingFields(*node, "~7"), std::string());
    }

    void nodesOfUnknownClassesMatchTheirName()
    {
        const NxRef<NxUnknownNode> node(new NxUnknownNode);
        node->setClassName("Widget");
        QVERIFY(parsed("t:Widget").matches(*node));
        QVERIFY(parsed("widget").matches(*node));
        QVERIFY(!parsed("t:Mesh").matches(*node));
    }

    void aFieldWithoutANodeHasAValueButNoName()
    {
        const NxSFInt32 field(nullptr, "count", 5);
        QVERIFY(parsed("=5").matches(field));
        QVERIFY(parsed("int").matches(field));
        QVERIFY(!parsed("f:count").matches(field));
        QVERIFY(!parsed("changed").matches(field));
        QVERIFY(!parsed("t:Mesh").matches(field));
        QVERIFY(parsed("t:Int32").matches(field));
    }

    void queriesKnowWhetherTheyAreAboutFields()
    {
        for (const char* const text : {"f:x", "=1", "~a", "changed", "arm ignored", "arm or not >1"})
            QVERIFY2(parsed(text).isAboutFields(), text);
        for (const char* const text : {"arm", "t:Mesh", "\"changed\"", "/x/ or not y"})
            QVERIFY2(!parsed(text).isAboutFields(), text);
    }

    void quotesTakeEscapes()
    {
        const Query query = parsed("\"a \\\"b\\\" \\\\c\"", Query::Subject::Rows);
        QVERIFY(query.matchesText("x a \"B\" \\c"));
        QVERIFY(!query.matchesText("a b c"));
        QVERIFY(parsed("/a.b/", Query::Subject::Rows).matchesText("A\nB"));
        QVERIFY(parsed("/a\\/b/", Query::Subject::Rows).matchesText("A/B"));
    }

    void whatWasFoundCanBeHighlighted()
    {
        using enum meridane::SearchedText;
        QCOMPARE(marked("arm", "leftArm", Name), std::string("left[Arm]"));
        QCOMPARE(marked("lfa", "leftArm", Name), std::string("[l]e[f]t[A]rm"));
        QCOMPARE(marked("lfa", "leftArm", Value), std::string("leftArm"));
        QCOMPARE(marked("lfx", "leftArm", Name), std::string("leftArm"));
        QCOMPARE(marked("a", "Banana", Value), std::string("B[a]n[a]n[a]"));
        QCOMPARE(marked("ana nab", "banana", Name), std::string("b[ana]na"));
        QCOMPARE(marked("ban or nan", "banana", Value), std::string("[banan]a"));
        QCOMPARE(marked("not arm", "leftArm", Name), std::string("leftArm"));
        QCOMPARE(marked("f:arm", "leftArm", Name), std::string("left[Arm]"));
        QCOMPARE(marked("f:arm", "leftArm", Value), std::string("leftArm"));
        QCOMPARE(marked("~arm", "leftArm", Name), std::string("leftArm"));
        QCOMPARE(marked("~arm", "leftArm", Value), std::string("left[Arm]"));
        QCOMPARE(marked("/t.r|f/", "leftArm", Name), std::string("le[ftAr]m"));
        QCOMPARE(marked("/x*/", "leftArm", Name), std::string("leftArm"));
        QCOMPARE(marked("t:Vec3f", "SFVec3f", Class), std::string("SF[Vec3f]"));
        QCOMPARE(marked("t:SFVec", "SFVec3f", Class), std::string("[SFVec]3f"));
        QCOMPARE(marked("t:Vec3f", "Vec3f", Name), std::string("Vec3f"));
        QCOMPARE(marked("\u00E4\u00D6", "x\u00C4yz\u00F6", Name), std::string("x[\u00C4]yz[\u00F6]"));
        QCOMPARE(marked("/\u00E4/", "x\u00C4\u00C4", Value), std::string("x[\u00C4\u00C4]"));
        QCOMPARE(marked("changed =0.5", "0.5", Value), std::string("0.5"));
        QCOMPARE(marked("", "leftArm", Name), std::string("leftArm"));
    }
};

QTEST_APPLESS_MAIN(TestQuery)
#include "tst_Query.moc"
