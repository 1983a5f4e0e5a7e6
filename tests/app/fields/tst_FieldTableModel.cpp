#include "app/AppScenes.h"

#include "orvane/app/fields/FieldTableModel.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class TestFieldTableModel : public QObject {
    Q_OBJECT

    static meridane::Query queryOf(const QString& text)
    {
        return std::get<meridane::Query>(meridane::Query::parse(text.toStdString()));
    }

private Q_SLOTS:
    void init()
    {
        m_node = NxRef<NxNode>(new NxFieldGallery);
        m_model = std::make_unique<FieldTableModel>();
        m_model->setNode(m_node.get());
    }

    void cleanup()
    {
        m_model.reset();
        m_node = NxRef<NxNode>();
        AppScenes::runSensors();
    }

    void hasARowForEachField()
    {
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const std::vector<NxField*> fields = m_node->getFields();
        QCOMPARE(m_model->shownCount(), static_cast<int>(fields.size()));
        for (NxField* const field : fields) {
            const QModelIndex index = m_model->indexOf(field);
            QCOMPARE(m_model->field(index.siblingAtColumn(FieldTableModel::ValueColumn)), field);
            QCOMPARE(m_model->fieldSet(index).count(), 1);
            QCOMPARE(
                cell(field, FieldTableModel::NameColumn), QString::fromLatin1(m_node->getFieldName(field).getString()));
            QCOMPARE(cell(field, FieldTableModel::TypeColumn),
                QString::fromLatin1(field->getTypeId().getName().getString()));
        }
        m_model->setNode(nullptr);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void groupsTheFieldsByTheClassThatDeclaresThem()
    {
        const NxRef<NxNode> light(new NxSpotLight);
        m_model->setNode(light.get());
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(groups(), QStringList({QStringLiteral("SpotLight"), QStringLiteral("Light")}));
        QCOMPARE(m_model->indexOf(light->getField("intensity")).parent().data().toString(), QStringLiteral("Light"));
        QVERIFY(m_model->fieldSet(m_model->index(0, 0)).isEmpty());
    }

    void countsTheChangedFieldsOfAGroup()
    {
        const NxRef<NxNode> light(new NxSpotLight);
        m_model->setNode(light.get());
        const QModelIndex group = m_model->index(1, FieldTableModel::ValueColumn);
        QCOMPARE(group.data().toString(), QString());
        const QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(light->getField("intensity")->set("0.5"));
        AppScenes::runSensors();
        QCOMPARE(group.data().toString(), QStringLiteral("1 changed"));
        QVERIFY(!changed.isEmpty() && changed.back().front().toModelIndex() == group);
    }

    void putsFavoritesOnTop()
    {
        const NxRef<NxNode> light(new NxSpotLight);
        m_model->setFavorites({QStringLiteral("Light.intensity")});
        m_model->setNode(light.get());
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(
            groups(), QStringList({QStringLiteral("Favorites"), QStringLiteral("SpotLight"), QStringLiteral("Light")}));
        const QModelIndex favorite = m_model->indexOf(light->getField("intensity"));
        QCOMPARE(favorite.parent().row(), 0);
        QVERIFY(favorite.data(FieldRoles::FavoriteRole).toBool());
        m_model->setFavorites({});
        QCOMPARE(groups().size(), 2);
    }

    void filtersByNameTypeAndValue_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("letters of the name in order") << QStringLiteral("ints") << true;
        QTest::newRow("in the wrong order") << QStringLiteral("sntii") << false;
        QTest::newRow("type") << QStringLiteral("SFFloat") << true;
        QTest::newRow("value") << QStringLiteral("0.125") << true;
        QTest::newRow("greater") << QStringLiteral(">0.1") << true;
        QTest::newRow("of another field") << QStringLiteral("f:location >0.1") << false;
        QTest::newRow("changed") << QStringLiteral("changed") << true;
        QTest::newRow("class of the node") << QStringLiteral("t:Light f:intensity") << true;
        QTest::newRow("regular expression") << QStringLiteral("/^int.*y$/") << true;
        QTest::newRow("not") << QStringLiteral("not intensity") << false;
        QTest::newRow("two words") << QStringLiteral("0.125 inten") << true;
        QTest::newRow("one of two words") << QStringLiteral("0.125 radius") << false;
    }
    void filtersByNameTypeAndValue()
    {
        QFETCH(const QString, filter);
        QFETCH(const bool, isShown);
        const NxRef<NxNode> light(new NxSpotLight);
        QVERIFY(light->getField("intensity")->set("0.125"));
        m_model->setNode(light.get());
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->setFilter(queryOf(filter), false);
        QCOMPARE(m_model->indexOf(light->getField("intensity")).isValid(), isShown);
        m_model->setFilter({}, false);
        QCOMPARE(m_model->shownCount(), static_cast<int>(light->getFields().size()));
    }

    void showsOnlyChangedFields()
    {
        const NxRef<NxNode> light(new NxSpotLight);
        QVERIFY(light->getField("intensity")->set("0.125"));
        m_model->setNode(light.get());
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->setFilter({}, true);
        QCOMPARE(m_model->shownCount(), 1);
        QCOMPARE(groups(), QStringList(QStringLiteral("Light")));
        // A row that is edited stays.
        QVERIFY(light->getField("intensity")->set("1"));
        AppScenes::runSensors();
        QCOMPARE(m_model->shownCount(), 1);
        m_model->setFilter({}, true);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void showsTheFieldsThatSeveralNodesHave()
    {
        const NxRef<NxNode> spot(new NxSpotLight);
        const NxRef<NxNode> point(new NxPointLight);
        QVERIFY(spot->getField("intensity")->set("0.5"));
        const auto nodes = std::make_shared<const FieldSet::Nodes>(FieldSet::Nodes{spot.get(), point.get()});
        m_model->setNodes(nodes);
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(!m_model->indexOf(spot->getField("cutOffAngle")).isValid());
        QVERIFY(m_model->indexOf(spot->getField("location")).isValid());
        NxField* const field = spot->getField("intensity");
        QCOMPARE(m_model->fieldSet(m_model->indexOf(field)).count(), 2);
        QCOMPARE(cell(field, FieldTableModel::ValueColumn), QString(QChar(0x2014)));
        QVERIFY(m_model->indexOf(field).data(FieldRoles::MixedRole).toBool());
        QVERIFY(m_model->indexOf(field)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("The 2 nodes have different values.")));
        QVERIFY(font(field).bold());
        const auto spoken = [&](int column) {
            return m_model->indexOf(field).siblingAtColumn(column).data(Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(spoken(FieldTableModel::ValueColumn), QStringLiteral("mixed"));
        QCOMPARE(spoken(FieldTableModel::MarkColumn), QStringLiteral("changed"));
        const QSignalSpy changed(m_model.get(), &FieldTableModel::valuesChanged);
        QVERIFY(point->getField("intensity")->set("0.5"));
        AppScenes::runSensors();
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(cell(field, FieldTableModel::ValueColumn), QStringLiteral("0.5"));
    }

    void onlyValuesThatAreNotListsAreEditedInTheirRow()
    {
        const auto isEditable = [this](const char* type) {
            return m_model->indexOf(fieldOfType(type))
                .siblingAtColumn(FieldTableModel::ValueColumn)
                .flags()
                .testFlag(Qt::ItemIsEditable);
        };
        QVERIFY(isEditable("SFFloat"));
        QVERIFY(!isEditable("MFFloat"));
        QVERIFY(!m_model->indexOf(fieldOfType("SFFloat")).flags().testFlag(Qt::ItemIsEditable));
    }

    void theToolTipTellsWhatTheFieldIs()
    {
        const NxRef<NxNode> light(new NxSpotLight);
        m_model->setNode(light.get());
        QVERIFY(light->getField("intensity")->set("0.5"));
        const QString tip = m_model->indexOf(light->getField("intensity")).data(Qt::ToolTipRole).toString();
        for (const char* const part : {"Type: SFFloat", "Range: ", "Value: 0.5", "Default: 1"})
            QVERIFY2(tip.contains(QLatin1String(part)), qPrintable(tip));
        const std::string_view description = meridane::factsOf(*light->getField("intensity")).description;
        QVERIFY(!description.empty() && tip.contains(QString::fromUtf8(description.data()).left(30)));
        QVERIFY(m_model->indexOf(light->getField("cutOffAngle"))
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("Unit: radians")));
    }

    void followsTheValue()
    {
        NxField* field = fieldOfType("SFFloat");
        cell(field, FieldTableModel::ValueColumn);
        const QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(field->set("2.5"));
        AppScenes::runSensors();
        QCOMPARE(changed.size(), 2); // and the count of its group
        QCOMPARE(cell(field, FieldTableModel::ValueColumn), QStringLiteral("2.5"));
    }

    void tellsValuesThatAreNotTheDefaultApart()
    {
        NxField* field = fieldOfType("SFFloat");
        QVERIFY(!font(field).bold());
        QVERIFY(field->set("2.5"));
        QVERIFY(font(field).bold());
    }

    void showsThatAFieldIsIgnored()
    {
        NxField* field = fieldOfType("SFFloat");
        const QModelIndex index = m_model->indexOf(field);
        QVERIFY(!font(field).strikeOut());
        QVERIFY(!index.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Ignored")));
        field->setIgnored(1);
        QVERIFY(font(field).strikeOut());
        QVERIFY(index.data(Qt::ForegroundRole).isValid());
        QVERIFY(index.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Ignored")));
    }

    void cutsAValueOfMegabytes()
    {
        NxField* field = fieldOfType("MFFloat");
        QByteArray text("[");
        for (int i = 0; i < 2'000'000; ++i)
            text += "1.25,";
        text.back() = ']';
        QVERIFY(field->set(text.constData()));
        const QString shown = cell(field, FieldTableModel::ValueColumn);
        const QString tip = m_model->indexOf(field).data(Qt::ToolTipRole).toString();
        const QString count = QStringLiteral("2,000,000 × Float  ");
        QCOMPARE(shown.size(), count.size() + FieldRow::shownCharacters + 1);
        QVERIFY(shown.startsWith(count + QStringLiteral("[1.25, 1.25")));
        QVERIFY(shown.endsWith(QChar(0x2026)));
        QVERIFY(tip.size() < 600);
    }

    void cutsBetweenCharacters()
    {
        NxField* field = fieldOfType("SFString");
        QString text(FieldRow::shownCharacters - 2, u'x');
        text += QStringLiteral("\U0001F600\U0001F600\U0001F600");
        QVERIFY(field->set(QStringLiteral("\"%1\"").arg(text).toUtf8().constData()));
        const QString shown = cell(field, FieldTableModel::ValueColumn);
        QVERIFY(shown.endsWith(QChar(0x2026)));
        QVERIFY(!shown.at(shown.size() - 2).isHighSurrogate());
    }

    void showsFieldsThatTheClassDoesNotHave()
    {
        const NxRef<NxGroup> scene = AppScenes::read("#mrd 1.0\nMesh { wings = 7 }\n");
        QVERIFY(scene);
        m_model->setNode(scene->getChild(0));
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QModelIndex group = m_model->index(m_model->rowCount() - 1, 0);
        QCOMPARE(group.data().toString(), QStringLiteral("Unknown fields"));
        const QModelIndex unknown = m_model->index(0, FieldTableModel::NameColumn, group);
        QCOMPARE(unknown.data().toString(), QStringLiteral("wings"));
        QCOMPARE(unknown.siblingAtColumn(FieldTableModel::ValueColumn).data().toString(), QStringLiteral("7"));
        QCOMPARE(m_model->field(unknown), nullptr);
        QVERIFY(m_model->fieldSet(unknown).isEmpty());
    }

    void holdsItsNodeAlive()
    {
        QVERIFY(m_node->getRefCount() > 1);
        m_model->setNode(nullptr);
        QCOMPARE(m_node->getRefCount(), 1);
    }

private:
    NxField* fieldOfType(const char* type)
    {
        for (NxField* field : m_node->getFields()) {
            if (field->getTypeId().getName() == VbName(type))
                return field;
        }
        qFatal("no field of type %s", type);
    }

    QStringList groups()
    {
        QStringList titles;
        for (int row = 0; row < m_model->rowCount(); ++row)
            titles += m_model->index(row, 0).data().toString();
        return titles;
    }

    QString cell(NxField* field, int column)
    {
        return m_model->indexOf(field).siblingAtColumn(column).data().toString();
    }

    QFont font(NxField* field) { return m_model->indexOf(field).data(Qt::FontRole).value<QFont>(); }

    NxRef<NxNode> m_node;
    std::unique_ptr<FieldTableModel> m_model;
};

QTEST_MAIN(TestFieldTableModel)
#include "tst_FieldTableModel.moc"
