// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnDebugError.h"
#include "KnDirectionalLight.h"
#include "KnGroup.h"
#include "KnMField.h"
#include "KnMaterial.h"

#include <QTest>

#include <memory>

namespace {

/// Holds a reference on a node.
template <class Node>
struct Held : std::unique_ptr<Node, void (*)(Node*)> {
    explicit Held(Node* held)
        : std::unique_ptr<Node, void (*)(Node*)>(held, [](Node* last) { last->unref(); })
        , node(held)
    {
        held->ref();
    }

    Node* const node;
};

const QByteArrayList nodeTypeNames = QByteArray(
    "Animation ClipPlane ClipPlanes Complexity Coordinates DirectionalLight DrawStyle"
    " Drawing Group HomogeneousCoordinates IndexedFaceSet Material MatrixTransform"
    " Normals PointLight Text Texture TextureCoordinates Transform Viewpoint VoxelGrid")
                                         .split(' ');

/// Counts the nodes that live.
class CountedNode : public KnNode {
public:
    CountedNode() { ++count; }
    KnType getObjectType() const override { return KnNode::getClassTypeId(); }
    const KnFieldData* getContainerFieldData() const override
    {
        static const KnFieldData none;
        return &none;
    }

    static inline int count = 0;

protected:
    ~CountedNode() override { --count; }
};

} // namespace

class TestNodes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typesFormATree();
    void fieldsByIndexAndName();
    void children();
};

void TestNodes::typesFormATree()
{
    const auto type = [](const char* name) { return KnType::fromName(name); };
    const KnType material = type("Material");
    QVERIFY(material == KnMaterial::getClassTypeId());
    QVERIFY(material.isDerivedFrom(material) && material.isDerivedFrom(type("Node")));
    QVERIFY(!material.isDerivedFrom(type("Complexity")) && !type("Node").isDerivedFrom(material));
    QVERIFY(type("SFFilePathString").getParent() == type("SFString"));
    QVERIFY(type("SFBitMask").getParent() == type("SFEnum"));
    QVERIFY(type("Nonsense").isBad() && !type("Nonsense").createInstance());
    QVERIFY(!type("Nonsense").isDerivedFrom(material) && !material.isDerivedFrom(KnType()));
    for (const char* abstract : { "Node", "Field", "SField", "MField", "Light", "ReadError" })
        QVERIFY(!type(abstract).isBad() && !type(abstract).createInstance());
    for (const QByteArray& name : fieldTypeNames()) {
        QVERIFY(makeField(name)->getObjectType() == type(name.constData()));
        QVERIFY(
            type(name.constData()).isDerivedFrom(type(name.left(1) == "S" ? "SField" : "MField")));
    }
}

void TestNodes::fieldsByIndexAndName()
{
    QByteArrayList missing = fieldTypeNames();
    for (const QByteArray& type : nodeTypeNames) {
        const auto make = [&] {
            return static_cast<KnNode*>(KnType::fromName(type.constData()).createInstance());
        };
        const Held first(make());
        const Held second(make());
        const KnFieldData* data = first->getContainerFieldData();
        QCOMPARE(second->getContainerFieldData(), data);
        QVERIFY2(data->getNum() > 0, type.constData());
        for (int i = 0; i < data->getNum(); ++i) {
            KnField* field = data->getField(first.node, i);
            KnField* same = data->getField(second.node, i);
            QVERIFY(field != same && field->getObjectType() == same->getObjectType());
            QCOMPARE(field->getContainer(), first.node);
            QCOMPARE(data->getIndex(first.node, field), i);
            QCOMPARE(data->getIndex(data->getName(i)), i);
            QCOMPARE(first->getField(data->getName(i)), field);
            QCOMPARE(data->getIndex(second.node, field), -1);
            // What one node says of its field, the other understands.
            QVERIFY(same->set(textOf(*field).constData()));
            QCOMPARE(textOf(*field), textOf(*same));
            missing.removeAll(field->getObjectType().getName().getString().toUtf8().c_str());
        }
        const KnSFFloat stranger;
        QCOMPARE(data->getIndex(first.node, &stranger), -1);
        QCOMPARE(data->getIndex(first.node, nullptr), -1);
        QVERIFY(!first->getField("nonsense"));
        QVERIFY(!data->getField(first.node, -1) && !data->getField(first.node, data->getNum()));
        QVERIFY(!data->getField(static_cast<KnFieldContainer*>(nullptr), 0));
    }
    // The nodes show every type of field, and the fields of base classes come first.
    QCOMPARE(missing, QByteArrayList());
    const Held light(new KnDirectionalLight);
    QCOMPARE(light->getContainerFieldData()->getIndex(KbName("direction")), 3);
}

void TestNodes::children()
{
    const KnType::Factory counted = []() -> KnTypedObject* { return new CountedNode; };
    const KnType type = KnType::create("Loaded", KnNode::getClassTypeId());
    QVERIFY(!type.createInstance());
    QVERIFY(KnType::create("Loaded", KnNode::getClassTypeId(), counted) == type); // it is back
    {
        const Held group(new KnGroup);
        auto* a = new CountedNode;
        auto* b = new CountedNode;
        auto* c = static_cast<CountedNode*>(type.createInstance());
        QVERIFY(group->addChild(b) && group->insertChild(a, -3) && group->insertChild(c, 99));
        QVERIFY(group->insertChild(b, 1)); // for the second time
        QCOMPARE(group->getNumChildren(), 4);
        QVERIFY(group->getChild(0) == a && group->getChild(1) == b && group->getChild(3) == c);
        QVERIFY(!group->getChild(-1) && !group->getChild(4));
        QVERIFY(group->removeChild(b));
        QCOMPARE(group->findChild(b), 1);
        QVERIFY(group->removeChild(1));
        QCOMPARE(CountedNode::count, 2);
        QVERIFY(!group->removeChild(2));
    }
    QCOMPARE(CountedNode::count, 0);

    const Held root(new KnGroup);
    auto* middle = new KnGroup;
    auto* leaf = new KnGroup;
    QVERIFY(root->addChild(middle) && middle->addChild(leaf));
    QVERIFY(root->addChild(leaf)); // shared, which is no cycle
    Errors<KnDebugError> errors;
    QVERIFY(!leaf->addChild(root.node) && !leaf->addChild(leaf) && !leaf->addChild(nullptr));
    QCOMPARE(errors.texts.size(), 3);
    QVERIFY(leaf->getNumChildren() == 0 && root->getReferenceCount() == 1);
}

QTEST_APPLESS_MAIN(TestNodes)
#include "test_nodes.moc"
