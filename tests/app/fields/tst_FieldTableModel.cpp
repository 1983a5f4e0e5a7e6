#include "app/AppScenes.h"

#include "orvane/app/fields/FieldTableModel.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class TestFieldTableModel : public QObject {
    Q_OBJECT

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
        QCOMPARE(m_model->rowCount(), static_cast<int>(fields.size()));
        for (int row = 0; row < m_model->rowCount(); ++row) {
            NxField* field = fields[static_cast<std::size_t>(row)];
            QCOMPARE(m_model->field(m_model->index(row, 1)), field);
            QCOMPARE(m_model->indexOf(field).row(), row);
            QCOMPARE(
                cell(field, FieldTableModel::NameColumn), QString::fromLatin1(m_node->getFieldName(field).getString()));
            QCOMPARE(cell(field, FieldTableModel::TypeColumn),
                QString::fromLatin1(field->getTypeId().getName().getString()));
        }
        m_model->setNode(nullptr);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void followsTheValue()
    {
        NxField* field = fieldOfType("SFFloat");
        cell(field, FieldTableModel::ValueColumn);
        const QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(field->set("2.5"));
        AppScenes::runSensors();
        QCOMPARE(changed.size(), 1);
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
        QCOMPARE(shown.size(), FieldTableModel::shownCharacters + 1);
        QVERIFY(shown.startsWith(QStringLiteral("[1.25, 1.25")));
        QVERIFY(shown.endsWith(QChar(0x2026)));
        QVERIFY(tip.size() < 1200);
    }

    void cutsBetweenCharacters()
    {
        NxField* field = fieldOfType("SFString");
        QString text(FieldTableModel::shownCharacters - 2, u'x');
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
        const int row = m_model->rowCount() - 1;
        QCOMPARE(m_model->index(row, FieldTableModel::NameColumn).data().toString(), QStringLiteral("wings"));
        QCOMPARE(m_model->index(row, FieldTableModel::ValueColumn).data().toString(), QStringLiteral("7"));
        QCOMPARE(m_model->field(m_model->index(row, 0)), nullptr);
    }

    void holdsItsNodeAlive()
    {
        QCOMPARE(m_node->getRefCount(), 2);
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
