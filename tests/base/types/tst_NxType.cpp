#include "meridane/base/types/ClassClash.h"
#include "meridane/base/types/NxType.h"
#include "meridane/base/types/NxTypedObject.h"
#include "meridane/base/values/VbName.h"

#include <QTest>

#include <algorithm>
#include <memory>
#include <string>
#include <thread>

namespace {

class Shape : public NxTypedObject {
public:
    static NxType getClassTypeId()
    {
        static const NxType type = NxType::registerClass("TestShape", NxTypedObject::getClassTypeId(), nullptr);
        return type;
    }
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }
};

class Circle : public Shape {
public:
    static NxType getClassTypeId()
    {
        static const NxType type = NxType::registerClass("TestCircle", Shape::getClassTypeId(), create);
        return type;
    }
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

private:
    static NxTypedObject* create() { return new Circle; }
};

class Disc : public Circle {
public:
    static NxType getClassTypeId()
    {
        static const NxType type = NxType::registerClass("TestDisc", Circle::getClassTypeId(), create);
        return type;
    }
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

private:
    static NxTypedObject* create() { return new Disc; }
};

class Square : public Shape {
public:
    static NxType getClassTypeId()
    {
        static const NxType type = NxType::registerClass("TestSquare", Shape::getClassTypeId(), create);
        return type;
    }
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

private:
    static NxTypedObject* create() { return new Square; }
};

NxType deepType()
{
    NxType deep = Shape::getClassTypeId();
    for (int i = 0; i < 200; ++i)
        deep = NxType::registerClass(("TestDeep" + std::to_string(i)).c_str(), deep, nullptr);
    return deep;
}

std::unique_ptr<NxTypedObject> make(NxType type, NxType* overrideType = nullptr)
{
    return std::unique_ptr<NxTypedObject>(static_cast<NxTypedObject*>(type.createInstance(overrideType)));
}

} // namespace

class TestNxType : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTypeIsOneWord() { QCOMPARE(sizeof(NxType), sizeof(std::uint32_t)); }

    void aTypeDerivesFromItselfAndAllItsBases()
    {
        const NxType disc = Disc::getClassTypeId();
        QVERIFY(disc.isDerivedFrom(disc));
        QVERIFY(disc.isDerivedFrom(Circle::getClassTypeId()));
        QVERIFY(disc.isDerivedFrom(Shape::getClassTypeId()));
        QVERIFY(disc.isDerivedFrom(NxTypedObject::getClassTypeId()));
        QVERIFY(NxTypedObject::getClassTypeId().isDerivedFrom(NxTypedObject::getClassTypeId()));
    }

    void aTypeDerivesNeitherFromItsChildrenNorFromItsSiblings()
    {
        QVERIFY(!Shape::getClassTypeId().isDerivedFrom(Circle::getClassTypeId()));
        QVERIFY(!Square::getClassTypeId().isDerivedFrom(Circle::getClassTypeId()));
        QVERIFY(!Disc::getClassTypeId().isDerivedFrom(Square::getClassTypeId()));
        QVERIFY(!Square::getClassTypeId().isDerivedFrom(Disc::getClassTypeId()));
    }

    void copiesCompareEqual()
    {
        const NxType copy = Circle::getClassTypeId();
        QVERIFY(copy == Circle::getClassTypeId());
        QVERIFY(copy != Disc::getClassTypeId());
        QVERIFY(copy.isDerivedFrom(Circle::getClassTypeId()));
        QVERIFY(Circle::getClassTypeId().isDerivedFrom(copy));
    }

    void theBadTypeDerivesFromNothing()
    {
        const NxType bad;
        QVERIFY(bad.isBad());
        QVERIFY(!bad.isDerivedFrom(bad));
        QVERIFY(!bad.isDerivedFrom(Shape::getClassTypeId()));
        QVERIFY(!Shape::getClassTypeId().isDerivedFrom(bad));
        QVERIFY(bad.createInstance(nullptr) == nullptr);
        QVERIFY(bad.getName().isEmpty());
        QVERIFY(bad.getParent().isBad());
        QVERIFY(!bad.canCreateInstance());
    }

    void nameAndParentReadBack()
    {
        QCOMPARE(Disc::getClassTypeId().getName().getString(), "TestDisc");
        QVERIFY(Disc::getClassTypeId().getParent() == Circle::getClassTypeId());
        QVERIFY(NxTypedObject::getClassTypeId().getParent().isBad());
        QVERIFY(NxType::fromName("TestDisc") == Disc::getClassTypeId());
        QVERIFY(NxType::fromName("TestNothing").isBad());
        QVERIFY(NxType::fromName("").isBad());
    }

    void aNameIsGivenOnce()
    {
        QVERIFY(!Circle::getClassTypeId().isBad());
        static_cast<void>(meridane::takeClassClashes());
        QVERIFY(NxType::registerClass("TestCircle", NxType(), nullptr).isBad());
        QVERIFY(NxType::fromName("TestCircle") == Circle::getClassTypeId());
        const std::vector<meridane::ClassClash> clashes = meridane::takeClassClashes();
        QCOMPARE(clashes.size(), std::size_t(1));
        QCOMPARE(clashes.front().name.getString(), "TestCircle");
        QVERIFY(clashes.front().holder != nullptr);
        QVERIFY(clashes.front().refused != nullptr);
        QVERIFY(meridane::takeClassClashes().empty());
    }

    void aFactoryMakesANewInstanceEachTime()
    {
        const NxType circle = Circle::getClassTypeId();
        QVERIFY(circle.canCreateInstance());
        const auto first = make(circle);
        const auto second = make(circle);
        QVERIFY(first && second && first != second);
        QVERIFY(first->getTypeId() == circle);
    }

    void anAbstractClassMakesNoInstance()
    {
        QVERIFY(!Shape::getClassTypeId().canCreateInstance());
        QVERIFY(Shape::getClassTypeId().createInstance(nullptr) == nullptr);
    }

    void anOverrideTypeIsMadeInsteadIfItDerives()
    {
        NxType disc = Disc::getClassTypeId();
        const auto made = make(Circle::getClassTypeId(), &disc);
        QVERIFY(made && made->getTypeId() == disc);
        const auto fromAbstract = make(Shape::getClassTypeId(), &disc);
        QVERIFY(fromAbstract && fromAbstract->getTypeId() == disc);
        NxType circle = Circle::getClassTypeId();
        const auto same = make(circle, &circle);
        QVERIFY(same && same->getTypeId() == circle);
        NxType square = Square::getClassTypeId();
        QVERIFY(make(Circle::getClassTypeId(), &square) == nullptr);
        NxType bad;
        QVERIFY(make(Circle::getClassTypeId(), &bad) == nullptr);
    }

    void anUnregisteredClassMakesNothingAndFreesItsName()
    {
        const NxType former = NxType::registerClass(
            "TestPassing", Shape::getClassTypeId(), [] { return static_cast<NxTypedObject*>(new Square); });
        QVERIFY(!former.isBad());
        NxType::unregisterClass(former);
        QVERIFY(former.createInstance(nullptr) == nullptr);
        QVERIFY(!former.canCreateInstance());
        QVERIFY(NxType::fromName("TestPassing").isBad());
        QVERIFY(former.isDerivedFrom(Shape::getClassTypeId()));
        QVERIFY(former.isDerivedFrom(former));
        const NxType successor = NxType::registerClass("TestPassing", Shape::getClassTypeId(), nullptr);
        QVERIFY(!successor.isBad());
        QVERIFY(successor != former);
        QVERIFY(!successor.isDerivedFrom(former));
        NxType::unregisterClass(former); // again: the successor keeps the name
        QVERIFY(NxType::fromName("TestPassing") == successor);
        const std::vector<NxType> shapes = NxType::getAllDerivedFrom(Shape::getClassTypeId());
        QCOMPARE(std::count(shapes.begin(), shapes.end(), successor), 1);
        QCOMPARE(std::count(shapes.begin(), shapes.end(), former), 0);
        NxType::unregisterClass(successor);
        NxType::unregisterClass(successor);
        QVERIFY(NxType::fromName("TestPassing").isBad());
        NxType::unregisterClass(NxType());
    }

    void allDerivedTypesComeInTheOrderOfRegistration()
    {
        const std::vector<NxType> types = {Shape::getClassTypeId(), Circle::getClassTypeId(), Disc::getClassTypeId()};
        const NxType gone = NxType::registerClass("TestGone", Circle::getClassTypeId(), nullptr);
        NxType::unregisterClass(gone);
        const std::vector<NxType> circles = NxType::getAllDerivedFrom(Circle::getClassTypeId());
        QVERIFY(circles == std::vector<NxType>({types[1], types[2]}));
        const std::vector<NxType> shapes = NxType::getAllDerivedFrom(Shape::getClassTypeId());
        QVERIFY(std::find(shapes.begin(), shapes.end(), Square::getClassTypeId()) != shapes.end());
        QVERIFY(NxType::getAllDerivedFrom(NxType()).empty());
    }

    void aThousandTypesInOneLine()
    {
        std::vector<NxType> chain = {Shape::getClassTypeId()};
        for (int i = 0; i < 1000; ++i)
            chain.push_back(NxType::registerClass(("TestChain" + std::to_string(i)).c_str(), chain.back(), nullptr));
        for (std::size_t i = 0; i < chain.size(); ++i) {
            QVERIFY(chain.back().isDerivedFrom(chain[i]));
            QCOMPARE(chain[i].isDerivedFrom(chain.back()), i + 1 == chain.size());
        }
        QVERIFY(NxType::fromName("TestChain999") == chain.back());
        QCOMPARE(NxType::getAllDerivedFrom(chain[1]).size(), std::size_t(1000));
    }

    void eightThreadsRegisterAndAsk()
    {
        std::vector<NxType> types(8);
        {
            std::vector<std::jthread> threads;
            for (std::size_t i = 0; i < types.size(); ++i) {
                threads.emplace_back([i, &types] {
                    NxType type = Shape::getClassTypeId();
                    for (int n = 0; n < 200; ++n) {
                        const std::string name = "TestThread" + std::to_string(i) + "_" + std::to_string(n);
                        type = NxType::registerClass(name.c_str(), type, nullptr);
                        if (!type.isDerivedFrom(Shape::getClassTypeId()) || NxType::fromName(name.c_str()) != type)
                            qFatal("a type is lost");
                    }
                    types[i] = type;
                });
            }
        }
        for (std::size_t i = 0; i < types.size(); ++i) {
            for (std::size_t j = 0; j < types.size(); ++j)
                QCOMPARE(types[i].isDerivedFrom(types[j]), i == j);
        }
    }

    void aDeepTypeIsDerivedFromEachOfItsBases()
    {
        const NxType deep = deepType();
        int bases = 0;
        for (NxType base = deep; base != Shape::getClassTypeId(); base = base.getParent()) {
            QVERIFY(deep.isDerivedFrom(base));
            QVERIFY(base == deep || !base.isDerivedFrom(deep));
            ++bases;
        }
        QCOMPARE(bases, 200);
        QVERIFY(deep.isDerivedFrom(Shape::getClassTypeId()));
    }
};

QTEST_APPLESS_MAIN(TestNxType)
#include "tst_NxType.moc"
