// SPDX-License-Identifier: BSD-3-Clause
#include "KnGraphWalk.h"
#include "KnGroup.h"
#include "KnMFields.h"
#include "KnReadErrorCapture.h"
#include "KnSFBitMask.h"
#include "KnSFImage.h"
#include "KnSensorQueue.h"

#include <QTest>

#include <array>
#include <memory>

namespace {

/// A node that makes its fields and its children when somebody looks.
class MadeNode : public KnGroup {
public:
    KnType getObjectType() const override
    {
        return KnType::create("MadeNode", KnGroup::getClassTypeId());
    }
    const KnFieldData* getContainerFieldData() const override
    {
        static const KnFieldData table = [] {
            KnFieldData data;
            data.addOwnField("first");
            data.addOwnField("second");
            return data;
        }();
        return &table;
    }
    void makeLater() { makeChildrenLater(); }

    std::array<std::unique_ptr<KnSFInt32>, 2> m_fields;
    int m_looks = 0;

protected:
    KnField* ownField(int index) override
    {
        auto& field = m_fields[static_cast<std::size_t>(index)];
        if (!field) {
            field = std::make_unique<KnSFInt32>();
            adopt(*field);
        }
        return field.get();
    }
    int ownIndex(const KnField* field) const override
    {
        for (int i = 0; i < 2; ++i) {
            if (field == m_fields[static_cast<std::size_t>(i)].get())
                return i;
        }
        return -1;
    }
    void makeChildren() override
    {
        ++m_looks;
        replaceChildren(0, 0, { KnNodePtr(new KnGroup), KnNodePtr(new KnGroup) });
    }
};

template <class Field>
std::shared_ptr<KnField> make()
{
    return std::make_shared<Field>();
}

std::string text(const KnField& field)
{
    KbString text;
    field.get(text);
    return text.toUtf8();
}

} // namespace

class TestMadeNodes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aReadOnlyFieldTakesNoText_data()
    {
        QTest::addColumn<std::shared_ptr<KnField>>("field");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("refused");
        QTest::addRow("number") << make<KnSFFloat>() << QByteArray("2") << QByteArray("3");
        QTest::addRow("default") << make<KnSFInt32>() << QByteArray("2") << QByteArray("\"\"");
        QTest::addRow("enum") << make<KnSFEnum>() << QByteArray("2") << QByteArray("3");
        QTest::addRow("mask") << make<KnSFBitMask>() << QByteArray("(0x2)") << QByteArray("3");
        QTest::addRow("image") << make<KnSFImage>() << QByteArray("1 1 1 0x7")
                               << QByteArray("0 0 0");
        QTest::addRow("array") << make<KnMFInt32>() << QByteArray("[ 1, 2 ]") << QByteArray("[]");
    }
    void aReadOnlyFieldTakesNoText()
    {
        QFETCH(std::shared_ptr<KnField>, field);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, refused);
        QVERIFY(field->set(before.constData()));
        field->setReadOnly(true);
        const KnReadErrorCapture capture;
        QVERIFY(!field->set(refused.constData()));
        QVERIFY(capture.getText().toUtf8().ends_with("read-only"));
        if (auto* const array = dynamic_cast<KnMField*>(field.get()))
            QVERIFY(!array->set1(0, "7"));
        QCOMPARE(text(*field), before.toStdString());
        field->setReadOnly(false);
        QVERIFY(field->set(refused.constData()));
    }

    void aNodeMakesTheFieldsThatAreLookedAt()
    {
        const KnNodePtr holder(new MadeNode);
        auto& node = static_cast<MadeNode&>(*holder.get());
        KnField* const field = node.getField("second");
        QCOMPARE(field, node.m_fields[1].get());
        QVERIFY(!node.m_fields[0]);
        QCOMPARE(field->getContainer(), &node);
        QCOMPARE(node.getContainerFieldData()->getIndex(&node, field), 1);
        const KnReadErrorCapture capture;
        field->set("none");
        QVERIFY(capture.getText().toUtf8().starts_with("MadeNode, field second (SFInt32)"));
        const KnNodePtr other(new MadeNode);
        QCOMPARE(node.getContainerFieldData()->getIndex(other.get(), field), -1);
    }

    void childrenAreMadeAtTheFirstLook()
    {
        const KnNodePtr holder(new MadeNode);
        auto& node = static_cast<MadeNode&>(*holder.get());
        node.makeLater();
        KnGraphWalk walk;
        walk.add(&node);
        while (walk.next()) { }
        QCOMPARE(node.m_looks, 0);
        // Whoever looks and follows afterwards sees each child once.
        KnGroupSensor sensor(nullptr, nullptr);
        sensor.attach(&node);
        QCOMPARE(node.getNumChildren(), 2);
        QCOMPARE(node.m_looks, 1);
        QCOMPARE(sensor.takeChange().inserted, 0);
        QVERIFY(KnSensorQueue::getInstance().isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestMadeNodes)
#include "test_made_nodes.moc"
