#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/Language.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/query/Expression.h"
#include "meridane/query/Query.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QSet>
#include <QTest>

#include <memory>
#include <string>

using orvane::Language;

// The messages of the toolkit, which has no Qt, in another language.
class TestToolkitText : public QObject {
    Q_OBJECT

private:
    static QString german(std::string_view english) { return orvane::toolkitText(orvane::toQString(english)); }

    static NxSceneProblem problem(NxProblemKind kind, std::size_t count, const std::string& detail = {})
    {
        NxSceneProblem problem;
        problem.kind = kind;
        problem.count = count;
        problem.total = 12;
        problem.limit = 8;
        problem.detail = detail;
        return problem;
    }

    static void addProblems(const char* name, NxProblemKind kind, const std::string& detail = {})
    {
        QTest::addRow("%s", name) << orvane::toQString(problem(kind, 1, detail).sentence());
        QTest::addRow("%s, several", name) << orvane::toQString(problem(kind, 3, detail).sentence());
        NxSceneProblem shared = problem(kind, 3, detail);
        shared.places = std::make_shared<const std::vector<int>>(3);
        QTest::addRow("%s, shared", name) << orvane::toQString(shared.sentence());
        NxSceneProblem single = problem(kind, 1, detail);
        single.total = 1;
        QTest::addRow("%s, single", name) << orvane::toQString(single.sentence());
    }

private Q_SLOTS:
    void init() { Language::use(QStringLiteral("de")); }
    void cleanup() { Language::use(QStringLiteral("en")); }

    void englishStaysAsItIs()
    {
        Language::use(QStringLiteral("en"));
        QCOMPARE(german("It has no children."), QStringLiteral("It has no children."));
        QCOMPARE(german("2 lights shine on it; those behind the first 1 are left out."),
            QStringLiteral("2 lights shine on it; those behind the first 1 are left out."));
    }

    void unknownTextsStayAsTheyAre()
    {
        for (const char* const text : {"", "arm", "It has no children", "It has no children. ", "%1"})
            QCOMPARE(german(text), QString::fromUtf8(text));
    }

    void numbersAndNamesStay()
    {
        QCOMPARE(
            german("3 of 12 numbers aren't finite numbers."), QStringLiteral("3 von 12 Zahlen sind nicht endlich."));
        QCOMPARE(german("3 children of the same group are called '%2 of %1'."),
            QStringLiteral("3 Kindknoten derselben Gruppe heißen „%2 of %1“."));
        QCOMPARE(german("max takes 2 or more arguments, not 1."),
            QStringLiteral("max braucht mindestens 2 Argumente, nicht 1."));
    }

    void aMessageInAMessageIsTranslatedToo()
    {
        QCOMPARE(german("It is out of range, at least 0 and below 1."),
            QStringLiteral("Der Wert liegt außerhalb des Bereichs, mindestens 0 und unter 1."));
        QCOMPARE(german("sin takes 1 argument, not 2. A comma is a decimal sign: separate arguments with a semicolon."),
            QStringLiteral(
                "sin braucht 1 Argument, nicht 2. Ein Komma ist ein Dezimalzeichen: Argumente durch Semikolon "
                "trennen."));
        QCOMPARE(german("3 children of the same group are called 'below 1'."),
            QStringLiteral("3 Kindknoten derselben Gruppe heißen „below 1“."));
    }

    void allProblemsAreTranslated_data()
    {
        QTest::addColumn<QString>("english");
        for (std::size_t i = 0; i < meridane::problemKindCount; ++i) {
            const auto kind = static_cast<NxProblemKind>(i);
            const std::string name(meridane::problemClass(kind).identifier);
            switch (kind) {
            case NxProblemKind::OutOfRange:
                for (const char* const range :
                    {"from 0 to 1", "above 0", "at least 0", "below 1", "at most 1", "above 0 and below 1"})
                    addProblems((name + ' ' + range).c_str(), kind, range);
                break;
            case NxProblemKind::IncompletePrimitive:
                addProblems((name + " positions").c_str(), kind, "positions");
                addProblems((name + " indices").c_str(), kind, "indices");
                break;
            case NxProblemKind::DegenerateFaces:
                addProblems((name + " lines").c_str(), kind, "lines");
                addProblems((name + " triangles").c_str(), kind, "triangles");
                break;
            case NxProblemKind::UnreadableFile:
                for (const char* const reason :
                    {"can't be read: Permission denied", "is empty", "is larger than 8 MiB"})
                    addProblems((name + ' ' + reason).c_str(), kind, std::string("'a.png' ") + reason);
                break;
            case NxProblemKind::LightWithoutEffect:
                for (const char* const reason : {"its intensity is 0", "its colour is black",
                         "all parts of its attenuation are 0", "the angle of its cone is 0"})
                    addProblems((name + ' ' + reason).c_str(), kind, reason);
                break;
            default:
                addProblems(name.c_str(), kind, kind == NxProblemKind::ImageTooLarge ? "20 by 30" : "arm");
            }
        }
    }
    void allProblemsAreTranslated()
    {
        QFETCH(const QString, english);
        QVERIFY2(orvane::toolkitText(english) != english, qPrintable(english));
    }

    void allMendsAreTranslated()
    {
        for (std::size_t i = 0; i < meridane::problemKindCount; ++i) {
            const std::string_view mend = meridane::problemClass(static_cast<NxProblemKind>(i)).mend;
            if (!mend.empty())
                QVERIFY2(german(mend) != orvane::toQString(mend), std::string(mend).c_str());
        }
    }

    void refusedQueriesAreTranslated_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const text : {"(", "arm )", "and arm", "arm or", "not", "t:", "f:", ">", "=", "~", ">\"a\"",
                 "<nan", "/[/", "/(a/", "/a)/", "/*a/", "/a**/", "/\\q/", "/a{9999}/", "/(?P<>a)/", "\"a"})
            QTest::addRow("%s", text) << QString::fromUtf8(text);
        QTest::addRow("long") << QString(10'000, u'a');
        QTest::addRow("brackets") << QString(200, u'(');
    }
    void refusedQueriesAreTranslated()
    {
        QFETCH(const QString, text);
        const auto parsed = meridane::Query::parse(text.toStdString());
        const auto* const error = std::get_if<meridane::QueryError>(&parsed);
        QVERIFY(error != nullptr);
        QVERIFY2(german(error->message) != orvane::toQString(error->message), error->message.c_str());
    }

    void refusedFormulasAreTranslated_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const text : {"", "1 +", "1 2", "2 (3)", "sin", "sin 1", "sin(1; 2)", "sin(1, 2)", "max(1)",
                 "foo(1)", "y", "(1", "1)", "1; 2", "0 < x < 1", "inf", "log(1)", "1 ? 2", "§", "1,", "1 deg", "1 rad",
                 "0x", "0xfffffffffffffffffffff", "1.2.3", "1e999", "1 + not 1", "5 and", "1 / 0", "ln(0)", "sqrt(-1)",
                 "9^9999"})
            QTest::addRow("%s", text) << QString::fromUtf8(text);
        QTest::addRow("long") << QString(10'000, u'1');
        QTest::addRow("brackets") << QString(200, u'(');
    }
    void refusedFormulasAreTranslated()
    {
        QFETCH(const QString, text);
        auto parsed = meridane::Expression::parse(text.toStdString());
        std::string message;
        if (const auto* const error = std::get_if<meridane::QueryError>(&parsed)) {
            message = error->message;
        } else {
            const auto value = std::get<meridane::Expression>(parsed).evaluate(1);
            if (const auto* const failure = std::get_if<meridane::QueryError>(&value))
                message = failure->message;
        }
        QVERIFY(!message.empty());
        QVERIFY2(german(message) != orvane::toQString(message), message.c_str());
    }

    /// Those of all classes that come with the tool, and no others.
    void descriptionsOfNodesAreTranslated()
    {
        QSet<QString> declared;
        for (const NxType type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
            if (!type.canCreateInstance())
                continue;
            const NxRef<NxNode> node(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
            declared.insert(orvane::toQString(node->getFieldData()->getDescription()));
            for (const NxField* const field : node->getFields())
                declared.insert(orvane::toQString(meridane::factsOf(*field).description));
        }
        declared.remove(QString());
        QVERIFY(declared.size() > 50);
        for (const QString& english : declared)
            QVERIFY2(orvane::nodeDescription(english.toStdString()) != english, qPrintable(english));
        for (const char* const known : orvane::nodeDescriptions())
            QVERIFY2(declared.contains(QString::fromUtf8(known)), known);
    }
};

QTEST_MAIN(TestToolkitText)

#include "tst_ToolkitText.moc"
