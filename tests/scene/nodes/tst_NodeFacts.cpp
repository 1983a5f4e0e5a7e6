#include "meridane/base/types/NxType.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFTime.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QTest>

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

namespace {

std::vector<double> numbersIn(std::string_view text)
{
    std::vector<double> numbers;
    for (std::size_t at = 0; at < text.size();) {
        double number = 0;
        const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), number);
        if (error == std::errc()) {
            numbers.push_back(number);
            at = static_cast<std::size_t>(end - text.data());
        } else {
            ++at;
        }
    }
    return numbers;
}

bool isSentence(std::string_view text)
{
    // A full stop at the end and nowhere else within the text, "..." and file endings included.
    return text.size() > 2 && text.back() == '.' && text.find(". ") == std::string_view::npos && text.front() != ' '
        && (text.front() < 'a' || text.front() > 'z') && text.find("  ") == std::string_view::npos;
}

} // namespace

Q_DECLARE_METATYPE(NxRef<NxNode>)

/// Runs over all registered node classes.
class TestNodeFacts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyField_data()
    {
        QTest::addColumn<NxRef<NxNode>>("node");
        QTest::addColumn<int>("index");
        for (const NxType type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
            if (!type.canCreateInstance())
                continue;
            const NxRef<NxNode> node(dynamic_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
            const NxFieldData* const data = node->getFieldData();
            for (int i = 0; i < data->getNumFields(); ++i)
                QTest::addRow("%s.%s", type.getName().getString(), data->getFieldName(i).getString()) << node << i;
        }
    }

    void everyField()
    {
        QFETCH(const NxRef<NxNode>, node);
        QFETCH(const int, index);
        const NxFieldData* const data = node->getFieldData();
        const NxFieldFacts& facts = data->getFacts(index);
        const NxField& field = *data->getDefault(index);
        QVERIFY2(isSentence(facts.description), std::string(facts.description).c_str());
        QVERIFY(facts.hardMinimum <= facts.softMinimum);
        QVERIFY(facts.softMinimum <= facts.softMaximum);
        QVERIFY(facts.softMaximum <= facts.hardMaximum);
        QVERIFY(facts.step >= 0);

        const bool isRotation
            = field.isOfType(NxSFRotation::getClassTypeId()) || field.isOfType(NxMFRotation::getClassTypeId());
        const std::string_view name = data->getFieldName(index).getString();
        QCOMPARE(facts.unit == NxUnit::Radians, isRotation || name.ends_with("Angle"));
        QCOMPARE(facts.unit == NxUnit::Seconds, field.isOfType(NxSFTime::getClassTypeId()));
        QCOMPARE(facts.isFile, field.isOfType(NxSFFilePathString::getClassTypeId()));

        VbString text;
        field.get(text);
        std::vector<double> numbers = numbersIn(text.view());
        if (isRotation && !numbers.empty())
            numbers = {numbers.back()};
        if (facts.hasSoftRange()) {
            QVERIFY(std::all_of(
                numbers.begin(), numbers.end(), [&](double number) { return facts.isInSoftRange(number); }));
        }
    }

    void everyClass_data()
    {
        QTest::addColumn<NxRef<NxNode>>("node");
        for (const NxType type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
            if (type.canCreateInstance())
                QTest::newRow(type.getName().getString())
                    << NxRef<NxNode>(dynamic_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
        }
    }

    void everyClass()
    {
        QFETCH(const NxRef<NxNode>, node);
        NxFieldData* const data = node->getFieldData();
        QVERIFY2(isSentence(data->getDescription()), std::string(data->getDescription()).c_str());
        for (int i = 0; i < data->getNumFields(); ++i)
            QVERIFY(node->getTypeId().isDerivedFrom(data->getDeclaringType(i)));
    }
};

QTEST_APPLESS_MAIN(TestNodeFacts)
#include "tst_NodeFacts.moc"
