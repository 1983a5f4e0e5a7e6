#include "meridane/gl/geometry/MatrixParts.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

using meridane::EulerDegrees;
using meridane::MatrixRest;

namespace {

double distance(const VbMatrix& left, const VbMatrix& right)
{
    double most = 0;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            const double difference = static_cast<double>(left[row][column]) - static_cast<double>(right[row][column]);
            most = std::max(most, std::abs(difference));
        }
    }
    return most;
}

VbMatrix rotation(const EulerDegrees& degrees)
{
    return meridane::composed({{}, degrees, {1, 1, 1}});
}

} // namespace

// What a matrix is made of, and the notations of rotations.
class TestMatrixParts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void turnsInTheOrderXYZ()
    {
        // A quarter about x takes y to z, and one about z that follows takes nothing from z.
        const VbMatrix matrix = rotation({90, 0, 90});
        QVERIFY(std::abs(matrix[1][2] - 1.0F) < 1e-6F);
        QVERIFY(std::abs(matrix[0][1] - 1.0F) < 1e-6F);
    }

    void eulerDegreesAndAxisAreTheSameRotation()
    {
        const VbRotation quarter(VbVec3f(0, 1, 0), static_cast<float>(std::numbers::pi / 2));
        const EulerDegrees degrees = meridane::toEuler(quarter);
        QVERIFY(std::abs(degrees[1] - 90) < 1e-4);
        std::mt19937 random(1);
        std::uniform_real_distribution<double> angle(-180, 180);
        for (int i = 0; i < 1000; ++i) {
            const EulerDegrees given{angle(random), angle(random), angle(random)};
            const VbRotation asAxis = meridane::fromEuler(given);
            QVERIFY(meridane::isNormal(asAxis));
            QVERIFY(distance(rotation(given), rotation(meridane::toEuler(asAxis))) < 2e-6);
        }
    }

    void rightAnglesAboutYKeepTheRotation()
    {
        for (const double y : {90.0, -90.0}) {
            const EulerDegrees given{30, y, 50};
            QVERIFY(distance(rotation(given), rotation(meridane::toEuler(meridane::fromEuler(given)))) < 1e-3);
        }
    }

    void onlyAnAxisOfAnotherLengthIsNormalised()
    {
        const VbRotation twice(VbVec3f(0, 0, 2), 0.5F);
        QVERIFY(!meridane::isNormal(twice));
        QCOMPARE(meridane::normalised(twice), VbRotation(VbVec3f(0, 0, 1), 0.5F));
        const VbRotation none(VbVec3f(0, 0, 0), 0.5F);
        QVERIFY(meridane::isNormal(none));
        QCOMPARE(meridane::normalised(none), none);
    }

    void partsAreFoundAgain()
    {
        std::mt19937 random(2);
        std::uniform_real_distribution<double> number(-50, 50);
        std::uniform_real_distribution<double> angle(-89, 89);
        for (int i = 0; i < 1000; ++i) {
            meridane::MatrixParts parts{{number(random), number(random), number(random)},
                {angle(random), angle(random), angle(random)},
                {std::abs(number(random)) + 0.1, std::abs(number(random)) + 0.1, std::abs(number(random)) + 0.1}};
            const VbMatrix matrix = meridane::composed(parts);
            const auto found = meridane::decomposed(matrix);
            QVERIFY(found.rest == MatrixRest::None);
            for (std::size_t k = 0; k < 3; ++k) {
                QVERIFY(std::abs(found.parts.translation[k] - parts.translation[k]) < 1e-4);
                QVERIFY(std::abs(found.parts.rotation[k] - parts.rotation[k]) < 1e-2);
                QVERIFY(std::abs(found.parts.scale[k] - parts.scale[k]) < 1e-4);
            }
            QVERIFY(distance(meridane::composed(found.parts), matrix) < 1e-4);
        }
    }

    void mirrorsHaveANegativeScale()
    {
        const VbMatrix mirror(1, 0, 0, 0, 0, -3, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
        const auto found = meridane::decomposed(mirror);
        QVERIFY(found.rest == MatrixRest::None);
        QVERIFY(found.parts.scale[0] < 0);
        QVERIFY(distance(meridane::composed(found.parts), mirror) < 1e-6);
    }

    void flatMatricesHaveParts_data()
    {
        QTest::addColumn<int>("zeros");
        for (int zeros = 0; zeros < 8; ++zeros)
            QTest::addRow("%d", zeros) << zeros;
    }
    void flatMatricesHaveParts()
    {
        QFETCH(const int, zeros);
        const VbMatrix turned = rotation({20, 30, 40});
        VbMatrix flat = turned;
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3 && (zeros >> row & 1) != 0; ++column)
                flat[row][column] = 0;
        }
        const auto found = meridane::decomposed(flat);
        QVERIFY(found.rest == MatrixRest::None);
        QVERIFY(distance(meridane::composed(found.parts), flat) < 1e-6);
    }

    void whatThePartsLackIsSaid()
    {
        VbMatrix shear;
        shear[1][0] = 0.5F;
        QVERIFY(meridane::decomposed(shear).rest == MatrixRest::Shear);
        VbMatrix projection;
        projection[2][3] = -1;
        QVERIFY(meridane::decomposed(projection).rest == MatrixRest::Projection);
        VbMatrix infinite;
        infinite[0][0] = std::numeric_limits<float>::infinity();
        QVERIFY(meridane::decomposed(infinite).rest == MatrixRest::NotFinite);
        QVERIFY(meridane::decomposed(VbMatrix()).rest == MatrixRest::None);
        VbMatrix parallel; // two rows in one direction
        parallel[1] = {2, 0, 0, 0};
        QVERIFY(meridane::decomposed(parallel).rest == MatrixRest::Shear);
    }
};

QTEST_APPLESS_MAIN(TestMatrixParts)
#include "tst_MatrixParts.moc"
