// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnDebugError.h"
#include "KnGroup.h"
#include "KnMField.h"
#include "KnNodePtr.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArrayList nodeTypeNames()
{
    return QByteArray(
        "Animation ClipPlane ClipPlanes Complexity Coordinates DirectionalLight DrawStyle"
        " Drawing Group HomogeneousCoordinates IndexedFaceSet Material MatrixTransform"
        " Normals PointLight Text Texture TextureCoordinates Transform Viewpoint VoxelGrid")
        .split(' ');
}

/// Counts the nodes that live.
class CountedNode : public KnGroup {
public:
    CountedNode() { ++count; }
    static inline int count = 0;

protected:
    ~CountedNode() override { --count; }
};

} // namespace

class TestNodes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void typesFormATree()
    {
        const KnType material = typeOf("Material");
        QVERIFY(material.isDerivedFrom(material) && material.isDerivedFrom(typeOf("Node")));
        QVERIFY(!typeOf("Node").isDerivedFrom(material) && !material.isDerivedFrom(KnType()));
        QVERIFY(typeOf("SFFilePathString").getParent() == typeOf("SFString"));
        for (const char* abstract : { "Nonsense", "Node", "MField", "Light", "ReadError" })
            QVERIFY2(!typeOf(abstract).createInstance(), abstract);
    }

    void fieldsByIndexAndName_data() { addNameRows(nodeTypeNames()); }
    void fieldsByIndexAndName()
    {
        const QByteArray name = QTest::currentDataTag();
        const KnNodePtr first(static_cast<KnNode*>(typeOf(name).createInstance()));
        const KnNodePtr second(static_cast<KnNode*>(typeOf(name).createInstance()));
        const KnFieldData* data = first->getContainerFieldData();
        QCOMPARE(second->getContainerFieldData(), data);
        QVERIFY(data->getNum() > 0);
        // The fields of base classes come first.
        QVERIFY(!typeOf(name).isDerivedFrom(typeOf("Light")) || data->getName(0) == KbName("on"));
        for (int i = 0; i < data->getNum(); ++i) {
            KnField* field = data->getField(first.get(), i);
            KnField* same = data->getField(second.get(), i);
            QVERIFY(field != same && field->getObjectType() == same->getObjectType());
            QCOMPARE(field->getContainer(), first.get());
            QCOMPARE(first->getField(data->getName(i)), field);
            QCOMPARE(data->getIndex(first.get(), field), i);
            // What one node says of its field, the other understands.
            QVERIFY(same->set(textOf(*field).constData()));
            QCOMPARE(textOf(*field), textOf(*same));
        }
        QVERIFY(!first->getField("nonsense") && !data->getField(first.get(), data->getNum()));
    }

    void fieldsAreExplained_data() { addNameRows(nodeTypeNames()); }
    void fieldsAreExplained()
    {
        static const QRegularExpression sentence(u"^[A-Z][^.]*[^.\\s]\\.$"_s);
        const KnNodePtr node(
            static_cast<KnNode*>(typeOf(QTest::currentDataTag()).createInstance()));
        const KnFieldData* data = node->getContainerFieldData();
        for (int i = 0; i < data->getNum(); ++i) {
            const KnFieldInfo& info = data->getInfo(i);
            QVERIFY2(QString::fromUtf8(info.sentence).contains(sentence), info.sentence);
            QVERIFY2(info.minimum < info.maximum, info.sentence);
        }
    }

    void children()
    {
        const KnType::Factory counted = []() -> KnTypedObject* { return new CountedNode; };
        const KnType type = KnType::create("Loaded", KnNode::getClassTypeId());
        // It is loaded again.
        QVERIFY(KnType::create("Loaded", KnNode::getClassTypeId(), counted) == type);
        {
            auto* const group = new KnGroup;
            const KnNodePtr held(group);
            auto* a = new CountedNode;
            auto* b = new CountedNode;
            auto* c = static_cast<CountedNode*>(type.createInstance());
            QVERIFY(group->addChild(b) && group->insertChild(a, -3) && group->insertChild(c, 99));
            QVERIFY(group->insertChild(b, 1)); // for the second time
            QCOMPARE(group->getNumChildren(), 4);
            QVERIFY(group->getChild(0) == a && group->getChild(1) == b && group->getChild(3) == c);
            QVERIFY(group->removeChild(b) && group->findChild(b) == 1 && group->removeChild(1));
            QCOMPARE(CountedNode::count, 2);
            QVERIFY(!group->removeChild(2));
        }
        QCOMPARE(CountedNode::count, 0);

        auto* const root = new KnGroup;
        const KnNodePtr held(root);
        auto* middle = new KnGroup;
        auto* leaf = new KnGroup;
        QVERIFY(root->addChild(middle) && middle->addChild(leaf));
        QVERIFY(root->addChild(leaf)); // shared, which is no cycle
        Errors<KnDebugError> errors;
        QVERIFY(!leaf->addChild(root) && !leaf->addChild(leaf) && !leaf->addChild(nullptr));
        QCOMPARE(errors.texts.size(), 3);
        QVERIFY(leaf->getNumChildren() == 0 && root->getReferenceCount() == 1);
    }
};

QTEST_APPLESS_MAIN(TestNodes)
#include "test_nodes.moc"
